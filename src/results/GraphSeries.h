#pragma once
// The lines of a results graph: a variable against the year for one block
// of a scenario's yearly data, with a band of the mean plus and minus its SE
// or SD; and the deterministic projection of N that the engine answers.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "results/YearlyData.h"

namespace tamsic {

struct GraphPoint {
  double x;
  double y;
  bool operator==(const GraphPoint&) const = default;
};

enum class GraphBand { None, StandardError, StandardDeviation };

struct GraphSeries {
  std::vector<GraphPoint> points;
  // Mean - and + the band's statistic, year by year; empty when no band was
  // asked for or the variable has no such column (P[survive] has no SD).
  std::vector<GraphPoint> lower;
  std::vector<GraphPoint> upper;
};

// Nothing when the variable under the modifier has no column. Det.r and
// MedianTE take no modifier, and a band goes with the mean only.
std::optional<GraphSeries> MakeGraphSeries(const YearlyData& data, int block, std::string_view base,
                                           int modifier, GraphBand band);

// The engine's detGraphValues reply "N0;N1;..." as N by year from 0, or the
// error it reports ("Error: ...", or a reply that is not a list of numbers).
struct DeterministicSeries {
  std::vector<GraphPoint> points;
  std::string error;
};
DeterministicSeries ParseDeterministicValues(std::string_view reply);

}  // namespace tamsic
