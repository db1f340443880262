// Summary tables built from the choices, and their CSV and clipboard text.
#include <gtest/gtest.h>

#include "app/StringTable.h"
#include "results/ResultChoices.h"
#include "results/SummaryTable.h"
#include "results/TableExport.h"
#include "ResultsData.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

using resultstest::DatText;

class SummaryTableTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (auto* scenario : {&base, &managed}) {
      const std::string name = scenario->Text(F("txtSceneName"));
      resultstest::Write(folder.path() / (name + ".dat"), DatText(name, ShapeOf(*scenario).blocks(), 2));
      data.push_back(LoadYearlyData(folder.path() / (name + ".dat"), *scenario));
    }
  }
  // A folder of each test's own: ctest runs the tests side by side.
  test::TestFolder folder;
  std::vector<TableScenario> Sources() {
    return {{"Base", &data[0], BlockTitles(base, strings)}, {"Managed, K+", &data[1], BlockTitles(managed, strings)}};
  }

  StringTable strings = StringTable::fromFile(StringTable::locate());
  clsScenario base = resultstest::Scenario("Base", 2, 2);
  clsScenario managed = resultstest::Scenario("Managed, K+", 1, 2);
  std::vector<YearlyData> data;
};

TEST_F(SummaryTableTest, RowsOfScenariosYearsAndPopulations) {
  TableChoice choice;
  choice.statistic = TableStatistic::MeanAndSD;
  choice.variables = {"P[extinct]", "N[extant]", "MedianTE", "Var1", "nonsense"};
  Table table = BuildSummaryTable(Sources(), choice, strings);
  EXPECT_EQ(table.corner, "Scenario");
  // No SD of P[extinct] or MedianTE; one population and one year: no key columns.
  EXPECT_EQ(table.columns,
            (std::vector<std::string>{"P[extinct]", "N[extant]", "SD(N[extant])", "MedianTE", "Var1", "SD(Var1)"}));
  ASSERT_EQ(table.rows.size(), 2u);
  // Base's metapopulation is block 2; Managed has one population, block 0.
  EXPECT_EQ(table.rows[0].cells,
            (std::vector<std::string>{"-2200.25", "2209.25", "2211.25", "2230.25", "2231.25", "2233.25"}));
  EXPECT_EQ(table.rows[1].cells,
            (std::vector<std::string>{"-200.25", "209.25", "211.25", "230.25", "231.25", "233.25"}));
  EXPECT_TRUE(ToCsv(table).ends_with("\r\n\"Managed, K+\",-200.25,209.25,211.25,230.25,231.25,233.25\r\n"));

  // Year rows within populations.
  choice = {};
  choice.rows = RowDimension::Years;
  choice.statistic = TableStatistic::MeanAndSE;
  choice.populations = {PopulationChoice::Kind::Within, 0};
  choice.yearStep = 1;
  choice.variables = {"GeneDiv"};
  table = BuildSummaryTable(Sources(), choice, strings);
  EXPECT_EQ(table.corner, "Year");
  EXPECT_EQ(table.columns, (std::vector<std::string>{"Scenario", "Within population", "GeneDiv", "SE(GeneDiv)"}));
  ASSERT_EQ(table.rows.size(), 9u);  // 3 years x (2 + 1 populations)
  EXPECT_EQ(table.rows[0].heading, "Year 0");
  EXPECT_EQ(table.rows[1].cells, (std::vector<std::string>{"Base", "Population 2", "1015.25", "1016.25"}));
  EXPECT_EQ(table.rows[2].cells, (std::vector<std::string>{"Managed, K+", "North", "15.25", "16.25"}));
  EXPECT_EQ(table.rows[8].heading, "Year 2");

  // Population rows put the metapopulation last.
  choice = {};
  choice.rows = RowDimension::Populations;
  choice.yearStep = 25;  // beyond the 2 years: the first and the final year
  choice.variables = {"Det.r"};
  choice.statistic = TableStatistic::MeanAndSE;
  choice.populations = {PopulationChoice::Kind::Population, 1};
  // Managed has no second population, so only Base gives rows.
  table = BuildSummaryTable(Sources(), choice, strings);
  EXPECT_EQ(table.corner, "Within Population");
  EXPECT_EQ(table.columns, (std::vector<std::string>{"Year", "Det.r"}));
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(table.rows[1].heading, "Population 2");
  EXPECT_EQ(table.rows[1].cells, (std::vector<std::string>{"2", "1205.25"}));

  choice.populations = {PopulationChoice::Kind::Metapopulation, 0};
  choice.yearStep = 0;
  table = BuildSummaryTable(Sources(), choice, strings);
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(table.rows[0].heading, "North");  // Managed's only population
  EXPECT_EQ(table.rows[1].heading, "Metapopulation");
  EXPECT_EQ(table.columns, (std::vector<std::string>{"Scenario", "Det.r"}));
}

TEST(ResultChoices, YearsAndPopulationEntries) {
  EXPECT_EQ(ChosenYears(0, 100), (std::vector<int>{100}));
  EXPECT_EQ(ChosenYears(25, 60), (std::vector<int>{0, 25, 50, 60}));
  EXPECT_EQ(ChosenYears(10, 20), (std::vector<int>{0, 10, 20}));
  const StringTable strings = StringTable::fromFile(StringTable::locate());
  EXPECT_EQ(YearStepText(10, strings), "Every 10 years");
  const auto entries = PopulationEntries(resultstest::Scenario("S", 2, 5), strings);
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[0].text, "North");
  EXPECT_EQ(entries[2].text, "Metapopulation");
  EXPECT_EQ(entries[3].text, "Within population");
  EXPECT_EQ(PopulationEntries(resultstest::Scenario("S", 1, 5), strings).size(), 1u);
}

TEST(TableExport, NumbersAsTheEngineWritesThem) {
  EXPECT_EQ(FormatNumber(0.123456789), "0.123457");
  EXPECT_EQ(FormatNumber(1234567.0), "1.23457e+06");
  EXPECT_EQ(FormatNumber(-0.0), "0");
  EXPECT_EQ(FormatNumber(100), "100");
  Table table{"A \"quoted\"", {" padded", "line\nbreak"}, {{"x", {"1", ""}}}};
  EXPECT_EQ(ToCsv(table), "\"A \"\"quoted\"\"\",\" padded\",\"line\nbreak\"\r\nx,1,\r\n");
  EXPECT_EQ(ToTabText(table), "A \"quoted\"\t padded\tline break\nx\t1\t\n");
}

}  // namespace
}  // namespace tamsic
