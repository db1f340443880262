#include "pages/StateVariablePresets.h"

#include <algorithm>
#include <vector>

#include "model/ScenarioShape.h"
#include "model/TextNumbers.h"

namespace tamsic {

namespace {

struct Variable {
  const char* name;
  const char* init;
  const char* birth;  // nullptr: keeps its own value, "=IS" and its number
};

std::vector<Variable> VariablesOf(StatePreset preset) {
  if (preset == StatePreset::Outbreak)
    return {{"DiseaseState", "=1+(0.01>RAND)", "0"},
            {"StatePermanent", "0", "0"},
            {"DaysInState", "0", "0"},
            {"IsVaccinated", "0", "0"}};
  return {{"X", "-1", nullptr}, {"Y", "-1", nullptr}, {"SpatialIndex", "-1", nullptr}};
}

}  // namespace

std::optional<std::string> AddStateVariables(clsScenario& scenario, StatePreset preset, const IStringTable& words) {
  const std::vector<Variable> added = VariablesOf(preset);
  const int before = std::max(LeadingInt(scenario.Text(F("txtNumIndividualStateParams"))), 0);
  const int after = before + static_cast<int>(added.size());
  if (after > kMaxStateVars)
    return words.text(msg::kPresetThese) + std::to_string(added.size()) + words.text(msg::kPresetWouldMake) +
           std::to_string(after) + words.text(msg::kPresetAtMost) + std::to_string(kMaxStateVars) +
           words.text(msg::kPresetArePossible);
  scenario.SetText(F("txtNumIndividualStateParams"), std::to_string(after));
  const Field field = F("gridIndividualStateParams");
  Grid grid = Relayout(scenario.GetGrid(field), field, CountsOf(scenario));
  for (std::size_t i = 0; i < added.size(); ++i) {
    const std::size_t col = static_cast<std::size_t>(before) + i + 1;
    const std::string own = "=IS" + std::to_string(col);
    grid.at(1, col) = added[i].name;
    grid.at(2, col) = added[i].init;
    grid.at(3, col) = added[i].birth ? added[i].birth : own;
    grid.at(4, col) = own;
  }
  scenario.SetGrid(field, std::move(grid));
  return std::nullopt;
}

}  // namespace tamsic
