#include "results/GraphSeries.h"

#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "results/ResultVariables.h"

namespace tamsic {

namespace {

std::optional<std::vector<GraphPoint>> Column(const YearlyData& data, int block, int number) {
  if (number == 0) return std::nullopt;
  std::vector<GraphPoint> points;
  for (int year = 0; year <= data.shape().years; ++year) {
    const auto value = data.Value(block, year, number);
    if (!value) return std::nullopt;
    points.push_back({data.at(block, year, kYearField), *value});
  }
  return points;
}

}  // namespace

std::optional<GraphSeries> MakeGraphSeries(const YearlyData& data, int block, std::string_view base,
                                           int modifier, GraphBand band) {
  const bool modifiable = ModifiersApply(base);
  if (!modifiable) modifier = kMean;
  auto points = Column(data, block, ChoiceNumber(base, modifier));
  if (!points) return std::nullopt;
  GraphSeries series{std::move(*points), {}, {}};
  if (band == GraphBand::None || modifier != kMean || !modifiable) return series;
  const int spreadModifier = band == GraphBand::StandardError ? kStandardError : kStandardDeviation;
  const auto spread = Column(data, block, ChoiceNumber(base, spreadModifier));
  if (!spread) return series;
  for (std::size_t i = 0; i < series.points.size(); ++i) {
    const GraphPoint& mean = series.points[i];
    series.lower.push_back({mean.x, mean.y - (*spread)[i].y});
    series.upper.push_back({mean.x, mean.y + (*spread)[i].y});
  }
  return series;
}

DeterministicSeries ParseDeterministicValues(std::string_view reply) {
  DeterministicSeries series;
  if (Trim(reply).starts_with("Error")) {
    series.error = std::string(Trim(reply));
    return series;
  }
  double year = 0;
  for (std::string_view field : Split(reply, ';')) {
    const auto value = ExactNumber(field);
    if (!value) {
      series.points.clear();
      series.error = "Error: " + std::string(reply);
      return series;
    }
    series.points.push_back({year++, *value});
  }
  return series;
}

}  // namespace tamsic
