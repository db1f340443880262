#include "model/GridLayouts.h"

#include <algorithm>
#include <stdexcept>

namespace tamsic {

namespace {

using Headings = std::vector<std::string>;

std::string Numbered(const std::string& prefix, int n) { return prefix + std::to_string(n); }

// One row per population under a heading row of column titles.
Grid PerPopulationRows(const LayoutCounts& counts, const Headings& columns) {
  Grid grid(counts.populations.size() + 1, columns.size() + 1);
  for (std::size_t c = 0; c < columns.size(); ++c) grid.at(0, c + 1) = columns[c];
  for (std::size_t p = 0; p < counts.populations.size(); ++p) grid.at(p + 1, 0) = counts.populations[p];
  return grid;
}

// One column per population beside a column of row titles.
Grid PerPopulationColumns(const LayoutCounts& counts, const Headings& rows) {
  Grid grid(rows.size() + 1, counts.populations.size() + 1);
  for (std::size_t r = 0; r < rows.size(); ++r) grid.at(r + 1, 0) = rows[r];
  for (std::size_t p = 0; p < counts.populations.size(); ++p) grid.at(0, p + 1) = counts.populations[p];
  return grid;
}

// A count of 0 leaves a two-column grid that the page shows greyed out.
Grid StateVariables(int count, const std::string& prefix, const Headings& rows) {
  Grid grid(rows.size() + 1, count > 0 ? count + 1 : 2);
  for (std::size_t r = 0; r < rows.size(); ++r) grid.at(r + 1, 0) = rows[r];
  for (int v = 1; v <= count; ++v) grid.at(0, v) = Numbered(prefix, v);
  return grid;
}

Headings MortalityColumns(int firstOffspringAge) {
  Headings columns;
  for (int i = 0; i < firstOffspringAge; ++i) {
    const std::string span = std::to_string(i) + " to " + std::to_string(i + 1);
    columns.push_back("Mortality From Age " + span);
    columns.push_back("SD in " + span + " Mortality Due to EV");
  }
  columns.push_back("Annual Mortality After Age " + std::to_string(firstOffspringAge));
  columns.push_back("SD in Mortality After Age " + std::to_string(firstOffspringAge));
  return columns;
}

Headings AgeColumns(const std::string& prefix, int maxAge) {
  Headings columns;
  for (int age = 1; age <= maxAge; ++age) columns.push_back(prefix + " " + std::to_string(age));
  return columns;
}

// Ages 1 up to the age of first offspring, the last column holding all adults.
// Newborns are neither removed nor added.
Headings AgeClassColumns(int firstOffspringAge) {
  Headings columns;
  for (int age = 1; age < firstOffspringAge; ++age) columns.push_back("Age " + std::to_string(age));
  columns.push_back("Adults");
  return columns;
}

// Values 0..last (or first..last) in column 0 and a percent column beside them.
Grid Distribution(int first, int last, const std::string& what) {
  Grid grid(static_cast<std::size_t>(std::max(last - first + 1, 0)) + 1, 2);
  grid.at(0, 0) = what;
  grid.at(0, 1) = "%";
  for (int n = first; n <= last; ++n) grid.at(static_cast<std::size_t>(n - first + 1), 0) = std::to_string(n);
  return grid;
}

Headings CatastropheColumns(int count, const std::string& first, const std::string& second) {
  Headings columns;
  for (int c = 1; c <= count; ++c) {
    columns.push_back(first + " " + std::to_string(c));
    columns.push_back(second + " " + std::to_string(c));
  }
  return columns;
}

}  // namespace

Grid LayoutGrid(Field grid, const LayoutCounts& counts) {
  const std::string member(Describe(grid).member);
  const int pops = static_cast<int>(counts.populations.size());
  if (member == "gridPopLabels") {
    Headings columns{"Label"};
    for (int v = 1; v <= counts.popStateVars; ++v) columns.push_back(Numbered("PS", v));
    Grid g = PerPopulationRows(counts, columns);
    for (int p = 0; p < pops; ++p) g.at(p + 1, 0) = std::to_string(p + 1);
    return g;
  }
  if (member == "gridGlobalVars") return StateVariables(counts.globalVars, "GS", {"Function"});
  if (member == "gridIndividualStateParams")
    return StateVariables(counts.indivStateVars, "IS", {"Name", "Init fn", "Birth fn", "Transition fn"});
  if (member == "gridDispRates") return PerPopulationRows(counts, counts.populations);
  if (member == "gridReproSys")
    return PerPopulationColumns(counts, {"Density dependent?", "% Breeding at Low Density, P(0)",
                                         "% Breeding at Carrying Capacity, P(K)", "Allee Parameter, A",
                                         "Steepness Parameter, B"});
  if (member == "gridRepRates1") return PerPopulationRows(counts, {"% Adult Females Breeding", "EV in % Breeding"});
  if (member == "gridRepRates2") return PerPopulationRows(counts, {"Mean progeny per brood", "SD"});
  if (member == "gridRepRates3") return Distribution(0, counts.maxProgeny, "Offspring per brood");
  if (member == "gridRepRates4") return Distribution(1, counts.maxLitters, "Broods per year");
  if (member == "gridMortFemales") return PerPopulationRows(counts, MortalityColumns(counts.ageReproF));
  if (member == "gridMortMales") return PerPopulationRows(counts, MortalityColumns(counts.ageReproM));
  if (member == "gridCatastropheLabels") {
    Grid g(static_cast<std::size_t>(counts.catastrophes), 2);
    for (int c = 0; c < counts.catastrophes; ++c) g.at(c, 0) = "Catastrophe " + std::to_string(c + 1);
    return g;
  }
  if (member == "gridCatastrophes1")
    return PerPopulationRows(counts, CatastropheColumns(counts.catastrophes, "Global/Local", "Frequency %"));
  if (member == "gridCatastrophes2")
    return PerPopulationRows(counts, CatastropheColumns(counts.catastrophes, "Reproduction", "Survival"));
  if (member == "gridDegMonop")
    return PerPopulationColumns(counts, {"% Males in Breeding Pool", "% Males Successfully Siring Offspring",
                                         "Mean Offspring per Successful Sire"});
  if (member == "gridInitPopStable") return PerPopulationRows(counts, {"Initial population size"});
  if (member == "gridInitPopFemale") return PerPopulationRows(counts, AgeColumns("Females Age", counts.maxAge));
  if (member == "gridInitPopMale") return PerPopulationRows(counts, AgeColumns("Males Age", counts.maxAge));
  if (member == "gridCarryingCap1") return PerPopulationColumns(counts, {"Carrying Capacity (K)", "SD in K Due to EV"});
  if (member == "gridCarryingCap2")
    return PerPopulationColumns(counts, {"Trend in K?", "Over how many years?", "% annual increase/decrease"});
  if (member == "gridHarvest")
    return PerPopulationColumns(counts, {"Population Harvested?", "First Year of Harvest", "Last Year of Harvest",
                                         "Interval Between Harvests", "Optional Criterion for Harvest"});
  if (member == "gridSuppl")
    return PerPopulationColumns(counts, {"Population Supplemented?", "First Year of Supplement",
                                         "Last Year of Supplement", "Interval Between Supplements",
                                         "Optional Criterion for Supplement"});
  if (member == "gridHarvestF" || member == "gridSupplF")
    return PerPopulationRows(counts, AgeClassColumns(counts.ageReproF));
  if (member == "gridHarvestM" || member == "gridSupplM")
    return PerPopulationRows(counts, AgeClassColumns(counts.ageReproM));
  if (member == "Notes") return Grid(14, 11);
  throw std::logic_error(member + " is not a grid");
}

bool PopulationsInColumns(Field grid) {
  const std::string_view member = Describe(grid).member;
  for (std::string_view name : {"gridReproSys", "gridDegMonop", "gridCarryingCap1", "gridCarryingCap2",
                                "gridHarvest", "gridSuppl"})
    if (member == name) return true;
  return false;
}

Grid Relayout(const Grid& old, Field grid, const LayoutCounts& counts) {
  Grid fresh = LayoutGrid(grid, counts);
  // The catastrophe labels have no heading row: every row is a catastrophe.
  const std::size_t firstRow = Describe(grid).member == "gridCatastropheLabels" ? 0 : 1;
  for (std::size_t r = firstRow; r < std::min(old.rows(), fresh.rows()); ++r)
    for (std::size_t c = 1; c < std::min(old.cols(), fresh.cols()); ++c) fresh.at(r, c) = old.at(r, c);
  return fresh;
}

}  // namespace tamsic
