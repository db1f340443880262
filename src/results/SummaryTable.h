#pragma once
// The summary table of the results tab. Every record is one scenario, one
// block (population) and one year; the table lists the records of the
// chosen scenarios, blocks and years, one per row, grouped by what cboRows
// asks for (scenario, year or population), which also titles each row. A
// scenario column and a year column follow when the table holds more than
// one of them, and a "Within population" column when each population is
// listed on its own. Then come the chosen variables in the order of
// frmSpecify, each as its mean and, when cboCols asks, its SE or SD where
// that column exists.
#include <string>
#include <vector>

#include "model/Messages.h"
#include "results/ResultChoices.h"
#include "results/YearlyData.h"

namespace tamsic {

enum class RowDimension { Scenarios, Years, Populations };
enum class TableStatistic { Mean, MeanAndSE, MeanAndSD };

struct TableChoice {
  RowDimension rows = RowDimension::Scenarios;
  TableStatistic statistic = TableStatistic::Mean;
  PopulationChoice populations;
  int yearStep = 0;                    // see ChosenYears
  std::vector<std::string> variables;  // base labels, in column order
};

// A scenario whose yearly data are loaded.
struct TableScenario {
  std::string name;                      // UTF-8
  const YearlyData* data = nullptr;      // outlives the call
  std::vector<std::string> blockTitles;  // BlockTitles of the scenario
};

struct TableRow {
  std::string heading;
  std::vector<std::string> cells;  // an empty cell: no value
};

struct Table {
  std::string corner;  // what the row headings are
  std::vector<std::string> columns;
  std::vector<TableRow> rows;
};

// The columns the variables make: "N[extant]", then "SE(N[extant])" or
// "SD(N[extant])" when the statistic asks for it and the label exists.
std::vector<std::string> ValueColumns(const std::vector<std::string>& variables, TableStatistic statistic);

Table BuildSummaryTable(const std::vector<TableScenario>& scenarios, const TableChoice& choice,
                        const IStringTable& strings);

// The columns a new table starts with.
std::vector<std::string> DefaultTableVariables();

}  // namespace tamsic
