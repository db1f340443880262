#include "st/STTargets.h"

#include "model/TextNumbers.h"
#include "st/basST.h"

namespace tamsic {

namespace {

// How the population, age class or catastrophe of a name picks the cell.
enum class Place {
  Record,             // a text or check box of the record
  PopulationRow,      // row p, column `line`
  PopulationColumn,   // row `line`, column p
  MortalityMean,      // row p, the mean of age class a (from 0)
  MortalitySd,        // row p, the SD of age class a (from 0)
  CatastropheFirst,   // row p, the first column of catastrophe c
  CatastropheSecond,  // row p, the second column of catastrophe c
  AgeClass,           // row p, column a (from 1; the last column holds all adults)
};

struct BaseVariable {
  std::string_view name;
  bool exact;
  Field field;
  Place place = Place::Record;
  std::size_t line = 0;
  STStore store = STStore::Cell;
  STCellKind kind = STCellKind::Value;
};

constexpr BaseVariable Scalar(std::string_view name, Field field) {
  return {name, true, field, Place::Record, 0, STStore::Text};
}

// In the order in which names are matched when values are applied.
constexpr BaseVariable kBaseVariables[] = {
    Scalar("LethalEquiv", F("txtLethalEquiv")),
    Scalar("PercentLethal", F("txtPercentLethal")),
    {"EVConcordance?", true, F("chkEVConcord"), Place::Record, 0, STStore::Check, STCellKind::Switch},
    Scalar("EVCorrAmongPops", F("txtEV")),
    Scalar("DispersalModifier", F("txtDensDispersal")),
    Scalar("DispersalSurvival", F("txtPercentDispSurvive")),
    Scalar("MinAgeReproMales", F("txtAgeReproM")),
    Scalar("MinAgeReproFemales", F("txtAgeReproF")),
    {"FemaleMortality", false, F("gridMortFemales"), Place::MortalityMean},
    {"EVFemaleMort", false, F("gridMortFemales"), Place::MortalitySd},
    {"MaleMortality", false, F("gridMortMales"), Place::MortalityMean},
    {"EVMaleMort", false, F("gridMortMales"), Place::MortalitySd},
    Scalar("MaxAgeRepro", F("txtMaxAgeRepro")),
    Scalar("SexRatio", F("txtSexRatio")),
    {"PercentBreedEV", false, F("gridRepRates1"), Place::PopulationRow, 2},
    {"PercentBreed", false, F("gridRepRates1"), Place::PopulationRow, 1},
    {"MeanProgenyPerYr", false, F("gridRepRates2"), Place::PopulationRow, 1},
    {"SDinProgenyPerYear", false, F("gridRepRates2"), Place::PopulationRow, 2},
    {"CatastrophesGL", false, F("gridCatastrophes1"), Place::CatastropheFirst, 0, STStore::Cell, STCellKind::Place},
    {"CatastrophesFreq", false, F("gridCatastrophes1"), Place::CatastropheSecond},
    {"CatastrophesReproSevere", false, F("gridCatastrophes2"), Place::CatastropheFirst},
    {"CatastrophesSurviveSevere", false, F("gridCatastrophes2"), Place::CatastropheSecond},
    {"PercentMalesBreed", false, F("gridDegMonop"), Place::PopulationColumn, 1},
    {"InitPopSize", false, F("gridInitPopStable"), Place::PopulationRow, 1},
    {"KChangeYears", false, F("gridCarryingCap2"), Place::PopulationColumn, 2},
    {"KChangePercent", false, F("gridCarryingCap2"), Place::PopulationColumn, 3},
    {"K-SD", false, F("gridCarryingCap1"), Place::PopulationColumn, 2},
    {"K", false, F("gridCarryingCap1"), Place::PopulationColumn, 1},
    {"Harvest?", false, F("gridHarvest"), Place::PopulationColumn, 1, STStore::Cell, STCellKind::Switch},
    {"HarvestFirstYear", false, F("gridHarvest"), Place::PopulationColumn, 2},
    {"HarvestLastYear", false, F("gridHarvest"), Place::PopulationColumn, 3},
    {"HarvestInterval", false, F("gridHarvest"), Place::PopulationColumn, 4},
    {"Supplement?", false, F("gridSuppl"), Place::PopulationColumn, 1, STStore::Cell, STCellKind::Switch},
    {"SupplFirstYear", false, F("gridSuppl"), Place::PopulationColumn, 2},
    {"SupplLastYear", false, F("gridSuppl"), Place::PopulationColumn, 3},
    {"SupplInterval", false, F("gridSuppl"), Place::PopulationColumn, 4},
    {"FemalesHarvested", false, F("gridHarvestF"), Place::AgeClass},
    {"MalesHarvested", false, F("gridHarvestM"), Place::AgeClass},
    {"FemalesSupplemented", false, F("gridSupplF"), Place::AgeClass},
    {"MalesSupplemented", false, F("gridSupplM"), Place::AgeClass},
    Scalar("NumberPopulations", F("txtNumPop")),
};

const BaseVariable* Match(std::string_view name) {
  for (const BaseVariable& base : kBaseVariables)
    if (base.exact ? name == base.name : name.find(base.name) != std::string_view::npos) return &base;
  return nullptr;
}

// The cell of the population, age class or catastrophe; nothing for a number
// that would land on a heading or before the first age class.
std::optional<std::pair<std::size_t, std::size_t>> CellOf(const BaseVariable& base, std::string_view name) {
  const int p = STPopulationNumber(name);
  const int n = STAgeOrCatastropheNumber(name);
  const int lowest = base.place == Place::MortalityMean || base.place == Place::MortalitySd ? 0 : 1;
  const bool usesNumber = base.place != Place::PopulationRow && base.place != Place::PopulationColumn;
  if (p < 1 || (usesNumber && n < lowest)) return std::nullopt;
  const auto row = static_cast<std::size_t>(p);
  const auto at = static_cast<std::size_t>(n);
  switch (base.place) {
    case Place::Record: break;
    case Place::PopulationRow: return std::pair{row, base.line};
    case Place::PopulationColumn: return std::pair{base.line, row};
    case Place::MortalityMean: return std::pair{row, 1 + 2 * at};
    case Place::MortalitySd: return std::pair{row, 2 + 2 * at};
    case Place::CatastropheFirst: return std::pair{row, 2 * at - 1};
    case Place::CatastropheSecond: return std::pair{row, 2 * at};
    case Place::AgeClass: return std::pair{row, at};
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string_view> AppliedBaseName(std::string_view name) {
  const BaseVariable* base = Match(name);
  if (!base) return std::nullopt;
  return base->name;
}

std::optional<STTarget> TargetOf(std::string_view name) {
  const BaseVariable* base = Match(name);
  if (!base) return std::nullopt;
  STTarget target{base->field, base->store, base->kind};
  if (base->place == Place::Record) return target;
  const auto cell = CellOf(*base, name);
  if (!cell) return std::nullopt;
  target.row = cell->first;
  target.col = cell->second;
  return target;
}

std::optional<std::string> ValueAt(const clsScenario& scenario, const STTarget& target) {
  switch (target.store) {
    case STStore::Text: return scenario.Text(target.field);
    case STStore::Check: return std::to_string(scenario.Check(target.field));
    case STStore::Cell: break;
  }
  const Grid& grid = scenario.GetGrid(target.field);
  if (target.row >= grid.rows() || target.col >= grid.cols()) return std::nullopt;
  return grid.at(target.row, target.col);
}

void StoreAt(clsScenario& scenario, const STTarget& target, const std::string& text) {
  switch (target.store) {
    case STStore::Text: scenario.SetText(target.field, text); return;
    case STStore::Check: scenario.SetCheck(target.field, LeadingInt(text)); return;
    case STStore::Cell: break;
  }
  Grid grid = scenario.GetGrid(target.field);
  if (target.row >= grid.rows() || target.col >= grid.cols()) return;
  grid.at(target.row, target.col) = text;
  scenario.SetGrid(target.field, std::move(grid));
}

}  // namespace tamsic
