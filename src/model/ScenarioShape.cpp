#include "model/ScenarioShape.h"

#include <algorithm>

#include "model/TextNumbers.h"

namespace tamsic {

namespace {

// An empty or unfinished count shapes the grids as 0; the grids stop growing at the count's largest value.
int CountIn(const clsScenario& scenario, Field field) {
  return std::clamp(LeadingInt(scenario.Text(field)), 0, static_cast<int>(Describe(field).input.rule.high));
}

std::vector<std::string> PopulationLabels(const clsScenario& scenario) {
  const int count = CountIn(scenario, F("txtNumPop"));
  const Grid& labels = scenario.GetGrid(F("gridPopLabels"));
  std::vector<std::string> names;
  for (int p = 1; p <= count; ++p) {
    const auto row = static_cast<std::size_t>(p);
    const bool labelled = row < labels.rows() && labels.cols() > 1 && !labels.at(row, 1).empty();
    names.push_back(labelled ? labels.at(row, 1) : std::to_string(p));
  }
  return names;
}

}  // namespace

LayoutCounts CountsOf(const clsScenario& scenario) {
  LayoutCounts counts;
  counts.populations = PopulationLabels(scenario);
  counts.popStateVars = CountIn(scenario, F("txtNumPopStateVars"));
  counts.globalVars = CountIn(scenario, F("txtNumGlobalVars"));
  counts.indivStateVars = CountIn(scenario, F("txtNumIndividualStateParams"));
  counts.catastrophes = CountIn(scenario, F("txtNumCatast"));
  counts.ageReproF = CountIn(scenario, F("txtAgeReproF"));
  counts.ageReproM = CountIn(scenario, F("txtAgeReproM"));
  counts.maxAge = CountIn(scenario, F("txtMaxAgeRepro"));
  counts.maxLitters = CountIn(scenario, F("txtMaxLitters"));
  counts.maxProgeny = CountIn(scenario, F("txtMaxProgeny"));
  return counts;
}

void RelayoutScenario(clsScenario& scenario) {
  const LayoutCounts counts = CountsOf(scenario);
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    if (Describe(field).kind != FieldKind::Grid || field == F("Notes")) continue;
    scenario.SetGrid(field, Relayout(scenario.GetGrid(field), field, counts));
  }
}

std::vector<Field> OptionGroupOf(Field option) {
  static const std::vector<std::vector<Field>> groups = {
      {F("optExtinctDef_0"), F("optExtinctDef_1")},
      {F("optMPHLQ_0"), F("optMPHLQ_1"), F("optMPHLQ_2"), F("optMPHLQ_3"), F("optMPHLQ_4")},
      {F("optUseMean_0"), F("optUseMean_1")},
      {F("optStartWith_0"), F("optStartWith_1")},
      {F("GTallyOptButton_0"), F("GTallyOptButton_1"), F("GTallyOptButton_2")},
      {F("SSOptGenMgtPairMK_0"), F("SSOptGenMgtPairMK_1")}};
  for (const auto& group : groups)
    if (std::find(group.begin(), group.end(), option) != group.end()) return group;
  return {option};
}

}  // namespace tamsic
