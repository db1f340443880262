// Generating the sensitivity-test scenarios of the example project, the
// problems found before, and the designs written as items.
#include <gtest/gtest.h>

#include <set>

#include "files/ProjectFile.h"
#include "model/ScenarioManagement.h"
#include "model/TextNumbers.h"
#include "st/STDesigns.h"
#include "st/STGeneration.h"
#include "st/basST.h"
#include "support/FakeEngine.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

ProjectDocument Koalas() {
  test::MessageRecorder recorder;
  return LoadProject(TAMSIC_SOURCE_DIR "/examples/Koalas.tpj", "9.99", recorder.messages);
}

std::string NameAt(const ScenarioCollection& scenarios, std::size_t n) {
  return scenarios.Item(n).Text(F("txtSceneName"));
}

const std::string& Cell(const clsScenario& s, Field field, std::size_t row, std::size_t col) {
  return s.GetGrid(field).at(row, col);
}

TEST(STGeneration, ReplacesTheSTScenariosAndLeavesTheOthersAlone) {
  ProjectDocument project = Koalas();
  ASSERT_EQ(project.scenarios.Count(), 3u);
  STScheme& scheme = project.stScheme;
  scheme.Items[2].Label = "Fire: twice, as often";
  scheme.Items[1].Label = "Breeding -10%";  // the same label as item 0
  const ScenarioCollection before = project.scenarios;

  EXPECT_EQ(GenerateSTScenarios(project.scenarios, scheme), 4u);
  ScenarioCollection& scenarios = project.scenarios;
  ASSERT_EQ(scenarios.Count(), 6u);
  EXPECT_EQ(NameAt(scenarios, 4), "ST.Breeding -10%");
  EXPECT_EQ(NameAt(scenarios, 5), "ST.Breeding -10% (2)");
  EXPECT_EQ(NameAt(scenarios, 6), "ST.Fire_ twice_ as often");
  EXPECT_EQ(CountTrailingSTScenarios(scenarios), 3u);
  for (std::size_t n = 4; n <= 6; ++n)
    EXPECT_EQ(ScenarioNameProblem(scenarios, n, NameAt(scenarios, n)), std::nullopt) << NameAt(scenarios, n);
  EXPECT_EQ(Cell(scenarios.Item(4), F("gridRepRates1"), 3, 1), "=(65)*0.9");
  EXPECT_EQ(Cell(scenarios.Item(6), F("gridCatastrophes1"), 2, 2), "8");
  EXPECT_EQ(Cell(scenarios.Item(6), F("gridCatastrophes1"), 2, 4), Cell(before.Item(1), F("gridCatastrophes1"), 2, 4));

  scheme.NumItems = 2;
  scheme.Items.resize(2);
  const ScenarioCollection once = [&] {
    GenerateSTScenarios(scenarios, scheme);
    return scenarios;
  }();
  GenerateSTScenarios(scenarios, scheme);
  EXPECT_EQ(scenarios, once) << "generating again gives the same scenarios";
  ASSERT_EQ(scenarios.Count(), 5u);
  for (std::size_t n = 1; n <= 3; ++n) EXPECT_EQ(scenarios.Item(n), before.Item(n)) << "scenario " << n;

  scheme.Items[0].ScenarioIndex = 5;
  EXPECT_THROW(GenerateSTScenarios(scenarios, scheme), std::invalid_argument);
  EXPECT_EQ(scenarios, once) << "a refused scheme changes nothing";
}

TEST(STGeneration, ProblemsAreFoundBeforeAnythingChanges) {
  ProjectDocument project = Koalas();
  test::FakeEngine engine;
  EXPECT_TRUE(CheckSTScheme(project.scenarios, project.stScheme, engine).empty());
  GenerateSTScenarios(project.scenarios, project.stScheme);

  STScheme scheme = project.stScheme;
  scheme.Items[0].ScenarioIndex = 9;
  scheme.Items[1].ScenarioIndex = 5;
  scheme.Items[2].Vars = {"K_Pop4", "SexRatio", "Harvest?_Pop1", "InitPopSize_Pop1"};
  scheme.Items[2].Vals = {"300", "150", "=B", "120"};
  scheme.Items.push_back({});  // one slot more than counted, as a read scheme has
  scheme.Items[3].ScenarioIndex = 2;
  const auto problems = CheckSTScheme(project.scenarios, scheme, engine);
  ASSERT_EQ(problems.size(), 4u);
  EXPECT_EQ(problems[0].item, 0);
  EXPECT_EQ(problems[0].text, "The baseline scenario does not exist: number 9");
  EXPECT_EQ(problems[1].text, "The baseline is itself a sensitivity-test scenario: ST.Breeding +10%");
  EXPECT_EQ(problems[2].item, 2);
  EXPECT_EQ(problems[2].text, "Not a variable of the baseline scenario: K_Pop4");
  EXPECT_EQ(problems[3].text, "SexRatio: Enter a number between 0 and 100.");
  EXPECT_EQ(problems.back().item, 2);

  scheme.NumItems = 4;
  const auto empty = CheckSTScheme(project.scenarios, scheme, engine);
  EXPECT_EQ(empty.back().item, 3);
  EXPECT_EQ(empty.back().text, "The item changes no variable.");
}

