// The yearly-data loader and the values and graph lines read from it.
#include <gtest/gtest.h>

#include <cmath>

#include "ResultsData.h"
#include "model/Errors.h"
#include "results/GraphSeries.h"
#include "results/ResultVariables.h"
#include "results/YearlyData.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

using resultstest::Cell;
using resultstest::DatText;

class YearlyDataTest : public ::testing::Test {
 protected:
  // A folder of each test's own: ctest runs the tests side by side.
  test::TestFolder folder;
  std::filesystem::path file = folder.path() / "Project_Base.dat";
  clsScenario scenario = resultstest::Scenario("Base", 2, 3);

  void Write(const std::string& text) { resultstest::Write(file, text); }
  // The message of the FileError the load throws.
  std::string Failure() {
    try {
      LoadYearlyData(file, scenario);
    } catch (const FileError& error) {
      return error.what();
    }
    return "loaded";
  }
};

TEST_F(YearlyDataTest, EveryBlockYearAndVariableFindsItsField) {
  Write(DatText("Base", 3, 3));
  const YearlyData data = LoadYearlyData(file, scenario);
  EXPECT_EQ(data.shape().blocks(), 3);
  EXPECT_EQ(data.shape().fields(), 34);
  EXPECT_EQ(data.shape().metapopulationBlock(), 2);
  for (int block = 0; block < 3; ++block)
    for (int year = 0; year <= 3; ++year) {
      for (int n = 1; n <= 30; ++n) EXPECT_EQ(data.Value(block, year, n), Cell(block, year, n));
      EXPECT_EQ(data.Value(block, year, 31), 1.0 - Cell(block, year, 1));
      EXPECT_EQ(data.Value(block, year, 32), Cell(block, year, 2));
      EXPECT_EQ(data.Value(block, year, 33), Cell(block, year, 31));
      EXPECT_EQ(data.Value(block, year, 35), Cell(block, year, 33));
    }
  // Only one user variable: Var2 and beyond have no columns.
  EXPECT_EQ(data.Value(0, 0, 36), std::nullopt);
  EXPECT_EQ(data.Value(0, 0, 62), std::nullopt);
  EXPECT_EQ(data.Value(0, 0, 0), std::nullopt);
}

TEST_F(YearlyDataTest, LayoutWithinReachAndBrokenFilesFailWithTheReason) {
  EXPECT_NE(Failure().find("Cannot read"), std::string::npos);  // no file yet
  // The name on line 31, lines without the user variable's columns: loaded,
  // those columns have no value.
  Write(std::string(28, '\n') + DatText("Base", 3, 3, 31).substr(std::string("$ heading\r\n").size()));
  const YearlyData data = LoadYearlyData(file, scenario);
  EXPECT_EQ(data.Value(2, 3, 30), Cell(2, 3, 30));
  EXPECT_EQ(data.Value(2, 3, 33), std::nullopt);
  // One line more and the name is out of reach.
  Write(std::string(29, '\n') + DatText("Base", 3, 3, 31).substr(std::string("$ heading\r\n").size()));
  EXPECT_NE(Failure().find("31 lines"), std::string::npos) << Failure();

  Write(DatText("Other", 3, 3));
  EXPECT_NE(Failure().find("scenario's name"), std::string::npos);
  // The metapopulation's last year is missing.
  std::string text = DatText("Base", 3, 3);
  text.erase(text.rfind('\n', text.size() - 3) + 1);
  Write(text);
  EXPECT_NE(Failure().find("block 3, year 3: the file ends early"), std::string::npos) << Failure();
  text = DatText("Base", 3, 3);
  text.replace(text.find("1.25"), 4, "1,25");
  Write(text);
  EXPECT_NE(Failure().find("block 1, year 0: field 1 is not a number"), std::string::npos) << Failure();
  Write(DatText("Base", 3, 3, 30));
  EXPECT_NE(Failure().find("31 needed"), std::string::npos);
  // Written for 4 years while the scenario now has 3: the blocks do not line up.
  Write(DatText("Base", 3, 4));
  EXPECT_NE(Failure().find("block 2, year 0: the line is of another year"), std::string::npos) << Failure();
  // A project edited by hand to counts no run can have: refused before any memory is asked for them.
  Write(DatText("Base", 3, 3));
  scenario.SetText(F("txtNumPop"), "99");
  scenario.SetText(F("txtNumYear"), "999999");
  EXPECT_NE(Failure().find("NumYears: the value must be at most 2000"), std::string::npos) << Failure();
  scenario.SetText(F("txtNumYear"), "3");
  EXPECT_NE(Failure().find("NumPop: the value must be at most 50"), std::string::npos) << Failure();
}

TEST_F(YearlyDataTest, GraphLinesAndBands) {
  Write(DatText("Base", 3, 3));
  const YearlyData data = LoadYearlyData(file, scenario);
  const auto n = MakeGraphSeries(data, 2, "N[extant]", kMean, GraphBand::StandardDeviation);
  ASSERT_TRUE(n);
  ASSERT_EQ(n->points.size(), 4u);
  ASSERT_EQ(n->lower.size(), 4u);
  for (int year = 0; year <= 3; ++year) {
    EXPECT_EQ(n->points[year], (GraphPoint{double(year), Cell(2, year, 9)}));
    EXPECT_EQ(n->lower[year].y, Cell(2, year, 9) - Cell(2, year, 11));
    EXPECT_EQ(n->upper[year].y, Cell(2, year, 9) + Cell(2, year, 11));
  }
  // P[survive] has an SE band but no SD band, and no SD line at all.
  EXPECT_EQ(MakeGraphSeries(data, 0, "P[survive]", kMean, GraphBand::StandardError)->upper[1].y,
            Cell(0, 1, 1) + Cell(0, 1, 2));
  EXPECT_TRUE(MakeGraphSeries(data, 0, "P[survive]", kMean, GraphBand::StandardDeviation)->upper.empty());
  EXPECT_FALSE(MakeGraphSeries(data, 0, "P[survive]", kStandardDeviation, GraphBand::None));
  // Det.r takes no modifier; a band goes with the mean only.
  EXPECT_EQ(MakeGraphSeries(data, 1, "Det.r", kStandardDeviation, GraphBand::None)->points[2].y, Cell(1, 2, 5));
  EXPECT_TRUE(MakeGraphSeries(data, 1, "N[all]", kStandardError, GraphBand::StandardDeviation)->upper.empty());
  EXPECT_FALSE(MakeGraphSeries(data, 1, "Var2", kMean, GraphBand::None));
}

TEST(DeterministicValues, RepliesBecomeNByYearOrAnError) {
  const auto series = ParseDeterministicValues("100;104.5;109.2");
  EXPECT_EQ(series.points, (std::vector<GraphPoint>{{0, 100}, {1, 104.5}, {2, 109.2}}));
  EXPECT_TRUE(series.error.empty());
  EXPECT_EQ(ParseDeterministicValues("Error: no scenario checked in").error, "Error: no scenario checked in");
  const auto garbled = ParseDeterministicValues("100;abc");
  EXPECT_TRUE(garbled.points.empty());
  EXPECT_FALSE(garbled.error.empty());
}

}  // namespace
}  // namespace tamsic
