#include "results/SummaryTable.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "results/ResultVariables.h"
#include "results/TableExport.h"

namespace tamsic {

namespace {

struct Record {
  std::size_t scenario;
  int block;
  int year;
  bool metapopulation;
};

// The order of the records: the row dimension first, then the others.
auto SortKey(const Record& r, RowDimension rows) {
  switch (rows) {
    case RowDimension::Years: return std::make_tuple(r.year, 0, r.scenario, r.block, 0);
    case RowDimension::Populations:
      return std::make_tuple(r.metapopulation ? 1 : 0, r.metapopulation ? 0 : r.block, r.scenario, 0, r.year);
    case RowDimension::Scenarios: break;
  }
  return std::make_tuple(0, 0, r.scenario, r.block, r.year);
}

}  // namespace

std::vector<std::string> ValueColumns(const std::vector<std::string>& variables, TableStatistic statistic) {
  std::vector<std::string> columns;
  for (const std::string& variable : variables) {
    if (ResultNumber(variable) == 0) continue;
    columns.push_back(variable);
    const int modifier = statistic == TableStatistic::MeanAndSE   ? kStandardError
                         : statistic == TableStatistic::MeanAndSD ? kStandardDeviation
                                                                  : kMean;
    if (modifier != kMean && ModifiersApply(variable) && ChoiceNumber(variable, modifier) != 0)
      columns.push_back(*ModifiedLabel(variable, modifier));
  }
  return columns;
}

Table BuildSummaryTable(const std::vector<TableScenario>& scenarios, const TableChoice& choice,
                        const IStringTable& strings) {
  std::vector<Record> records;
  for (std::size_t s = 0; s < scenarios.size(); ++s) {
    const YearlyDataShape& shape = scenarios[s].data->shape();
    for (int block : ChosenBlocks(choice.populations, shape))
      for (int year : ChosenYears(choice.yearStep, shape.years))
        records.push_back({s, block, year, shape.populations > 1 && block == shape.metapopulationBlock()});
  }
  std::stable_sort(records.begin(), records.end(), [&](const Record& a, const Record& b) {
    return SortKey(a, choice.rows) < SortKey(b, choice.rows);
  });

  const auto title = [&](const Record& r) { return scenarios[r.scenario].blockTitles.at(r.block); };
  std::set<std::size_t> scenarioSet;
  std::set<std::string> populationSet;
  std::set<int> yearSet;
  for (const Record& r : records) {
    scenarioSet.insert(r.scenario);
    populationSet.insert(title(r));
    yearSet.insert(r.year);
  }
  const bool scenarioColumn = choice.rows != RowDimension::Scenarios && scenarioSet.size() > 1;
  // One population or the whole system of each scenario needs no column, even
  // when the titles differ (a scenario of one population is its own whole).
  const bool populationColumn = choice.rows != RowDimension::Populations &&
                                choice.populations.kind == PopulationChoice::Kind::Within && populationSet.size() > 1;
  const bool yearColumn = choice.rows != RowDimension::Years && yearSet.size() > 1;

  Table table;
  table.corner = choice.rows == RowDimension::Scenarios ? strings.text(1927)
                 : choice.rows == RowDimension::Years   ? strings.text(1928)
                                                        : strings.text(1926);
  if (scenarioColumn) table.columns.push_back(strings.text(1927));
  if (populationColumn) table.columns.push_back(strings.text(1925));
  if (yearColumn) table.columns.push_back(strings.text(1928));
  const auto values = ValueColumns(choice.variables, choice.statistic);
  table.columns.insert(table.columns.end(), values.begin(), values.end());

  for (const Record& r : records) {
    TableRow row;
    row.heading = choice.rows == RowDimension::Scenarios ? scenarios[r.scenario].name
                  : choice.rows == RowDimension::Years   ? strings.text(1929) + std::to_string(r.year)
                                                         : title(r);
    if (scenarioColumn) row.cells.push_back(scenarios[r.scenario].name);
    if (populationColumn) row.cells.push_back(title(r));
    if (yearColumn) row.cells.push_back(std::to_string(r.year));
    for (const std::string& label : values) {
      const auto value = scenarios[r.scenario].data->Value(r.block, r.year, ResultNumber(label));
      row.cells.push_back(value ? FormatNumber(*value) : std::string());
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

std::vector<std::string> DefaultTableVariables() { return {"P[extinct]", "Stoch.r", "N[extant]", "GeneDiv"}; }

}  // namespace tamsic
