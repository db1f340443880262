#include <gtest/gtest.h>

#include "app/EnglishMessages.h"
#include "model/GridLayouts.h"
#include "pages/InputHelpers.h"

namespace tamsic {
namespace {

LayoutCounts Populations(int count) {
  LayoutCounts counts;
  for (int p = 1; p <= count; ++p) counts.populations.push_back("Pop " + std::to_string(p));
  counts.ageReproF = 2;
  counts.ageReproM = 3;
  return counts;
}

TEST(InputHelpers, FillScaleExportAndImportTheDispersalMatrix) {
  Grid rates = LayoutGrid(F("gridDispRates"), Populations(3));
  EXPECT_FALSE(FillDispersal(rates, "lots"));
  EXPECT_EQ(rates.at(1, 2), "");
  EXPECT_TRUE(FillDispersal(rates, "2.5"));
  EXPECT_EQ(rates.at(1, 2), "2.50");
  EXPECT_EQ(rates.at(3, 1), "2.50");
  EXPECT_EQ(rates.at(2, 2), "") << "the diagonal is the grid's own";
  EXPECT_EQ(rates.at(0, 1), "Pop 1") << "headings stay";

  rates.at(1, 2) = "1.25";
  rates.at(1, 3) = "=D*(1-N/K)";
  rates.at(2, 1) = "";
  EXPECT_TRUE(ApplyDispersalMultiplier(rates, " 2 "));
  EXPECT_EQ(rates.at(1, 2), "2.50");
  EXPECT_EQ(rates.at(1, 3), "=D*(1-N/K)*2");
  EXPECT_EQ(rates.at(2, 1), "");
  EXPECT_FALSE(ApplyDispersalMultiplier(rates, ""));

  // The rate matrix file reads what it writes.
  rates.at(2, 1) = "1.00";
  const std::string file = ExportRateMatrix(rates);
  EXPECT_EQ(file, ";2.50;=D*(1-N/K)*2\r\n1.00;;5.00\r\n5.00;5.00;\r\n");

  const EnglishMessages english;
  Grid other = LayoutGrid(F("gridDispRates"), Populations(3));
  EXPECT_EQ(ImportRateMatrix(other, file, english), std::nullopt);
  EXPECT_EQ(other, rates);
  EXPECT_EQ(ImportRateMatrix(other, "1;2;3\n4;5;6\n7;8;9\n\n", english), std::nullopt)
      << "LF lines and a last empty line";
  EXPECT_EQ(other.at(3, 2), "8");

  const Grid before = other;
  const auto fewLines = ImportRateMatrix(other, "1;2;3\n4;5;6\n", english);
  ASSERT_TRUE(fewLines);
  EXPECT_NE(fewLines->find("2 lines"), std::string::npos);
  const auto manyFields = ImportRateMatrix(other, "1;2;3\n4;5;6;7\n7;8;9\n", english);
  ASSERT_TRUE(manyFields);
  EXPECT_NE(manyFields->find("Line 2"), std::string::npos);
  EXPECT_EQ(other, before) << "a file that does not fit changes nothing";
}

TEST(InputHelpers, CopyValuesToLaterPopulationsAndFemaleMortalityToMales) {
  const LayoutCounts counts = Populations(3);
  clsScenario scenario;
  for (Field grid : PopulationGrids()) scenario.SetGrid(grid, LayoutGrid(grid, counts));
  Grid rates = scenario.GetGrid(F("gridRepRates1"));
  rates.at(2, 1) = "60";
  scenario.SetGrid(F("gridRepRates1"), rates);
  Grid k = scenario.GetGrid(F("gridCarryingCap1"));
  k.at(1, 2) = "500";
  scenario.SetGrid(F("gridCarryingCap1"), k);
  Grid labels = scenario.GetGrid(F("gridPopLabels"));
  labels.at(2, 1) = "Own name";
  scenario.SetGrid(F("gridPopLabels"), labels);

  CopyInputValues(scenario, 2, PopulationGrids());
  EXPECT_EQ(scenario.GetGrid(F("gridRepRates1")).at(3, 1), "60");
  EXPECT_EQ(scenario.GetGrid(F("gridRepRates1")).at(1, 1), "") << "earlier populations keep theirs";
  EXPECT_EQ(scenario.GetGrid(F("gridCarryingCap1")).at(1, 3), "500") << "populations in columns";
  EXPECT_EQ(scenario.GetGrid(F("gridPopLabels")).at(3, 1), "") << "names are not copied";

  const clsScenario before = scenario;
  CopyInputValues(scenario, 3, PopulationGrids());
  EXPECT_EQ(scenario, before) << "the last population has nobody after it";
  EXPECT_TRUE(PopulationGridsOfPage(3).empty()) << "the dispersal matrix is never copied";

  // Female mortality goes to the males wherever they have the place.
  Grid females = scenario.GetGrid(F("gridMortFemales"));
  for (std::size_t r = 1; r < females.rows(); ++r)
    for (std::size_t c = 1; c < females.cols(); ++c) females.at(r, c) = std::to_string(r * 10 + c);
  scenario.SetGrid(F("gridMortFemales"), females);
  CopyFemaleMortality(scenario);
  const Grid& males = scenario.GetGrid(F("gridMortMales"));
  EXPECT_EQ(males.at(2, 6), "26");
  EXPECT_EQ(males.at(2, 7), "") << "males have a column females lack";
  EXPECT_EQ(males.at(0, 1), "Mortality From Age 0 to 1");
}

}  // namespace
}  // namespace tamsic
