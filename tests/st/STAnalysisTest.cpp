// The analysis of a sensitivity test: the ranking of inputs by standardised
// regression coefficients, the inputs the ST variables name, and the results
// and values of hand-made ST scenarios read from yearly data files.
#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "STTestProject.h"
#include "app/StringTable.h"
#include "engine/Engine.h"
#include "results/ResultVariables.h"
#include "results/TableExport.h"
#include "st/STAnalysis.h"
#include "st/STAnalysisViews.h"
#include "st/basST.h"
#include "st/STRegression.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

double SampleSD(const std::vector<double>& values) {
  const double mean = std::accumulate(values.begin(), values.end(), 0.0) / values.size();
  double squares = 0;
  for (double v : values) squares += (v - mean) * (v - mean);
  return std::sqrt(squares / (values.size() - 1));
}

// Twelve scenarios of y = 10 + 3 x1 - 2 x2 + 0.5 x3 (plus noise), with x4
// moving in step with x1 and a constant input c.
RegressionData KnownModel(double noise) {
  constexpr double kNoise[] = {0.5, -1, 0.3, 0.8, -0.6, 0.1, -0.9, 0.7, -0.2, 0.4, -0.5, 0.6};
  RegressionData data{{"x1", "x2", "c", "x3", "x4"}, {}, {}};
  for (int i = 0; i < 12; ++i) {
    const double x1 = i, x2 = (i * 5) % 12, x3 = (i * i) % 7;
    data.rows.push_back({x1, x2, 3.0, x3, 2 * x1 + 1});
    data.results.push_back(10 + 3 * x1 - 2 * x2 + 0.5 * x3 + noise * kNoise[i]);
  }
  return data;
}

std::vector<double> Column(const RegressionData& data, std::size_t j) {
  std::vector<double> values;
  for (const auto& row : data.rows) values.push_back(row[j]);
  return values;
}

TEST(STRegression, StandardisedCoefficientsOfAKnownModel) {
  const RegressionData exact = KnownModel(0);
  const Ranking ranking = RankInputs(exact);
  ASSERT_EQ(ranking.outcome, Ranking::Outcome::Ranked);
  EXPECT_EQ(ranking.constant, std::vector<std::string>{"c"});
  EXPECT_EQ(ranking.scenarios, 12);
  EXPECT_NEAR(ranking.rSquared, 1.0, 1e-12);
  // Without noise each coefficient is b * sd(x) / sd(y), ranked by size.
  const double sdY = SampleSD(exact.results);
  ASSERT_EQ(ranking.inputs.size(), 3u);
  EXPECT_EQ(ranking.inputs[0].names, (std::vector<std::string>{"x1", "x4"}));
  EXPECT_NEAR(ranking.inputs[0].coefficient, 3 * SampleSD(Column(exact, 0)) / sdY, 1e-9);
  EXPECT_EQ(ranking.inputs[1].names, std::vector<std::string>{"x2"});
  EXPECT_NEAR(ranking.inputs[1].coefficient, -2 * SampleSD(Column(exact, 1)) / sdY, 1e-9);
  EXPECT_EQ(ranking.inputs[2].names, std::vector<std::string>{"x3"});
  EXPECT_NEAR(ranking.inputs[2].coefficient, 0.5 * SampleSD(Column(exact, 3)) / sdY, 1e-9);

  const Ranking noisy = RankInputs(KnownModel(0.8));
  ASSERT_EQ(noisy.outcome, Ranking::Outcome::Ranked);
  // Worked out apart, by ordinary least squares with an intercept on the raw values.
  EXPECT_NEAR(noisy.rSquared, 0.9981598572, 1e-9);
  EXPECT_GT(noisy.inputs[0].coefficient, 0);
  EXPECT_LT(noisy.inputs[1].coefficient, 0);
}

TEST(STRegression, RefusesWhatCannotBeFitted) {
  // Three inputs that vary need five scenarios.
  RegressionData few = KnownModel(0);
  few.rows.resize(4);
  few.results.resize(4);
  Ranking ranking = RankInputs(few);
  EXPECT_EQ(ranking.outcome, Ranking::Outcome::TooFewScenarios);
  EXPECT_EQ(ranking.scenarios, 4);
  EXPECT_EQ(ranking.needed, 5);
  EXPECT_TRUE(ranking.inputs.empty());
  few = KnownModel(0);
  few.rows.resize(5);
  few.results.resize(5);
  EXPECT_EQ(RankInputs(few).outcome, Ranking::Outcome::Ranked);

  RegressionData flat = KnownModel(0);
  flat.results.assign(12, 0.25);
  EXPECT_EQ(RankInputs(flat).outcome, Ranking::Outcome::ResultConstant);

  // x3 follows from x1 and x2 together, though in step with neither.
  RegressionData dependent = KnownModel(0);
  for (auto& row : dependent.rows) row[3] = row[0] + row[1];
  EXPECT_EQ(RankInputs(dependent).outcome, Ranking::Outcome::Dependent);

  RegressionData still{{"a", "b"}, {{1, 2}, {1, 2}, {1, 2}}, {1, 2, 3}};
  ranking = RankInputs(still);
  EXPECT_EQ(ranking.outcome, Ranking::Outcome::NothingVaries);
  EXPECT_EQ(ranking.constant, (std::vector<std::string>{"a", "b"}));
}

