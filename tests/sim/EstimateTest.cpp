// The estimate before a run: it writes nothing, its figures grow with the
// run's threads and iterations as they should, a study of many scenarios is
// piloted in part, and a scenario whose memory cannot be had is refused, by
// the estimate and by the run itself. No figure of time is checked.
#include <gtest/gtest.h>

#include <filesystem>

#include "engine/RunEstimate.h"
#include "sim/Estimate.h"
#include "sim/MemoryNeed.h"
#include "sim/Pilot.h"
#include "sim/ReadModel.h"
#include "sim/Results.h"
#include "sim/Runner.h"
#include "sim/SimError.h"
#include "sim/SimTestSupport.h"

namespace tamsic::test {
namespace {

namespace fs = std::filesystem;

// Plenty of memory and nothing held before the run, so that peaks are the run's own bytes.
constexpr sim::MemoryRoom kPlenty{0.0, 1e18};

SimScenario AtCapacity(const std::string& name, int iterations) {
  SimScenario s(name, 1, 300, 300);
  s.text(F("txtNumIter"), std::to_string(iterations)).text(F("txtNumYear"), "15");
  return s;
}

ProjectDocument Project(const std::vector<SimScenario>& scenarios) {
  ProjectDocument project;
  project.title = "T";
  for (const SimScenario& s : scenarios) project.scenarios.Add(s.scenario());
  return project;
}

sim::RunEstimate Estimate(const std::vector<SimScenario>& scenarios, const std::string& options,
                          const sim::MemoryRoom& room = kPlenty) {
  std::vector<std::string> names;
  for (const SimScenario& s : scenarios) names.push_back(s.scenario().Text(F("txtSceneName")));
  return sim::EstimateRun(Project(scenarios), names, sim::ParseOptions(options), 5, room);
}

TEST(SimEstimate, WritesNoFileAndAnswersEachScenarioInTurn) {
  const fs::path folder = SaveTestProject({AtCapacity("First", 20), AtCapacity("Second one", 40)});
  const fs::path previous = fs::current_path();
  fs::current_path(folder);
  const std::string reply = sim::RunScenarios("T.tpj", "{First, Second one}", "SEED5;THREADS2;ESTIMATE");
  const std::string resumed = sim::RunScenarios("T.tpj", "{First}", "ESTIMATE;+");
  fs::current_path(previous);
  std::vector<std::string> files;
  for (const auto& entry : fs::directory_iterator(folder)) files.push_back(entry.path().filename().string());
  fs::remove_all(folder);

  EXPECT_EQ(files, std::vector<std::string>{"T.tpj"});  // no result files, no record of the run
  const auto estimate = ParseEstimate(reply);
  ASSERT_TRUE(estimate) << reply;
  EXPECT_EQ(estimate->threads, 2);
  ASSERT_EQ(estimate->scenarios.size(), 2u);
  EXPECT_EQ(estimate->scenarios[1].name, "Second one");
  EXPECT_EQ(estimate->scenarios[1].iterations, 40);
  for (const ScenarioEstimate& s : estimate->scenarios) {
    EXPECT_GE(s.piloted, 1);
    EXPECT_LE(s.piloted, s.iterations);
    EXPECT_GT(s.seconds, 0.0);
    EXPECT_GT(s.peakBytes, estimate->baselineBytes);
    EXPECT_TRUE(s.fits);
  }
  EXPECT_EQ(estimate->piloted, estimate->scenarios[0].piloted + estimate->scenarios[1].piloted);
  // A resumed run's estimate is of the scenarios it would run: with no unfinished run, none.
  EXPECT_EQ(resumed, "Error: there is no unfinished run of this project to resume; use Run");
}

TEST(SimEstimate, FiguresGrowWithThreadsAndIterations) {
  const sim::RunEstimate one = Estimate({AtCapacity("A", 40)}, "THREADS1");
  const sim::RunEstimate two = Estimate({AtCapacity("A", 40)}, "THREADS2");
  const sim::ScenarioEstimate& a1 = one.scenarios.at(0);
  const sim::ScenarioEstimate& a2 = two.scenarios.at(0);
  // Each thread holds a World of its own; the results of the run are held once.
  EXPECT_NEAR(a2.peakBytes / a1.peakBytes, 2.0, 0.1);
  EXPECT_NEAR(a2.checkedBytes / a1.checkedBytes, 2.0, 0.1);
  // The model's figure, which the run checks, is near what the pilot counts.
  EXPECT_GT(a1.checkedBytes, a1.peakBytes / 2);
  EXPECT_LT(a1.checkedBytes, a1.peakBytes * 2);
  // Every iteration's final state is kept to the end of the run.
  const auto results = [](int iterations) {
    return sim::ResultsBytes(sim::ReadModel(AtCapacity("A", iterations).scenario(), fs::current_path(), {}));
  };
  EXPECT_GE(results(40000) - results(40), (40000 - 40) * sizeof(sim::FinalState));

  // Each thread's first iteration grows its World and costs more; the rest share the threads.
  const sim::Pilot pilot{10, 3.0, 1.0, 0.0, false};
  EXPECT_DOUBLE_EQ(pilot.seconds(1, 1), 3.0);
  EXPECT_DOUBLE_EQ(pilot.seconds(10, 1), 3.0 + 9.0);
  EXPECT_DOUBLE_EQ(pilot.seconds(10, 2), 3.0 + 4.0);
  EXPECT_DOUBLE_EQ(pilot.seconds(2, 4), 3.0);
  EXPECT_DOUBLE_EQ(pilot.seconds(0, 4), 0.0);
}

TEST(SimEstimate, AStudyOfManyScenariosPilotsSomeAndScalesTheRest) {
  std::vector<SimScenario> study;
  for (int i = 0; i < 14; ++i) study.push_back(AtCapacity("S" + std::to_string(i), 4).text(F("txtNumYear"), "5"));
  study[3].cell(F("gridCarryingCap1"), 1, 1, "600");  // twice the others' K, and not piloted
  const sim::RunEstimate e = Estimate(study, "THREADS1");
  int piloted = 0;
  for (const sim::ScenarioEstimate& s : e.scenarios) {
    piloted += s.piloted > 0;
    EXPECT_GT(s.seconds, 0.0) << s.name;
    EXPECT_GT(s.peakBytes, 0.0) << s.name;
  }
  EXPECT_EQ(piloted, 12);
  EXPECT_EQ(e.scenarios[3].piloted, 0);
  EXPECT_GT(e.scenarios[3].peakBytes, e.scenarios[2].peakBytes);
}

TEST(SimEstimate, MemoryThatCannotBeHadIsRefused) {
  // The estimate: nothing is piloted, for even one iteration might not fit.
  const sim::RunEstimate tight = Estimate({AtCapacity("A", 40)}, "THREADS2", {1e6, 1e6 + 1000});
  EXPECT_FALSE(tight.scenarios.at(0).fits);
  EXPECT_EQ(tight.piloted, 0);

  // The run, from the model.
  const sim::Model model = sim::ReadModel(AtCapacity("A", 40).scenario(), fs::current_path(), {});
  std::vector<sim::LifeTable> tables{sim::BuildLifeTable(model, 0)};
  const sim::MemoryNeed need = sim::NeedFromModel(model, tables);
  EXPECT_NO_THROW(sim::CheckMemory(model, need, {1e6, need.peak(1e6) + 1}));
  try {
    sim::CheckMemory(model, need, {1e6, need.peak(1e6) - 1});
    FAIL() << "the run started";
  } catch (const sim::SimError& refusal) {
    EXPECT_TRUE(std::string(refusal.what()).starts_with("needs about ")) << refusal.what();
    EXPECT_TRUE(std::string(refusal.what()).ends_with("lower its iterations' size (K) or the threads"));
  }
  // With the option W the room it sets aside is the need, and the refusal names it.
  sim::Options reserving;
  reserving.reserveIndividuals = 1000000000;
  const sim::Model reserved = sim::ReadModel(AtCapacity("A", 40).scenario(), fs::current_path(), reserving);
  try {
    sim::CheckMemory(reserved, sim::NeedFromModel(reserved, tables), {1e6, 1e11});
    FAIL() << "the run started";
  } catch (const sim::SimError& refusal) {
    EXPECT_TRUE(std::string(refusal.what()).starts_with("option W: there is not enough memory for 1000000000 "
                                                        "individuals: the run needs about "))
        << refusal.what();
  }
}

}  // namespace
}  // namespace tamsic::test
