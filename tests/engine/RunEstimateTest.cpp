// The estimate through the binding: the option word it adds to the run
// call, its reading of the engine's reply, and the words it is told in.
#include <gtest/gtest.h>

#include <fstream>

#include "engine/EstimateText.h"
#include "engine/RunEstimate.h"
#include "model/MemoryWords.h"
#include "support/FakeEngine.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

constexpr char kReply[] =
    "Message: estimate threads=2 seconds=130.5 peak=367001600 available=16750372454 baseline=12000000 piloted=14 "
    "| iterations=500 piloted=12 seconds=120.25 peak=367001600 checked=200000000 fits=1 scenario=Base line "
    "| iterations=100 piloted=2 seconds=10.25 peak=300000000 checked=41000000000 fits=0 scenario=K=2 x";

TEST(RunEstimate, ReadsTheEnginesReply) {
  const auto e = ParseEstimate(kReply);
  ASSERT_TRUE(e);
  EXPECT_EQ(e->threads, 2);
  EXPECT_DOUBLE_EQ(e->seconds, 130.5);
  EXPECT_DOUBLE_EQ(e->availableBytes, 16750372454.0);
  EXPECT_DOUBLE_EQ(e->baselineBytes, 12e6);
  EXPECT_EQ(e->piloted, 14);
  ASSERT_EQ(e->scenarios.size(), 2u);
  EXPECT_EQ(e->scenarios[0].name, "Base line");
  EXPECT_EQ(e->scenarios[0].iterations, 500);
  EXPECT_DOUBLE_EQ(e->scenarios[0].seconds, 120.25);
  EXPECT_TRUE(e->scenarios[0].fits);
  EXPECT_EQ(e->scenarios[1].name, "K=2 x");  // names keep their blanks and "="
  EXPECT_DOUBLE_EQ(e->scenarios[1].checkedBytes, 41e9);
  ASSERT_EQ(e->refused().size(), 1u);
  EXPECT_EQ(e->refused()[0]->name, "K=2 x");
  for (const char* other : {"Error: scenario \"A\": K is 0", "Message: 1 scenario run with seed 4",
                            "Message: estimate threads=1 | iterations=5 seconds=1"})
    EXPECT_FALSE(ParseEstimate(other)) << other;
}

TEST(RunEstimate, AsksThroughTheRunCallAndKeepsTheWorkFile) {
  test::TestFolder folder;
  basSimulation::RunRequest request{folder.path() / "tpjW", "Base line, K=2 x, ", "X;W5000", "META"};
  std::ofstream(request.workFile) << "project";
  test::FakeEngine engine;
  engine.runReply = kReply;
  const EstimateResult asked = AskEstimate(engine, request);
  ASSERT_TRUE(asked.estimate);
  EXPECT_EQ(asked.reply, kReply);
  ASSERT_EQ(engine.runs.size(), 1u);
  EXPECT_EQ(engine.runs[0].scenarios, "{Base line, K=2 x}");
  EXPECT_EQ(engine.runs[0].options, "X;W5000;ESTIMATE;META");
  EXPECT_TRUE(std::filesystem::exists(request.workFile));  // the run comes next

  request.flags = " ";
  request.runMode = "";
  engine.runReply = "Error: scenario \"Base line\": NumYears: the value must be at most 2000";
  const EstimateResult failed = AskEstimate(engine, request);
  EXPECT_EQ(engine.runs[1].options, "ESTIMATE");
  EXPECT_FALSE(failed.estimate);
  EXPECT_EQ(failed.failure, engine.runReply);
  engine.unavailable = true;
  EXPECT_NE(AskEstimate(engine, request).failure.find("libtamsic.so"), std::string::npos);
}

TEST(RunEstimate, ToldInWords) {
  EXPECT_EQ(Duration(0.4), "under 1 s");
  EXPECT_EQ(Duration(59.4), "59 s");
  EXPECT_EQ(Duration(130), "2 min 10 s");
  EXPECT_EQ(Duration(3600), "1 h");
  EXPECT_EQ(Duration(3 * 3600 + 5 * 60 + 7), "3 h 5 min");
  EXPECT_EQ(Duration(86400 + 3600), "1 day 1 h");
  EXPECT_EQ(Duration(2 * 86400), "2 days");
  EXPECT_EQ(MemoryAmount(812), "812 bytes");
  EXPECT_EQ(MemoryAmount(350.0 * 1048576), "350 MB");
  EXPECT_EQ(MemoryAmount(38.2 * 1073741824), "38.2 GB");
  EXPECT_EQ(MemoryAmount(999.7 * 1048576), "0.98 GB");  // not "1000 MB"
  EXPECT_EQ(MemoryAmount(5.5 * 1024), "5.50 KB");

  const RunEstimate e = *ParseEstimate(kReply);
  EXPECT_EQ(DescribeEstimate(e), "about 2 min 11 s and 350 MB at the peak, from a pilot of 14 iterations");
  EXPECT_EQ(DescribeScenario(e.scenarios[1]), "about 10 s and 286 MB at the peak");
  // The run would refuse by the larger of the pilot's figure and the model's.
  EXPECT_EQ(Refusals(e), std::vector<std::string>{"scenario \"K=2 x\" needs about 38.2 GB at its peak, more than the "
                                                  "15.6 GB this machine has available; lower its iterations' size "
                                                  "(K) or the threads"});
}

}  // namespace
}  // namespace tamsic
