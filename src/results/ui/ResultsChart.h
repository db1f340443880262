#pragma once
// The chart of the results tab, drawn from the core's graph lines: one line
// per series, its band (when it has one) as a lighter area of the same colour
// behind it; and the chart saved as a picture.
#include <QString>
#include <vector>

#include "results/GraphSeries.h"

class QChart;
class QChartView;

struct ChartLine {
  QString name;
  tamsic::GraphSeries series;
};

// A new chart, owned by the caller (a chart view takes it over). `symbols`
// marks each point of the lines, as the project's special option "Show
// symbols on graphs" asks.
QChart* MakeResultsChart(const std::vector<ChartLine>& lines, const QString& xTitle, const QString& yTitle,
                         bool symbols = false);

// Writes what the view shows: an SVG drawing when the path ends in ".svg",
// else a PNG image. False when the file could not be written.
bool SaveChartPicture(QChartView& view, const QString& path);