// Each value's stratum: which of `samples` equal parts of the range it lies in.
std::set<int> Strata(const std::vector<STItem>& items, std::size_t variable, double from, double to) {
  std::set<int> strata;
  for (const STItem& item : items)
    strata.insert(static_cast<int>((LeadingNumber(item.Vals[variable]) - from) / (to - from) * items.size()));
  return strata;
}

TEST(STDesigns, ItemsCoverTheRangesAsTheirDesignsSay) {
  const std::vector<STItem> range = RangeItems(1, {"K_Pop1", 100, 200, 5});
  ASSERT_EQ(range.size(), 5u);
  EXPECT_EQ(range[1].Label, "Range 2");
  EXPECT_EQ(range[1].Vals[0], "125");
  EXPECT_EQ(RangeItems(1, {"SexRatio", 0.1, 0.3, 3})[1].Vals[0], "0.2");
  EXPECT_EQ(RangeItems(1, {"MinAgeReproFemales", 1, 2, 4})[1].Vals[0], "1") << "ages are whole numbers";
  EXPECT_THROW(RangeItems(1, {"K_Pop1", 100, 200, 1}), std::invalid_argument);

  const auto factorial = FactorialItems(2, {{"K_Pop1", 100, 200, 2}, {"SexRatio", 40, 60, 3}});
  ASSERT_EQ(factorial.size(), 6u);
  EXPECT_EQ(factorial[4].Label, "Factorial 5");
  EXPECT_EQ(factorial[4].ScenarioIndex, 2);
  EXPECT_EQ(factorial[4].Vars, (std::vector<std::string>{"K_Pop1", "SexRatio"}));
  EXPECT_EQ(factorial[4].Vals, (std::vector<std::string>{"200", "50"}));
  EXPECT_THROW(FactorialItems(1, {{"K_Pop1", 1, 2, 2}}), std::invalid_argument);

  const std::vector<STRange> ranges{{"K_Pop1", 100, 300, 2}, {"PercentBreed_Pop2", 40, 80, 2}};
  const auto lhs = LatinHypercubeItems(1, ranges, 8, 42);
  ASSERT_EQ(lhs.size(), 8u);
  EXPECT_EQ(lhs[6].Label, "LHS 7");
  const std::set<int> all{0, 1, 2, 3, 4, 5, 6, 7};
  EXPECT_EQ(Strata(lhs, 0, 100, 300), all) << "each stratum once per variable";
  EXPECT_EQ(Strata(lhs, 1, 40, 80), all);
  EXPECT_EQ(LatinHypercubeItems(1, ranges, 8, 42), lhs) << "the same seed, the same items";
  EXPECT_NE(LatinHypercubeItems(1, ranges, 8, 43), lhs);
}

// Ranges from half the baseline value to the value (or 1 to 2 where it is 0)
// keep within every check but the switches and Global/Local.
TEST(STDesigns, ProducedValuesPassTheChecksOfTheExamplesInputs) {
  const ProjectDocument project = Koalas();
  const clsScenario& baseline = project.scenarios.Item(1);
  test::FakeEngine engine;
  int checked = 0;
  for (const std::string& name : STVariableNames(baseline)) {
    if (name.find('?') != std::string::npos || name.starts_with("CatastrophesGL")) continue;
    const double b = LeadingNumber(STBaselineValue(baseline, name).value_or(""));
    const STRange range = b > 0 ? STRange{name, b / 2, b, 4} : STRange{name, 1, 2, 4};
    auto items = RangeItems(1, range);
    for (const STItem& item : LatinHypercubeItems(1, {range}, 7, 1)) items.push_back(item);
    for (const STItem& item : items) {
      EXPECT_EQ(CheckSTValue(name, item.Vals[0], baseline, engine), "OK") << name << " = " << item.Vals[0];
      ++checked;
    }
  }
  EXPECT_GT(checked, 500);
  EXPECT_TRUE(engine.formulas.empty()) << "plain values only";
}

}  // namespace
}  // namespace tamsic
