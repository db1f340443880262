#include "sim/CellReader.h"

#include <cmath>

#include "model/TextNumbers.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

std::string Key(Field field) { return std::string(Describe(field).key); }

std::string Shown(double value) { return NumberToText(value); }

bool Blank(const std::string& text) { return text.find_first_not_of(" \t") == std::string::npos; }

}  // namespace

std::string OutOfRange(double value, Range range) {
  std::string text = "is " + Shown(value) + ", outside " + Shown(range.low);
  return range.high >= 1e300 ? text + " and above" : text + " .. " + Shown(range.high);
}

int CellReader::Whole(Field field, int low, int high, int empty) const {
  const std::string& text = scenario_.Text(field);
  if (Blank(text)) return empty;
  const auto number = ExactNumber(text);
  if (!number || *number != std::floor(*number))
    throw SimError(Key(field) + ": \"" + text + "\" is not a whole number");
  if (*number < low || *number > high)
    throw SimError(Key(field) + " " + OutOfRange(*number, {double(low), double(high)}));
  return static_cast<int>(*number);
}

double CellReader::Number(Field field, Range range, double empty) const {
  const std::string& text = scenario_.Text(field);
  if (Blank(text)) return empty;
  const auto number = ExactNumber(text);
  if (!number) throw SimError(Key(field) + ": \"" + text + "\" is not a number");
  if (*number < range.low || *number > range.high) throw SimError(Key(field) + " " + OutOfRange(*number, range));
  return *number;
}

namespace {

bool Outside(double value, Range range) { return value < range.low || value > range.high; }

// A constant and every value of a file must lie in the input's range; a
// function is clamped to it where it is used.
void CheckRange(const Rate& rate, Range range, const std::string& where) {
  if (rate.isConstant() && Outside(rate.constant(), range))
    throw SimError(where + " " + OutOfRange(rate.constant(), range));
  if (const formula::FileSeries* series = rate.series())
    for (std::size_t i = 0; i < series->size(); ++i)
      if (Outside(series->value(i), range))
        throw SimError(where + ": the file " + series->name() + ", line " + std::to_string(series->line(i)) +
                       ": the value " + OutOfRange(series->value(i), range));
}

}  // namespace

Rate CellReader::TextRate(Field field, Range range, double empty) const {
  Rate rate = Rate::Read(scenario_.Text(field), empty, Key(field), folder_);
  countsUsed_ = countsUsed_ || rate.usesPopulationCounts();
  CheckRange(rate, range, Key(field));
  return rate;
}

const Grid& CellReader::CheckedGrid(Field grid, std::size_t row, std::size_t col) const {
  const Grid& table = scenario_.GetGrid(grid);
  if (row >= table.rows() || col >= table.cols())
    throw SimError(Key(grid) + ": the grid has " + std::to_string(table.rows()) + " rows and " +
                   std::to_string(table.cols()) + " columns, too few for the scenario's counts (row " +
                   std::to_string(row) + ", column " + std::to_string(col) + " is missing)");
  return table;
}

std::string CellReader::Where(Field grid, std::size_t row, std::size_t col) const {
  const Grid& table = scenario_.GetGrid(grid);
  std::string where = Key(grid);
  if (row < table.rows() && !Blank(table.at(row, 0)) && row > 0) where += ", " + table.at(row, 0);
  else where += ", row " + std::to_string(row);
  if (col < table.cols() && table.rows() > 0 && !Blank(table.at(0, col))) where += ", " + table.at(0, col);
  else where += ", column " + std::to_string(col);
  return where;
}

Rate CellReader::GridRate(Field grid, std::size_t row, std::size_t col, Range range, double empty) const {
  const Grid& table = CheckedGrid(grid, row, col);
  const std::string where = Where(grid, row, col);
  Rate rate = Rate::Read(table.at(row, col), empty, where, folder_);
  countsUsed_ = countsUsed_ || rate.usesPopulationCounts();
  CheckRange(rate, range, where);
  return rate;
}

std::string CellReader::GridText(Field grid, std::size_t row, std::size_t col) const {
  return CheckedGrid(grid, row, col).at(row, col);
}

int CellReader::GridWhole(Field grid, std::size_t row, std::size_t col, int low, int high) const {
  const std::string& text = CheckedGrid(grid, row, col).at(row, col);
  if (Blank(text)) return 0;
  const auto number = ExactNumber(text);
  if (!number || *number != std::floor(*number))
    throw SimError(Where(grid, row, col) + ": \"" + text + "\" is not a whole number");
  if (*number < low || *number > high)
    throw SimError(Where(grid, row, col) + " " + OutOfRange(*number, {double(low), double(high)}));
  return static_cast<int>(*number);
}

}  // namespace tamsic::sim
