// The sensitivity-test variables of a scenario: their list, the check of a
// typed value, the baseline value "B", and where applying an item puts it.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "model/NewScenario.h"
#include "model/ScenarioShape.h"
#include "st/STAnswers.h"
#include "st/basST.h"
#include "support/FakeEngine.h"

namespace tamsic {
namespace {

// Two populations, females breeding at 2 and males at 1, one catastrophe,
// initial ages given one by one.
clsScenario TwoPopulations() {
  clsScenario s = NewScenarioDefaults();
  s.SetText(F("txtNumPop"), "2");
  s.SetText(F("txtAgeReproF"), "2");
  s.SetText(F("txtAgeReproM"), "1");
  s.SetText(F("txtNumCatast"), "1");
  s.SetTruth(F("optStartWith_0"), false);
  s.SetTruth(F("optStartWith_1"), true);
  RelayoutScenario(s);
  return s;
}

void SetCell(clsScenario& s, Field field, std::size_t row, std::size_t col, const std::string& text) {
  Grid grid = s.GetGrid(field);
  grid.at(row, col) = text;
  s.SetGrid(field, grid);
}

const std::string& Cell(const clsScenario& s, Field field, std::size_t row, std::size_t col) {
  return s.GetGrid(field).at(row, col);
}

STItem Item(std::vector<std::string> vars, std::vector<std::string> vals) {
  STItem item;
  item.ScenarioIndex = 1;
  item.Vars = std::move(vars);
  item.Vals = std::move(vals);
  return item;
}

bool Holds(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(STVariables, ListFollowsTheBaselinesPopulationsAgesAndCatastrophes) {
  clsScenario baseline = TwoPopulations();
  const std::string list = BuildSTVariableList(baseline, "|");
  EXPECT_TRUE(list.starts_with("NumberPopulations|LethalEquiv|PercentLethal|EVConcordance?|EVCorrAmongPops|"
                               "DispersalSurvival|DispersalModifier|MinAgeReproFemales|MinAgeReproMales|"
                               "MaxAgeRepro|SexRatio|PercentBreed_Pop1|PercentBreedEV_Pop1|PercentBreed_Pop2|"))
      << list;
  const std::vector<std::string> names = STVariableNames(baseline);
  EXPECT_EQ(names.back(), "MalesSupplemented_Pop2_Age1");
  for (const char* name : {"FemaleMortality_Pop1_Age0", "FemaleMortality_Pop1_Age2", "EVMaleMort_Pop2_Age1",
                           "FemalesHarvested_Pop1_Age1", "FemalesHarvested_Pop1_Age2", "CatastrophesGL_Pop2_Cat1",
                           "K-SD_Pop2", "Supplement?_Pop2"})
    EXPECT_TRUE(Holds(names, name)) << name;
  for (const char* name : {"FemaleMortality_Pop1_Age3", "FemalesHarvested_Pop1_Age0", "MaleMortality_Pop1_Age2",
                           "CatastrophesGL_Pop1_Cat2", "InitPopSize_Pop1", "PercentBreed_Pop3"})
    EXPECT_FALSE(Holds(names, name)) << name;
  // Mortality ages before the catastrophes, harvest after carrying capacity.
  const auto at = [&](const char* name) { return std::find(names.begin(), names.end(), name) - names.begin(); };
  EXPECT_LT(at("EVMaleMort_Pop2_Age1"), at("CatastrophesGL_Pop1_Cat1"));
  EXPECT_LT(at("KChangePercent_Pop2"), at("Harvest?_Pop1"));
  EXPECT_EQ(at("MalesHarvested_Pop1_Age1"), at("FemalesHarvested_Pop2_Age2") + 1);

  baseline.SetTruth(F("optStartWith_0"), true);
  EXPECT_TRUE(Holds(STVariableNames(baseline), "InitPopSize_Pop2")) << "sizes only with a stable age distribution";
  for (const std::string& name : STVariableNames(baseline))
    EXPECT_TRUE(STBaselineValue(baseline, name).has_value()) << name << " designates no input";
}

TEST(STVariables, ValueChecksAnswerAsUsersHaveAlwaysReadThem) {
  clsScenario baseline = TwoPopulations();
  baseline.SetText(F("txtNumPop"), "3");
  test::FakeEngine engine;
  const auto check = [&](const char* name, const char* value) { return CheckSTValue(name, value, baseline, engine); };
  const std::string useEquals = "You must use the '=' symbol when referencing the baseline value (B).";
  const std::string numeric =
      "You must enter a numeric value (if you are trying to enter a function, use the '=' symbol.";
  const std::string positive = "Enter a number greater than 0.", lower = "Enter a number less than the baseline.";
  // Any plain value holding a b asks for the '='; KChangeYears takes the check of K, whose name it contains;
  // harvested counts are not checked.
  for (const auto& [name, value, answer] : std::vector<std::tuple<const char*, std::string, std::string>>{
           {"SexRatio", "B*2", useEquals}, {"SexRatio", "abc", useEquals},
           {"CatastrophesGL_Pop1_Cat1", "Global", useEquals}, {"CatastrophesGL_Pop1_Cat1", "Local", "OK"},
           {"CatastrophesGL_Pop1_Cat1", "none", "Only 'Global' and 'Local' are acceptable answers for this variable."},
           {"InitPopSize_Pop1", "0", "OK"}, {"InitPopSize_Pop1", "-1", positive},
           {"InitPopSize_Pop1", "2.5", "You must enter an integer."}, {"KChangeYears_Pop1", "5", "OK"},
           {"KChangeYears_Pop1", "2.5", "OK"}, {"K-SD_Pop1", "x", numeric},
           {"K-SD_Pop1", "-1", "Enter a number greater than or equal to 0."}, {"NumberPopulations", "3", "OK"},
           {"NumberPopulations", "4", lower}, {"NumberPopulations", "0", positive}, {"Harvest?_Pop1", "TRUE", "OK"},
           {"Harvest?_Pop1", "f", "OK"}, {"Harvest?_Pop1", "1", "OK"},
           {"Harvest?_Pop1", "yes", "Please enter a True/False value."}, {"HarvestFirstYear_Pop1", "0", "OK"},
           {"HarvestLastYear_Pop1", "0", positive}, {"SupplLastYear_Pop1", "0", "OK"},
           {"SupplFirstYear_Pop1", "0", positive}, {"FemalesHarvested_Pop1_Age1", "-3.5", "OK"},
           {"MalesSupplemented_Pop1_Age1", "-3", "Enter a non-negative integer."},
           {"FemaleMortality_Pop1_Age0", "101", "Enter a number between 0 and 100."},
           {"EVCorrAmongPops", DefaultSTValue("EVCorrAmongPops"), "Enter a number between -1 and 1."},
           {"MinAgeReproFemales", "3", lower}, {"DispersalModifier", "x", numeric},
           {"LethalEquiv", DefaultSTValue("LethalEquiv"), "OK"}})
    EXPECT_EQ(check(name, value.c_str()), answer) << name << " = " << value;
  EXPECT_TRUE(engine.formulas.empty()) << "plain values never reach the engine";

  EXPECT_EQ(check("SexRatio", "=B*2"), "OK");
  EXPECT_EQ(engine.formulas.back(), "=50.5*2") << "only the first B is the test value";
  EXPECT_EQ(check("K_Pop1", "=B+B"), "OK");
  EXPECT_EQ(engine.formulas.back(), "=50.5+B");
  engine.judge = [](const std::string&) { return std::string("Error: ) expected at character 8"); };
  EXPECT_EQ(check("K_Pop1", "=(B*1.1"),
            "There is an error in the function '=(B*1.1': Error: ) expected at character 8");
  engine.judge = [](const std::string&) { return std::string("polish: B 2 *"); };
  EXPECT_EQ(check("K_Pop1", "=B*2"), "OK") << "the engine's answer is compared without case";
  EXPECT_EQ(check("MaxAgeRepro", "=B"), "A function cannot be assigned to MaxAgeRepro.");
  EXPECT_EQ(check("KChangeYears_Pop2", "=B"), "A function cannot be assigned to KChangeYears_Pop2.");
  EXPECT_EQ(DefaultSTValue("SupplInterval_Pop2"), "1");
  EXPECT_EQ(DefaultSTValue("CatastrophesGL_Pop1_Cat1"), "=B") << "the way to keep a global catastrophe";
}

TEST(STVariables, BaselineSubstitutionReplacesTheFirstBOnly) {
  EXPECT_EQ(SubstituteBaseline("0.5", "=B*1.1"), "=(0.5)*1.1");
  EXPECT_EQ(SubstituteBaseline("=A*2", "=B+1"), "=(A*2)+1");
  EXPECT_EQ(SubstituteBaseline("2", "=B+B"), "=(2)+B");
  EXPECT_EQ(SubstituteBaseline("2", "12"), "12");
  EXPECT_EQ(SubstituteBaseline("2", "=b*2"), "=b*2") << "B is looked for in capitals";
  EXPECT_EQ(STPopulationNumber("FemaleMortality_Pop12_Age3"), 12);
  EXPECT_EQ(STAgeOrCatastropheNumber("FemaleMortality_Pop12_Age3"), 3);
  for (auto [text, truth] : {std::pair{"True", true}, {"f", false}, {"2", true}, {"yes", false}})
    EXPECT_EQ(TextToTrueFalse(text), truth) << text;
}

TEST(STVariables, ApplyingPutsEachValueInItsCell) {
  clsScenario baseline = TwoPopulations();
  SetCell(baseline, F("gridMortFemales"), 2, 1, "0.5");
  SetCell(baseline, F("gridMortMales"), 1, 4, "=A*2");
  SetCell(baseline, F("gridHarvestF"), 2, 1, "4");
  SetCell(baseline, F("gridHarvest"), 1, 1, "1");
  SetCell(baseline, F("gridCatastrophes1"), 2, 1, "Global");
  clsScenario derived = baseline;
  ApplySTItem(derived, baseline,
              Item({"FemaleMortality_Pop2_Age0", "EVMaleMort_Pop1_Age1", "FemalesHarvested_Pop2_Age1",
                    "Harvest?_Pop2", "Harvest?_Pop1", "CatastrophesGL_Pop2_Cat1", "EVConcordance?", "K-SD_Pop2",
                    "PercentBreedEV_Pop1", "NoSuchVariable", "K_Pop9"},
                   {"=B*1.1", "=B+1", "=B*2", "TRUE", "=B", "local", "t", "7", "12", "5", "5"}));
  EXPECT_EQ(Cell(derived, F("gridMortFemales"), 2, 1), "=(0.5)*1.1") << "age classes of mortality count from 0";
  EXPECT_EQ(Cell(derived, F("gridMortMales"), 1, 4), "=(A*2)+1");
  EXPECT_EQ(Cell(derived, F("gridHarvestF"), 2, 1), "=(4)*2") << "harvested ages count from 1";
  EXPECT_EQ(Cell(derived, F("gridHarvest"), 1, 2), "1");
  EXPECT_EQ(Cell(derived, F("gridHarvest"), 1, 1), "1") << "=B keeps the baseline's switch";
  EXPECT_EQ(Cell(derived, F("gridCatastrophes1"), 2, 1), "Local");
  EXPECT_EQ(derived.Check(F("chkEVConcord")), 1);
  EXPECT_EQ(Cell(derived, F("gridCarryingCap1"), 2, 2), "7");
  EXPECT_EQ(Cell(derived, F("gridCarryingCap1"), 1, 2), Cell(baseline, F("gridCarryingCap1"), 1, 2));
  EXPECT_EQ(Cell(derived, F("gridRepRates1"), 1, 2), "12");

  clsScenario fewer = baseline;
  ApplySTItem(fewer, baseline, Item({"NumberPopulations", "MinAgeReproFemales"}, {"1", "1"}));
  EXPECT_EQ(fewer.GetGrid(F("gridRepRates1")).rows(), 2u) << "the grids follow the number of populations";
  EXPECT_EQ(fewer.GetGrid(F("gridMortFemales")).cols(), 5u) << "and the age of first breeding";
}

// Answers joined with names and functions are checked against the shipped tables in StringTableContentTest.
TEST(STVariables, AnswersAreShownInTheUsersLanguage) {
  struct Table : IStringTable {
    std::string text(int) const override { return "Übersetzt"; }
  } table;
  EXPECT_EQ(LocalizedSTAnswer("OK", table), "OK");
  EXPECT_EQ(LocalizedSTAnswer("Enter a number between 0 and 100.", table), "Übersetzt");
  EXPECT_EQ(LocalizedSTAnswer("K_Pop1: You must enter a numeric value.", table), "K_Pop1: Übersetzt");
}

}  // namespace
}  // namespace tamsic
