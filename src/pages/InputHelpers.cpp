#include "pages/InputHelpers.h"

#include <algorithm>
#include <cstdio>

#include "model/GridLayouts.h"
#include "model/InputRules.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

std::string Fixed2(double value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.2f", value);
  return buffer;
}

// Populations of the matrix: rows and columns 1 .. rows-1.
template <typename Visit>
void ForEachOffDiagonal(Grid& rates, Visit visit) {
  for (std::size_t r = 1; r < rates.rows(); ++r)
    for (std::size_t c = 1; c < rates.cols(); ++c)
      if (r != c) visit(rates.at(r, c));
}

void CopyPopulation(Grid& grid, bool inColumns, std::size_t from, std::size_t to, std::size_t firstValue) {
  if (inColumns) {
    if (from >= grid.cols() || to >= grid.cols()) return;
    for (std::size_t r = 1; r < grid.rows(); ++r) grid.at(r, to) = grid.at(r, from);
  } else {
    if (from >= grid.rows() || to >= grid.rows()) return;
    for (std::size_t c = firstValue; c < grid.cols(); ++c) grid.at(to, c) = grid.at(from, c);
  }
}

}  // namespace

bool FillDispersal(Grid& rates, std::string_view value) {
  const auto number = ExactNumber(value);
  if (!number) return false;
  ForEachOffDiagonal(rates, [&](std::string& cell) { cell = Fixed2(*number); });
  return true;
}

bool ApplyDispersalMultiplier(Grid& rates, std::string_view multiplier) {
  const auto factor = ExactNumber(multiplier);
  if (!factor) return false;
  const std::string typed(Trim(multiplier));
  ForEachOffDiagonal(rates, [&](std::string& cell) {
    if (cell.empty()) return;
    const auto number = ExactNumber(cell);
    cell = number ? Fixed2(*number * *factor) : cell + "*" + typed;
  });
  return true;
}

std::string ExportRateMatrix(const Grid& rates) {
  std::string text;
  for (std::size_t r = 1; r < rates.rows(); ++r) {
    for (std::size_t c = 1; c < rates.cols(); ++c) {
      if (c > 1) text += ';';
      text += rates.at(r, c);
    }
    text += "\r\n";
  }
  return text;
}

std::optional<std::string> ImportRateMatrix(Grid& rates, std::string_view file, const IStringTable& words) {
  std::vector<std::string_view> lines = Split(file, '\n');
  while (!lines.empty() && Trim(lines.back()).empty()) lines.pop_back();
  const std::size_t populations = rates.rows() > 0 ? rates.rows() - 1 : 0;
  if (lines.size() != populations)
    return words.text(msg::kRateFileHasLines) + std::to_string(lines.size()) +
           words.text(msg::kRateFileLinesButMatrix) + std::to_string(populations) +
           words.text(msg::kRateFileLinesNeeded);
  Grid imported = rates;
  for (std::size_t r = 0; r < lines.size(); ++r) {
    const auto fields = Split(Trim(lines[r]), ';');
    if (fields.size() != populations)
      return words.text(msg::kRateFileLine) + std::to_string(r + 1) + words.text(msg::kRateFileLineHas) +
             std::to_string(fields.size()) + words.text(msg::kRateFileValuesButMatrix) + std::to_string(populations) +
             words.text(msg::kRateFilePopulations);
    for (std::size_t c = 0; c < fields.size(); ++c) imported.at(r + 1, c + 1) = std::string(Trim(fields[c]));
  }
  rates = std::move(imported);
  return std::nullopt;
}

void CopyFemaleMortality(clsScenario& scenario) {
  const Grid& females = scenario.GetGrid(F("gridMortFemales"));
  Grid males = scenario.GetGrid(F("gridMortMales"));
  for (std::size_t r = 1; r < std::min(females.rows(), males.rows()); ++r)
    for (std::size_t c = 1; c < std::min(females.cols(), males.cols()); ++c) males.at(r, c) = females.at(r, c);
  scenario.SetGrid(F("gridMortMales"), std::move(males));
}

std::vector<Field> PopulationGrids() {
  std::vector<Field> all;
  for (int page = 0; page < 14; ++page)
    for (Field grid : PopulationGridsOfPage(page)) all.push_back(grid);
  return all;
}

std::vector<Field> PopulationGridsOfPage(int page) {
  switch (page) {
    case 2: return {F("gridPopLabels")};
    case 4: return {F("gridReproSys")};
    case 5: return {F("gridRepRates1"), F("gridRepRates2"), F("gridRepRates3"), F("gridRepRates4")};
    case 6: return {F("gridMortFemales"), F("gridMortMales")};
    case 7: return {F("gridCatastrophes1"), F("gridCatastrophes2")};
    case 8: return {F("gridDegMonop")};
    case 9: return {F("gridInitPopStable"), F("gridInitPopFemale"), F("gridInitPopMale")};
    case 10: return {F("gridCarryingCap1"), F("gridCarryingCap2")};
    case 11: return {F("gridHarvest"), F("gridHarvestF"), F("gridHarvestM")};
    case 12: return {F("gridSuppl"), F("gridSupplF"), F("gridSupplM")};
    default: return {};
  }
}

void CopyInputValues(clsScenario& scenario, std::size_t from, const std::vector<Field>& grids) {
  for (Field field : grids) {
    // The exact distributions are one table for all populations: nothing to copy.
    const GridShape shape = GridOf(field).shape;
    if (shape == GridShape::Distribution) continue;
    Grid grid = scenario.GetGrid(field);
    const bool inColumns = PopulationsInColumns(field);
    const std::size_t populations = (inColumns ? grid.cols() : grid.rows());
    // A population's name is its own; only its state variables are copied.
    const std::size_t firstValue = shape == GridShape::PopulationLabels ? 2 : 1;
    for (std::size_t to = from + 1; to < populations; ++to) CopyPopulation(grid, inColumns, from, to, firstValue);
    scenario.SetGrid(field, std::move(grid));
  }
}

}  // namespace tamsic
