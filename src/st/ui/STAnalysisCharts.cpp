#include "st/ui/STAnalysisCharts.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QHorizontalStackedBarSeries>
#include <QLineSeries>
#include <QScatterSeries>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "results/ui/NamedButton.h"

namespace {

QChart* BarChart(const tamsic::STView& view) {
  auto* chart = new QChart;
  auto* series = new QBarSeries(chart);
  auto* set = new QBarSet(Q(view.lines.front().name), series);
  QStringList categories;
  for (std::size_t i = 0; i < view.lines.front().points.size(); ++i) {
    set->append(view.lines.front().points[i].y);
    categories << Q(view.categories[i]);
  }
  series->append(set);
  chart->addSeries(series);
  auto* xAxis = new QBarCategoryAxis(chart);
  xAxis->append(categories);
  xAxis->setTitleText(Q(view.xTitle));
  // Upright, the labels of many items keep their words.
  if (categories.size() > 4) xAxis->setLabelsAngle(-90);
  auto* yAxis = new QValueAxis(chart);
  yAxis->setTitleText(Q(view.yTitle));
  chart->addAxis(xAxis, Qt::AlignBottom);
  chart->addAxis(yAxis, Qt::AlignLeft);
  series->attachAxis(xAxis);
  series->attachAxis(yAxis);
  // Bars rise from 0, so that their lengths compare.
  const auto& points = view.lines.front().points;
  if (!points.empty()) {
    const auto [low, high] = std::minmax_element(points.begin(), points.end(), [](const auto& a, const auto& b) {
      return a.y < b.y;
    });
    yAxis->setRange(std::min(0.0, low->y), std::max(0.0, high->y) + (high->y == low->y ? 1 : 0));
    yAxis->applyNiceNumbers();
  }
  return chart;
}

QChart* LineChart(const tamsic::STView& view, bool itemAxis) {
  auto* chart = new QChart;
  auto* xAxis = new QValueAxis(chart);
  auto* yAxis = new QValueAxis(chart);
  xAxis->setTitleText(Q(view.xTitle));
  yAxis->setTitleText(Q(view.yTitle));
  chart->addAxis(xAxis, Qt::AlignBottom);
  chart->addAxis(yAxis, Qt::AlignLeft);
  double xMin = 0, xMax = 1, yMin = 0, yMax = 1;
  bool first = true;
  for (std::size_t index = 0; index < view.lines.size(); ++index) {
    const tamsic::STGraphLine& line = view.lines[index];
    QXYSeries* series = nullptr;
    if (line.joined) {
      series = new QLineSeries(chart);
      series->setPointsVisible(true);
    } else {
      auto* scatter = new QScatterSeries(chart);
      scatter->setMarkerSize(9);
      series = scatter;
    }
    series->setName(Q(line.name));
    // The theme has five colours; more lines get colours of their own round the wheel.
    if (view.lines.size() > 5)
      series->setColor(QColor::fromHsv(static_cast<int>(360 * index / view.lines.size()), 210, 200));
    for (const tamsic::GraphPoint& point : line.points) {
      series->append(point.x, point.y);
      xMin = first ? point.x : std::min(xMin, point.x);
      xMax = first ? point.x : std::max(xMax, point.x);
      yMin = first ? point.y : std::min(yMin, point.y);
      yMax = first ? point.y : std::max(yMax, point.y);
      first = false;
    }
    chart->addSeries(series);
    series->attachAxis(xAxis);
    series->attachAxis(yAxis);
  }
  // A single point or a flat line still needs a range.
  if (xMin == xMax) xMax = xMin + 1;
  if (yMin == yMax) yMax = yMin + 1;
  xAxis->setRange(xMin, xMax);
  yAxis->setRange(yMin, yMax);
  yAxis->applyNiceNumbers();
  if (itemAxis) {
    // Items are whole numbers: a tick at each, or at every few when there are many.
    xAxis->setLabelFormat("%d");
    xAxis->setTickType(QValueAxis::TicksDynamic);
    xAxis->setTickAnchor(1);
    xAxis->setTickInterval(std::max(1.0, std::ceil((xMax - xMin) / 10)));
  } else {
    xAxis->applyNiceNumbers();
  }
  return chart;
}

}  // namespace

QChart* MakeSTChart(const tamsic::STView& view) {
  switch (view.grouping) {
    case tamsic::STGrouping::ByLevel: return BarChart(view);
    case tamsic::STGrouping::ByVariable: return LineChart(view, false);
    case tamsic::STGrouping::ByScheme: return LineChart(view, true);
  }
  return new QChart;
}

QString InputName(const tamsic::RankedInput& input) {
  QStringList names;
  for (const std::string& name : input.names) names << Q(name);
  return names.join(" + ");
}

QChart* MakeTornadoChart(const tamsic::Ranking& ranking, const TornadoTexts& texts) {
  auto* chart = new QChart;
  if (ranking.outcome != tamsic::Ranking::Outcome::Ranked) return chart;
  auto* series = new QHorizontalStackedBarSeries(chart);
  auto* raises = new QBarSet(texts.raises, series);
  auto* lowers = new QBarSet(texts.lowers, series);
  QStringList categories;
  double largest = 0;
  // Categories run from the bottom up: the smallest coefficient first.
  for (auto input = ranking.inputs.rbegin(); input != ranking.inputs.rend(); ++input) {
    categories << InputName(*input);
    raises->append(std::max(0.0, input->coefficient));
    lowers->append(std::min(0.0, input->coefficient));
    largest = std::max(largest, std::abs(input->coefficient));
  }
  series->append(raises);
  series->append(lowers);
  chart->addSeries(series);
  auto* yAxis = new QBarCategoryAxis(chart);
  yAxis->append(categories);
  auto* xAxis = new QValueAxis(chart);
  xAxis->setTitleText(texts.axis);
  xAxis->setRange(largest > 0 ? -largest : -1, largest > 0 ? largest : 1);
  xAxis->applyNiceNumbers();
  chart->addAxis(yAxis, Qt::AlignLeft);
  chart->addAxis(xAxis, Qt::AlignBottom);
  series->attachAxis(yAxis);
  series->attachAxis(xAxis);
  return chart;
}
