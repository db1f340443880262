#include "pages/AfterEdit.h"

#include "functions/BreedingFunction.h"
#include "model/CellValue.h"
#include "model/ScenarioShape.h"
#include "pages/InputChecks.h"

namespace tamsic {

namespace {

bool SameShape(const LayoutCounts& a, const LayoutCounts& b) {
  return a.populations == b.populations && a.popStateVars == b.popStateVars && a.globalVars == b.globalVars &&
         a.indivStateVars == b.indivStateVars && a.catastrophes == b.catastrophes &&
         a.ageReproF == b.ageReproF && a.ageReproM == b.ageReproM && a.maxAge == b.maxAge &&
         a.maxLitters == b.maxLitters && a.maxProgeny == b.maxProgeny;
}

bool NewlyOn(const clsScenario& before, const clsScenario& after, Field check) {
  return after.Check(check) != 0 && before.Check(check) == 0;
}

void DefaultTries(const clsScenario& before, clsScenario& after) {
  const Field tries = F("txtGenMgtNumTimesTryFindMate");
  if (!after.Text(tries).empty()) return;
  const Field limitation = F("txtGenMgtPairingLimitation");
  const bool limitationFilled = !after.Text(limitation).empty() && before.Text(limitation) != after.Text(limitation);
  if (NewlyOn(before, after, F("chkGenMgtPreventMatingsF")) || limitationFilled) after.SetText(tries, "10");
}

void WriteBreedingFunctions(clsScenario& scenario) {
  const Grid& system = scenario.GetGrid(F("gridReproSys"));
  if (system.rows() < 6) return;
  std::vector<DensityParameters> populations;
  for (std::size_t p = 1; p < system.cols(); ++p)
    populations.push_back({system.at(1, p) == "1", system.at(2, p), system.at(3, p), system.at(4, p), system.at(5, p)});
  Grid rates = scenario.GetGrid(F("gridRepRates1"));
  for (const BreedingFunctionCell& cell : BreedingFunctionCells(populations)) {
    const auto row = static_cast<std::size_t>(cell.population);
    if (row < rates.rows() && rates.cols() > 1) rates.at(row, 1) = cell.function;
  }
  scenario.SetGrid(F("gridRepRates1"), std::move(rates));
}

void FillExactRemainder(clsScenario& scenario, Field field) {
  Grid grid = scenario.GetGrid(field);
  if (grid.rows() < 2 || grid.cols() < 2) return;
  grid.at(grid.rows() - 1, 1) = ExactDistributionRemainder(grid);
  scenario.SetGrid(field, std::move(grid));
}

bool GridHasFunction(const Grid& grid) {
  for (std::size_t r = 1; r < grid.rows(); ++r)
    for (std::size_t c = 1; c < grid.cols(); ++c)
      if (ClassifyCell(grid.at(r, c)) == CellKind::Function) return true;
  return false;
}

}  // namespace

void AfterEdit(const clsScenario& before, clsScenario& after) {
  if (!SameShape(CountsOf(before), CountsOf(after))) RelayoutScenario(after);
  if (after.Truth(F("optMPHLQ_2"))) after.SetText(F("txtSexRatio"), "0");
  DefaultTries(before, after);
  const Field modifier = F("txtDensDispersal");
  if (after.Text(modifier).empty() && before.Text(modifier) != after.Text(modifier)) after.SetText(modifier, " ");
  if (before.GetGrid(F("gridReproSys")) != after.GetGrid(F("gridReproSys"))) WriteBreedingFunctions(after);
  FillExactRemainder(after, F("gridRepRates3"));
  FillExactRemainder(after, F("gridRepRates4"));
  after.usingformula = AnyInputIsFunction(after);
}

bool AnyRateIsFunction(const clsScenario& scenario) {
  for (Field field : {F("gridRepRates1"), F("gridRepRates2"), F("gridMortFemales"), F("gridMortMales"),
                      F("gridCatastrophes1"), F("gridCatastrophes2"), F("gridDegMonop"), F("gridCarryingCap1")})
    if (GridHasFunction(scenario.GetGrid(field))) return true;
  return false;
}

bool AnyInputIsFunction(const clsScenario& scenario) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const FieldKind kind = Describe(field).kind;
    if (kind == FieldKind::Text && ClassifyCell(scenario.Text(field)) == CellKind::Function) return true;
    if (kind == FieldKind::Grid && field != F("Notes") && GridHasFunction(scenario.GetGrid(field))) return true;
  }
  return false;
}

void WarnAboutRateFunctions(const clsScenario& before, const clsScenario& after, Messages& messages) {
  if (!AnyRateIsFunction(after)) return;
  if (after.Truth(F("optStartWith_0")) && !before.Truth(F("optStartWith_0")))
    messages.show(messages.text(msg::kStableAgesWithFunctions), msg::kCaution, MsgIcon::None);
  if (NewlyOn(before, after, F("chkGenMgtBreedToMaintinK")))
    messages.show(messages.text(msg::kBreedToKWithFunctions), msg::kWarning, MsgIcon::None);
}

}  // namespace tamsic
