#include "model/GridLayouts.h"

#include <algorithm>
#include <stdexcept>

#include "model/HeadingWords.h"
#include "model/InputRules.h"

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
    columns.push_back(MakeHeading(MadeHeading::MortalityFrom, i));
    columns.push_back(MakeHeading(MadeHeading::MortalitySd, i));
  }
  columns.push_back(MakeHeading(MadeHeading::MortalityAfter, firstOffspringAge));
  columns.push_back(MakeHeading(MadeHeading::MortalitySdAfter, firstOffspringAge));
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
  columns.push_back(MakeHeading(MadeHeading::Adults));
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

int CountOf(Count count, const LayoutCounts& counts) {
  switch (count) {
    case Count::None: return 0;
    case Count::PopStateVars: return counts.popStateVars;
    case Count::GlobalVars: return counts.globalVars;
    case Count::IndivStateVars: return counts.indivStateVars;
    case Count::Catastrophes: return counts.catastrophes;
    case Count::MaxAge: return counts.maxAge;
    case Count::MaxLitters: return counts.maxLitters;
    case Count::MaxProgeny: return counts.maxProgeny;
  }
  return 0;
}

int FirstOffspringAge(Sex sex, const LayoutCounts& counts) {
  return sex == Sex::Female ? counts.ageReproF : counts.ageReproM;
}

// The headings of the lines that are not populations.
Headings LineHeadings(const GridDescription& d, const LayoutCounts& counts) {
  switch (d.lines) {
    case Lines::MortalityPairs: return MortalityColumns(FirstOffspringAge(d.sex, counts));
    case Lines::Ages: return AgeColumns(std::string(d.line[0].heading), counts.maxAge);
    case Lines::AgeClasses: return AgeClassColumns(FirstOffspringAge(d.sex, counts));
    case Lines::CatastrophePairs:
      return CatastropheColumns(counts.catastrophes, std::string(d.line[0].heading), std::string(d.line[1].heading));
    case Lines::Fixed:
    case Lines::Counted: break;
  }
  Headings headings;
  for (const GridLine& line : d.line) headings.emplace_back(line.heading);
  return headings;
}

Grid PopulationLabels(const GridDescription& d, const LayoutCounts& counts) {
  Headings columns{std::string(d.line[0].heading)};
  for (int v = 1; v <= counts.popStateVars; ++v) columns.push_back(Numbered(std::string(d.prefix), v));
  Grid grid = PerPopulationRows(counts, columns);
  for (std::size_t p = 0; p < counts.populations.size(); ++p) grid.at(p + 1, 0) = std::to_string(p + 1);
  return grid;
}

Grid CatastropheLabels(const GridDescription& d, const LayoutCounts& counts) {
  Grid grid(static_cast<std::size_t>(counts.catastrophes), 2);
  for (int c = 0; c < counts.catastrophes; ++c) grid.at(c, 0) = Numbered(std::string(d.line[0].heading) + " ", c + 1);
  return grid;
}

}  // namespace

Grid LayoutGrid(Field grid, const LayoutCounts& counts) {
  const GridDescription& d = GridOf(grid);
  switch (d.shape) {
    case GridShape::Notes: return Grid(14, 11);
    case GridShape::PopulationLabels: return PopulationLabels(d, counts);
    case GridShape::StateVariables:
      return StateVariables(CountOf(d.count, counts), std::string(d.prefix), LineHeadings(d, counts));
    case GridShape::PopulationRows: return PerPopulationRows(counts, LineHeadings(d, counts));
    case GridShape::PopulationColumns: return PerPopulationColumns(counts, LineHeadings(d, counts));
    case GridShape::DispersalMatrix: return PerPopulationRows(counts, counts.populations);
    case GridShape::Distribution:
      return Distribution(d.first, CountOf(d.count, counts), std::string(d.line[0].heading));
    case GridShape::CatastropheLabels: return CatastropheLabels(d, counts);
  }
  throw std::logic_error("a grid of no known shape");
}

bool PopulationsInColumns(Field grid) { return GridOf(grid).shape == GridShape::PopulationColumns; }

Grid Relayout(const Grid& old, Field grid, const LayoutCounts& counts) {
  Grid fresh = LayoutGrid(grid, counts);
  // The catastrophe labels have no heading row: every row is a catastrophe.
  const std::size_t firstRow = GridOf(grid).shape == GridShape::CatastropheLabels ? 0 : 1;
  for (std::size_t r = firstRow; r < std::min(old.rows(), fresh.rows()); ++r)
    for (std::size_t c = 1; c < std::min(old.cols(), fresh.cols()); ++c) fresh.at(r, c) = old.at(r, c);
  return fresh;
}

Grid DefaultGrid(Field grid, const LayoutCounts& counts) {
  const GridDescription& d = GridOf(grid);
  Grid fresh = LayoutGrid(grid, counts);
  for (std::size_t line = 0; line < d.defaults.size(); ++line) {
    const std::string value(d.defaults[line]);
    switch (d.shape) {
      case GridShape::PopulationLabels:
      case GridShape::PopulationRows:
        for (std::size_t r = 1; r < fresh.rows() && line + 1 < fresh.cols(); ++r) fresh.at(r, line + 1) = value;
        break;
      case GridShape::PopulationColumns:
        for (std::size_t c = 1; c < fresh.cols() && line + 1 < fresh.rows(); ++c) fresh.at(line + 1, c) = value;
        break;
      case GridShape::Distribution:
        if (line + 1 < fresh.rows()) fresh.at(line + 1, 1) = value;
        break;
      case GridShape::CatastropheLabels:
        if (line < fresh.rows()) fresh.at(line, 1) = value;
        break;
      default: break;
    }
  }
  return fresh;
}

}  // namespace tamsic
