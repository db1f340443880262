#include "results/ui/ResultsChart.h"

#include <QAreaSeries>
#include <QChart>
#include <QChartView>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPainter>
#include <QPixmap>
#include <QSvgGenerator>
#include <QValueAxis>

namespace {

// Whole years between ticks: 1, 2 or 5 times a power of ten, about ten ticks.
double YearStep(double span) {
  double step = 1;
  while (span / step > 10) {
    for (double factor : {2.0, 2.5, 2.0}) {
      step *= factor;
      if (span / step <= 10) break;
    }
  }
  return step;
}

QLineSeries* LineOf(const std::vector<tamsic::GraphPoint>& points, QObject* parent) {
  auto* line = new QLineSeries(parent);
  for (const auto& point : points) line->append(point.x, point.y);
  return line;
}

}  // namespace

QChart* MakeResultsChart(const std::vector<ChartLine>& lines, const QString& xTitle, const QString& yTitle,
                         bool symbols) {
  auto* chart = new QChart;
  auto* xAxis = new QValueAxis(chart);
  auto* yAxis = new QValueAxis(chart);
  xAxis->setTitleText(xTitle);
  xAxis->setLabelFormat("%d");
  yAxis->setTitleText(yTitle);
  chart->addAxis(xAxis, Qt::AlignBottom);
  chart->addAxis(yAxis, Qt::AlignLeft);
  // Bands first, so that every line is drawn over them.
  std::vector<QAreaSeries*> bands;
  for (const ChartLine& line : lines) {
    if (line.series.upper.empty()) {
      bands.push_back(nullptr);
      continue;
    }
    auto* band = new QAreaSeries(LineOf(line.series.upper, chart), LineOf(line.series.lower, chart));
    band->setName(line.name);
    chart->addSeries(band);
    band->attachAxis(xAxis);
    band->attachAxis(yAxis);
    bands.push_back(band);
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    QLineSeries* series = LineOf(lines[i].series.points, chart);
    series->setName(lines[i].name);
    series->setPointsVisible(symbols);
    chart->addSeries(series);
    series->attachAxis(xAxis);
    series->attachAxis(yAxis);
    if (QAreaSeries* band = bands[i]) {
      QColor shade = series->color();
      shade.setAlpha(60);
      band->setBrush(shade);
      band->setPen(Qt::NoPen);
      // The legend names each scenario once, by its line.
      for (auto* marker : chart->legend()->markers(band)) marker->setVisible(false);
    }
  }
  // Axes fitted to the lines and bands together.
  double xMin = 0, xMax = 1, yMin = 0, yMax = 1;
  bool first = true;
  for (const ChartLine& line : lines)
    for (const auto* points : {&line.series.points, &line.series.lower, &line.series.upper})
      for (const auto& p : *points) {
        xMin = first ? p.x : std::min(xMin, p.x);
        xMax = first ? p.x : std::max(xMax, p.x);
        yMin = first ? p.y : std::min(yMin, p.y);
        yMax = first ? p.y : std::max(yMax, p.y);
        first = false;
      }
  if (yMin == yMax) yMax = yMin + 1;  // a flat line still needs a range
  xAxis->setRange(xMin, xMax);
  xAxis->setTickType(QValueAxis::TicksDynamic);
  xAxis->setTickAnchor(0);
  xAxis->setTickInterval(YearStep(xMax - xMin));
  yAxis->setRange(yMin, yMax);
  yAxis->applyNiceNumbers();
  return chart;
}

bool SaveChartPicture(QChartView& view, const QString& path) {
  if (!path.endsWith(".svg", Qt::CaseInsensitive)) return view.grab().save(path, "PNG");
  QSvgGenerator svg;
  svg.setFileName(path);
  svg.setSize(view.size());
  svg.setViewBox(view.rect());
  QPainter painter;
  if (!painter.begin(&svg)) return false;
  view.render(&painter);
  return painter.end();
}
