#include "model/ScenarioShape.h"

#include <algorithm>

#include "model/TextNumbers.h"

namespace tamsic {

namespace {

int Count(const clsScenario& scenario, Field field, int low, int high) {
  return std::clamp(LeadingInt(scenario.Text(field)), low, high);
}

std::vector<std::string> PopulationLabels(const clsScenario& scenario) {
  const int count = Count(scenario, F("txtNumPop"), 0, kMaxPopulations);
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
  counts.popStateVars = Count(scenario, F("txtNumPopStateVars"), 0, kMaxStateVars);
  counts.globalVars = Count(scenario, F("txtNumGlobalVars"), 0, kMaxStateVars);
  counts.indivStateVars = Count(scenario, F("txtNumIndividualStateParams"), 0, kMaxStateVars);
  counts.catastrophes = Count(scenario, F("txtNumCatast"), 0, kMaxCatastrophes);
  counts.ageReproF = Count(scenario, F("txtAgeReproF"), 0, kMaxAge);
  counts.ageReproM = Count(scenario, F("txtAgeReproM"), 0, kMaxAge);
  counts.maxAge = Count(scenario, F("txtMaxAgeRepro"), 0, kMaxAge);
  counts.maxLitters = Count(scenario, F("txtMaxLitters"), 0, kMaxBroodsOrProgeny);
  counts.maxProgeny = Count(scenario, F("txtMaxProgeny"), 0, kMaxBroodsOrProgeny);
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
