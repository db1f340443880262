#include "st/STInputs.h"

#include <array>
#include <charconv>

#include "model/TextSplit.h"

namespace tamsic {

namespace {

// How a variable's suffixes find its cell. Grids keep their heading row and
// label column, so population p is row (or column) p.
enum class Place {
  Scalar,     // a box of its own, no suffix
  PopRow,     // _Pop p: row p, column `line`
  PopColumn,  // _Pop p: row `line`, column p (settings in rows, populations in columns)
  AgePair,    // _Pop p_Age a: row p, the pair of age a from 0 (mean, then its EV)
  AgeColumn,  // _Pop p_Age a: row p, column a from 1
  CatPair     // _Pop p_Cat c: row p, the pair of catastrophe c from 1
};

struct Input {
  std::string_view base;
  Field field;
  Place place;
  int line = 0;
};

constexpr std::array kInputs = {
    Input{"NumberPopulations", F("txtNumPop"), Place::Scalar},
    Input{"LethalEquiv", F("txtLethalEquiv"), Place::Scalar},
    Input{"PercentLethal", F("txtPercentLethal"), Place::Scalar},
    Input{"EVConcordance?", F("chkEVConcord"), Place::Scalar},
    Input{"EVCorrAmongPops", F("txtEV"), Place::Scalar},
    Input{"DispersalSurvival", F("txtPercentDispSurvive"), Place::Scalar},
    Input{"DispersalModifier", F("txtDensDispersal"), Place::Scalar},
    Input{"MinAgeReproFemales", F("txtAgeReproF"), Place::Scalar},
    Input{"MinAgeReproMales", F("txtAgeReproM"), Place::Scalar},
    Input{"MaxAgeRepro", F("txtMaxAgeRepro"), Place::Scalar},
    Input{"SexRatio", F("txtSexRatio"), Place::Scalar},
    Input{"PercentBreed", F("gridRepRates1"), Place::PopRow, 1},
    Input{"PercentBreedEV", F("gridRepRates1"), Place::PopRow, 2},
    Input{"MeanProgenyPerYr", F("gridRepRates2"), Place::PopRow, 1},
    Input{"SDinProgenyPerYear", F("gridRepRates2"), Place::PopRow, 2},
    Input{"FemaleMortality", F("gridMortFemales"), Place::AgePair, 1},
    Input{"EVFemaleMort", F("gridMortFemales"), Place::AgePair, 2},
    Input{"MaleMortality", F("gridMortMales"), Place::AgePair, 1},
    Input{"EVMaleMort", F("gridMortMales"), Place::AgePair, 2},
    Input{"CatastrophesGL", F("gridCatastrophes1"), Place::CatPair, 1},
    Input{"CatastrophesFreq", F("gridCatastrophes1"), Place::CatPair, 2},
    Input{"CatastrophesReproSevere", F("gridCatastrophes2"), Place::CatPair, 1},
    Input{"CatastrophesSurviveSevere", F("gridCatastrophes2"), Place::CatPair, 2},
    Input{"PercentMalesBreed", F("gridDegMonop"), Place::PopColumn, 1},
    Input{"InitPopSize", F("gridInitPopStable"), Place::PopRow, 1},
    Input{"K", F("gridCarryingCap1"), Place::PopColumn, 1},
    Input{"K-SD", F("gridCarryingCap1"), Place::PopColumn, 2},
    Input{"KChangeYears", F("gridCarryingCap2"), Place::PopColumn, 2},
    Input{"KChangePercent", F("gridCarryingCap2"), Place::PopColumn, 3},
    Input{"Harvest?", F("gridHarvest"), Place::PopColumn, 1},
    Input{"HarvestFirstYear", F("gridHarvest"), Place::PopColumn, 2},
    Input{"HarvestLastYear", F("gridHarvest"), Place::PopColumn, 3},
    Input{"HarvestInterval", F("gridHarvest"), Place::PopColumn, 4},
    Input{"FemalesHarvested", F("gridHarvestF"), Place::AgeColumn},
    Input{"MalesHarvested", F("gridHarvestM"), Place::AgeColumn},
    Input{"Supplement?", F("gridSuppl"), Place::PopColumn, 1},
    Input{"SupplFirstYear", F("gridSuppl"), Place::PopColumn, 2},
    Input{"SupplLastYear", F("gridSuppl"), Place::PopColumn, 3},
    Input{"SupplInterval", F("gridSuppl"), Place::PopColumn, 4},
    Input{"FemalesSupplemented", F("gridSupplF"), Place::AgeColumn},
    Input{"MalesSupplemented", F("gridSupplM"), Place::AgeColumn},
};

// The number of a suffix such as "Pop2" or "Age10"; nothing when the part
// has another word or no whole number after it.
std::optional<int> SuffixNumber(std::string_view part, std::string_view word) {
  if (!part.starts_with(word) || part.size() == word.size()) return std::nullopt;
  int number = 0;
  const char* end = part.data() + part.size();
  const auto [stop, fault] = std::from_chars(part.data() + word.size(), end, number);
  if (fault != std::errc() || stop != end) return std::nullopt;
  return number;
}

std::optional<std::string> Cell(const Grid& grid, int row, int col) {
  if (row < 1 || col < 1 || static_cast<std::size_t>(row) >= grid.rows() ||
      static_cast<std::size_t>(col) >= grid.cols())
    return std::nullopt;
  return grid.at(row, col);
}

}  // namespace

std::optional<std::string> STInputText(const clsScenario& scenario, std::string_view name) {
  const auto parts = Split(name, '_');
  const Input* input = nullptr;
  for (const Input& candidate : kInputs)
    if (candidate.base == parts[0]) input = &candidate;
  if (input == nullptr) return std::nullopt;
  if (input->place == Place::Scalar)
    return parts.size() == 1 ? std::optional(scenario.ScalarText(input->field)) : std::nullopt;

  const bool twoSuffixes = input->place == Place::AgePair || input->place == Place::AgeColumn ||
                           input->place == Place::CatPair;
  if (parts.size() != (twoSuffixes ? 3u : 2u)) return std::nullopt;
  const auto population = SuffixNumber(parts[1], "Pop");
  const auto second = twoSuffixes ? SuffixNumber(parts[2], input->place == Place::CatPair ? "Cat" : "Age") : 0;
  if (!population || !second) return std::nullopt;
  const Grid& grid = scenario.GetGrid(input->field);
  switch (input->place) {
    case Place::PopRow: return Cell(grid, *population, input->line);
    case Place::PopColumn: return Cell(grid, input->line, *population);
    case Place::AgePair: return *second < 0 ? std::nullopt : Cell(grid, *population, 2 * *second + input->line);
    case Place::AgeColumn: return Cell(grid, *population, *second);
    case Place::CatPair: return Cell(grid, *population, 2 * (*second - 1) + input->line);
    case Place::Scalar: break;
  }
  return std::nullopt;
}

}  // namespace tamsic
