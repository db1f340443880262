#pragma once
// What the analysis shows of a sensitivity test's results for one choice of
// result, year and population: a table and a graph in one of three
// groupings, and the ranking of the varied inputs.
//
// - By ST level: a row per item with its label, its ST scenario, the value
//   of each input it varies and the result; the graph a bar per item.
// - By variable: for each varied input, the items that vary it sorted by
//   the value it took, with the baseline at its own value; the graph a line
//   of result against value per input.
// - By scheme: every item in the scheme's order; the graph the result
//   against the item's number.
// Items without a result keep their row with an empty result cell.
#include <string>
#include <vector>

#include "model/Messages.h"
#include "results/GraphSeries.h"
#include "results/SummaryTable.h"
#include "st/STAnalysis.h"
#include "st/STRegression.h"

namespace tamsic {

// In the order of the grouping choices.
enum class STGrouping { ByLevel, ByVariable, ByScheme };

struct STGraphLine {
  std::string name;
  std::vector<GraphPoint> points;
  // False when the line's items also change other inputs each in its own way (a
  // Latin hypercube, a factorial): the points are then a scatter, not a curve.
  bool joined = true;
};

struct STView {
  STGrouping grouping = STGrouping::ByLevel;
  Table table;
  std::vector<STGraphLine> lines;
  // For bars: one category per point of the single line, in its order.
  std::vector<std::string> categories;
  std::string xTitle;
  std::string yTitle;
};

STView BuildSTView(const STAnalysisData& analysis, const STResultChoice& choice, STGrouping grouping,
                   const IStringTable& strings);

struct STRanking {
  Ranking ranking;
  std::vector<std::string> leftOut;  // labels of items with a result but an input that is not a number
};

// The ranking over the items that have a result and a number for every varied input.
STRanking RankSTInputs(const STAnalysisData& analysis, const STResultChoice& choice);

// The items without the chosen result, each as its label and scenario, and why
// ("Breeding -10% (ST.1): not run yet, there is no file .../Koalas_ST.1.dat").
std::vector<std::string> ItemsWithoutResults(const STAnalysisData& analysis, const STResultChoice& choice,
                                             const IStringTable& strings);

}  // namespace tamsic
