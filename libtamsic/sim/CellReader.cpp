#include "sim/CellReader.h"

#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic::sim {

namespace {

InputPlace Place(Field field) { return {std::string(Describe(field).key), {}, {}}; }

bool Blank(const std::string& text) { return Trim(text).empty(); }

void Check(const ValueRule& rule, const std::string& text, const InputPlace& place) {
  if (const auto fault = CheckValue(rule, text)) throw InputError({place, *fault, rule});
}

// The number of a text that keeps its rule.
double Value(const ValueRule& rule, const std::string& text, const InputPlace& place) {
  Check(rule, text, place);
  const auto value = ExactNumber(text);
  if (!value) throw InputError({place, Fault::NotANumber, rule});
  return *value;
}

// Every value of a file must keep the rule its cell would.
void CheckSeries(const Rate& rate, const ValueRule& rule, const InputPlace& place) {
  const formula::FileSeries* series = rate.series();
  if (!series) return;
  const ValueRule number{rule.kind == ValueKind::WholeRate ? ValueKind::Whole : ValueKind::Number, rule.low, rule.high};
  for (std::size_t i = 0; i < series->size(); ++i)
    if (const auto fault = CheckValue(number, NumberToText(series->value(i))))
      throw SimError(place.Text() + ": the file " + series->name() + ", line " + std::to_string(series->line(i)) +
                     ": " + FaultWording(*fault, rule));
}

}  // namespace

void CheckInputs(const clsScenario& scenario) {
  if (auto fault = FirstFault(scenario)) throw InputError(std::move(*fault));
}

int CellReader::Whole(Field field, int empty) const {
  const std::string& text = scenario_.Text(field);
  if (Blank(text)) return empty;
  return static_cast<int>(Value(Describe(field).input.rule, text, Place(field)));
}

double CellReader::Number(Field field, double empty) const {
  const std::string& text = scenario_.Text(field);
  if (Blank(text)) return empty;
  return Value(Describe(field).input.rule, text, Place(field));
}

Rate CellReader::ReadRate(const std::string& text, const ValueRule& rule, const InputPlace& place,
                          double empty) const {
  Check(rule, text, place);
  Rate rate = Rate::Read(text, empty, place.Text(), folder_);
  countsUsed_ = countsUsed_ || rate.usesPopulationCounts();
  CheckSeries(rate, rule, place);
  return rate;
}

Rate CellReader::TextRate(Field field, double empty) const {
  return ReadRate(scenario_.Text(field), Describe(field).input.rule, Place(field), empty);
}

const Grid& CellReader::CheckedGrid(Field grid, std::size_t row, std::size_t col) const {
  const Grid& table = scenario_.GetGrid(grid);
  if (row >= table.rows() || col >= table.cols())
    throw SimError(std::string(Describe(grid).key) + ": the grid has " + std::to_string(table.rows()) + " rows and " +
                   std::to_string(table.cols()) + " columns, too few for the scenario's counts (row " +
                   std::to_string(row) + ", column " + std::to_string(col) + " is missing)");
  return table;
}

InputPlace CellReader::Where(Field grid, std::size_t row, std::size_t col) const {
  return CellPlace(grid, scenario_.GetGrid(grid), row, col);
}

Rate CellReader::GridRate(Field grid, std::size_t row, std::size_t col, double empty) const {
  const Grid& table = CheckedGrid(grid, row, col);
  return ReadRate(table.at(row, col), CellRule(grid, row, col), Where(grid, row, col), empty);
}

std::string CellReader::GridText(Field grid, std::size_t row, std::size_t col) const {
  return CheckedGrid(grid, row, col).at(row, col);
}

int CellReader::GridWhole(Field grid, std::size_t row, std::size_t col) const {
  const std::string& text = CheckedGrid(grid, row, col).at(row, col);
  if (Blank(text)) return 0;
  return static_cast<int>(Value(CellRule(grid, row, col), text, Where(grid, row, col)));
}

}  // namespace tamsic::sim
