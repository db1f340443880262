// The options that change files or memory rather than the model: the extra
// files of the living, of everyone created and of the census, the memory
// reservation, and the survival of translocated individuals.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "SimTestSupport.h"

namespace tamsic::test {
namespace {

using Rows = std::vector<std::vector<std::string>>;

Rows Lines(const std::string& text) {
  EXPECT_EQ(text.find('\n'), text.empty() ? std::string::npos : text.find("\r\n") + 1) << "lines end in CR LF";
  return DataLines(text);
}

SimScenario Small() {
  SimScenario s("Small", 1, 30, 40);
  s.text(F("txtNumIter"), "4").text(F("txtNumYear"), "12");
  return s;
}

TEST(SimExtraFiles, LivingCreatedAndCensusAgreeWithTheRunTable) {
  const RunOutput out = RunScenario({Small()}, "Small", "A;N;Y2;SEED8;THREADS1");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  std::map<std::string, std::string> finalN;  // iteration -> N of the run table
  for (const auto& row : Lines(out.runTable)) finalN[row[0]] = row[4];

  // The census of the first two iterations only, every year, ending at the run table's N.
  const Rows census = Lines(out.census);
  ASSERT_EQ(census.size(), 2u * 13u);
  EXPECT_EQ(census.front()[1], "0");
  for (const auto& row : census) {
    EXPECT_TRUE(row[0] == "1" || row[0] == "2");
    EXPECT_EQ(std::stoi(row[3]), std::stoi(row[4]) + std::stoi(row[5]));  // N = females + males
    if (row[1] == "12") {
      EXPECT_EQ(row[3], finalN[row[0]]);
    }
  }

  // The living at the end of each iteration: as many as the run table says.
  std::map<std::string, int> living;
  std::set<std::pair<std::string, std::string>> alive;
  for (const auto& row : Lines(out.living)) ++living[row[0]], alive.insert({row[0], row[2]});
  for (const auto& [iteration, n] : finalN)
    if (n != "0") {
      EXPECT_EQ(std::to_string(living[iteration]), n) << iteration;
    }

  // Everyone created: ids 1, 2, ... in each iteration, 30 founders first,
  // parents created before their young, and the living last counted in the final year.
  std::map<std::string, int> lastId;
  int founders = 0, born = 0;
  for (const auto& row : Lines(out.created)) {
    const int id = std::stoi(row[1]);
    EXPECT_EQ(id, ++lastId[row[0]]);
    if (row[7] == "Founder") {
      ++founders;
      EXPECT_EQ(row[6], "0");
      EXPECT_FALSE(row[11].empty());  // counted at the founders' census at least
    } else {
      ++born;
      EXPECT_EQ(row[7], "Born");
      EXPECT_LT(std::stoi(row[2]), id);
      EXPECT_LT(std::stoi(row[3]), id);
      EXPECT_EQ(row[8], "0");
    }
    if (alive.count({row[0], row[1]})) {
      EXPECT_EQ(row[11], "12");
    } else if (!row[11].empty()) {
      EXPECT_LT(std::stoi(row[11]), 12);
    }
  }
  EXPECT_EQ(founders, 4 * 30);
  EXPECT_GT(born, 4 * 30);

  // The same files whatever the number of threads; no extra files unless asked.
  const RunOutput threaded = RunScenario({Small()}, "Small", "A;N;Y2;SEED8;THREADS3");
  EXPECT_EQ(threaded.living, out.living);
  EXPECT_EQ(threaded.created, out.created);
  EXPECT_EQ(threaded.census, out.census);
  const RunOutput plain = RunScenario({Small()}, "Small", "SEED8");
  EXPECT_EQ(plain.files, out.files);
  EXPECT_TRUE(plain.living.empty() && plain.created.empty() && plain.census.empty());
}

TEST(SimExtraFiles, MemoryReservationChangesNothingButCanFailClearly) {
  const RunOutput plain = RunScenario({Small()}, "Small", "SEED3");
  EXPECT_EQ(RunScenario({Small()}, "Small", "W5000;SEED3").files, plain.files);
  const RunOutput huge = RunScenario({Small()}, "Small", "W999999999999999999;A;SEED3");
  EXPECT_TRUE(huge.reply.starts_with("Error: scenario \"Small\": option W")) << huge.reply;
  EXPECT_TRUE(huge.files.empty() && huge.living.empty());
}

TEST(SimExtraFiles, TranslocatedIndividualsSurviveWithTheOptionsPercent) {
  // Population 1 is harvested every year; population 2 has no young and is
  // supplied only from that harvest.
  SimScenario moved("Moved", 2, 60, 100);
  moved.text(F("txtNumIter"), "6").text(F("txtNumYear"), "10");
  moved.cell(F("gridRepRates1"), 2, 1, "0").cell(F("gridInitPopStable"), 2, 1, "0");
  for (const auto& [grid, population] : {std::pair{F("gridHarvest"), 1u}, std::pair{F("gridSuppl"), 2u}}) {
    moved.cell(grid, 1, population, "1").cell(grid, 2, population, "1");
    moved.cell(grid, 3, population, "10").cell(grid, 4, population, "1");
  }
  moved.cell(F("gridHarvestF"), 1, 2, "3").cell(F("gridHarvestM"), 1, 2, "3");
  moved.cell(F("gridSupplF"), 2, 2, "3").cell(F("gridSupplM"), 2, 2, "3");
  const double all = RunScenario({moved}, "Moved", "T100;SEED4").blocks.at(1)[10][kAll];
  const double half = RunScenario({moved}, "Moved", "T50;SEED4").blocks.at(1)[10][kAll];
  const double none = RunScenario({moved}, "Moved", "T0;SEED4").blocks.at(1)[10][kAll];
  EXPECT_GT(all, 20.0);
  EXPECT_LT(half, 0.8 * all);
  EXPECT_GT(half, 0.2 * all);
  EXPECT_EQ(none, 0.0);
}

}  // namespace
}  // namespace tamsic::test