TEST(STBaselineValue, EachVariableFindsItsCell) {
  const test::TestFolder folder;
  const clsScenario koalas = sttest::KoalaProject(folder.path()).document.scenarios.Item(1);
  const std::vector<std::pair<std::string, std::string>> cells = {
      {"SexRatio", "50"}, {"LethalEquiv", "6.29"}, {"EVConcordance?", "1"}, {"PercentBreed_Pop2", "65"},
      {"PercentBreedEV_Pop3", "10"}, {"FemaleMortality_Pop1_Age2", "10"}, {"EVFemaleMort_Pop1_Age0", "6"},
      {"MaleMortality_Pop2_Age2", "18"}, {"EVMaleMort_Pop3_Age3", "3"}, {"CatastrophesGL_Pop1_Cat2", "Global"},
      {"CatastrophesFreq_Pop3_Cat1", "4"}, {"CatastrophesSurviveSevere_Pop2_Cat2", "0.9"},
      {"CatastrophesReproSevere_Pop2_Cat1", "0.6"}, {"PercentMalesBreed_Pop1", "50"}, {"InitPopSize_Pop3", "40"},
      {"K_Pop2", "150"}, {"K-SD_Pop3", "8"}, {"KChangeYears_Pop3", "30"}, {"KChangePercent_Pop3", "-1"},
      {"Harvest?_Pop2", "0"}};
  for (const auto& [name, text] : cells) EXPECT_EQ(STBaselineValue(koalas, name), text) << name;
  for (const char* name : {"K_Pop4", "FemaleMortality_Pop1_Age3", "CatastrophesFreq_Pop1_Cat0", "SexRatio_Pop1",
                           "PercentBreed", "Sexratio", "K_PopX"})
    EXPECT_EQ(STBaselineValue(koalas, name), std::nullopt) << name;
}

class STAnalysisTest : public ::testing::Test {
 protected:
  test::TestFolder folder;
  ProjectState state = sttest::KoalaProject(folder.path());
  StringTable strings = StringTable::fromFile(StringTable::locate());
  LibraryEngine engine;

  // The metapopulation's N[extant] in the last year.
  STResultChoice choice() const {
    STResultChoice chosen;
    chosen.variable = "N[extant]";
    chosen.year = sttest::kYears;
    chosen.population = {PopulationChoice::Kind::Metapopulation, 3};
    return chosen;
  }
};

// Each scenario's results differ by a step of its own.
sttest::Values Shifted(double step) {
  return [step](int b, int y, int f) { return sttest::Where(b, y, f) + (f > 0 ? step : 0); };
}

TEST_F(STAnalysisTest, ResultsAndValuesOfHandMadeSTScenarios) {
  sttest::AddItem(state, "Breeding -10%", {{"PercentBreed_Pop1", "=B*0.9"}});
  sttest::AddItem(state, "Sex ratio 45", {{"SexRatio", "45"}});
  sttest::AddItem(state, "K follows N", {{"K_Pop1", "=N*2"}});
  sttest::AddItem(state, "Not run", {{"SexRatio", "55"}});
  sttest::AddItem(state, "Broken", {{"SexRatio", "60"}});
  sttest::WriteDat(state, "Baseline");
  sttest::WriteDat(state, "ST.1", Shifted(10000));
  sttest::WriteDat(state, "ST.2", Shifted(20000));
  sttest::WriteDat(state, "ST.3", Shifted(30000));
  std::ofstream(sttest::DatFile(state, "ST.5"), std::ios::binary) << "$ not the engine's\r\n";

  const STAnalysisData analysis = ReadSTResults(state, state.document.stScheme, engine, strings);
  EXPECT_EQ(analysis.engineFault, "");
  ASSERT_EQ(analysis.items.size(), 5u);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(analysis.items[i].scenario, i + 4);
    EXPECT_EQ(analysis.items[i].scenarioName, "ST." + std::to_string(i + 1));
  }
  EXPECT_EQ(analysis.variables, (std::vector<std::string>{"PercentBreed_Pop1", "SexRatio", "K_Pop1"}));
  EXPECT_EQ(analysis.years, sttest::kYears);
  ASSERT_EQ(analysis.populations.size(), 4u);
  EXPECT_EQ(analysis.populations[1].text, "River flats");
  EXPECT_EQ(analysis.populations[3].text, "Metapopulation");

  // The engine works out "=(65)*0.9"; a function of N has no number.
  ASSERT_TRUE(analysis.items[0].values[0].number.has_value());
  EXPECT_DOUBLE_EQ(*analysis.items[0].values[0].number, 58.5);
  EXPECT_EQ(analysis.items[1].values[0].number, 45);
  EXPECT_EQ(analysis.items[2].values[0].number, std::nullopt);
  // Inputs an item leaves alone have the baseline's value.
  EXPECT_EQ(STInputNumber(analysis, analysis.items[1], "PercentBreed_Pop1"), 65);
  EXPECT_EQ(STInputNumber(analysis, analysis.items[0], "SexRatio"), 50);
  EXPECT_EQ(STInputNumber(analysis, analysis.items[0], "K_Pop1"), 300);

  // The chosen variable, statistic, population and year find their field.
  STResultChoice chosen = choice();
  EXPECT_EQ(STResult(*analysis.items[1].data, chosen), sttest::Where(3, 5, 9) + 20000);
  chosen.modifier = kStandardError;
  chosen.population = analysis.populations[1].choice;
  EXPECT_EQ(STResult(*analysis.items[1].data, chosen), sttest::Where(1, 5, 10) + 20000);
  chosen.year = 6;
  EXPECT_EQ(STResult(*analysis.items[1].data, chosen), std::nullopt);

  // Items without results are named with the reason.
  EXPECT_EQ(analysis.items[3].missing, STMissing::NotRun);
  EXPECT_EQ(analysis.items[4].missing, STMissing::Unreadable);
  const auto missing = ItemsWithoutResults(analysis, choice(), strings);
  ASSERT_EQ(missing.size(), 2u);
  EXPECT_EQ(missing[0], "4. Not run (ST.4): not run yet, there is no file " +
                            (folder.path() / "Koalas in three fragments_ST.4.dat").string());
  EXPECT_EQ(missing[1].find("5. Broken (ST.5): the results file cannot be read: "), 0u) << missing[1];
  EXPECT_NE(missing[1].find("scenario's name"), std::string::npos) << missing[1];

  // By variable: the items that vary it and the baseline, in order of value;
  // those without results keep their rows but draw no point.
  const STView view = BuildSTView(analysis, choice(), STGrouping::ByVariable, strings);
  std::vector<std::vector<std::string>> sexRatio;
  for (const TableRow& row : view.table.rows)
    if (row.heading == "SexRatio") sexRatio.push_back(row.cells);
  const std::string baselineResult = FormatNumber(sttest::Where(3, 5, 9));
  EXPECT_EQ(sexRatio, (std::vector<std::vector<std::string>>{
                          {"45", "Sex ratio 45", "ST.2", FormatNumber(sttest::Where(3, 5, 9) + 20000)},
                          {"50", "Baseline scenario", "Baseline", baselineResult},
                          {"55", "Not run", "ST.4", ""},
                          {"60", "Broken", "ST.5", ""}}));
  ASSERT_EQ(view.lines.size(), 3u);
  EXPECT_EQ(view.lines[1].points,
            (std::vector<GraphPoint>{{45, sttest::Where(3, 5, 9) + 20000}, {50, sttest::Where(3, 5, 9)}}));
  EXPECT_TRUE(view.lines[1].joined) << "items that change the sex ratio alone lie on one curve";

  // The item whose input is no number stays out of the ranking, by name.
  const STRanking ranked = RankSTInputs(analysis, choice());
  EXPECT_EQ(ranked.leftOut, std::vector<std::string>{"K follows N"});
  EXPECT_EQ(ranked.ranking.scenarios, 2);
  EXPECT_EQ(ranked.ranking.outcome, Ranking::Outcome::TooFewScenarios);
}

TEST_F(STAnalysisTest, ItemsWithoutTheirScenariosAreNamed) {
  state.document.stScheme.NumItems = 1;
  state.document.stScheme.Items = {STItem{1, 0, "Drier", {"SexRatio"}, {"=B+"}}};
  const STAnalysisData analysis = ReadSTResults(state, state.document.stScheme, engine, strings);
  ASSERT_EQ(analysis.items.size(), 1u);
  EXPECT_EQ(analysis.items[0].missing, STMissing::NoScenario);
  EXPECT_EQ(analysis.items[0].values[0].number, std::nullopt);
  EXPECT_EQ(ItemsWithoutResults(analysis, choice(), strings),
            std::vector<std::string>{"1. Drier: there is no ST scenario for this item; generate the scenarios."});
}

}  // namespace
}  // namespace tamsic
