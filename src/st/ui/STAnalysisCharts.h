#pragma once
// The charts of the ST analysis, drawn from the core's views: bars per item,
// or lines of result against value or item number; and the tornado chart of
// the ranked inputs, the largest coefficient at the top, each bar coloured
// by whether the input raises or lowers the result.
#include <QString>

#include "st/STAnalysisViews.h"

class QChart;

// A new chart, owned by the caller (a chart view takes it over).
QChart* MakeSTChart(const tamsic::STView& view);

struct TornadoTexts {
  QString raises;
  QString lowers;
  QString axis;
};
// Bars only when the ranking was made; an empty chart otherwise.
QChart* MakeTornadoChart(const tamsic::Ranking& ranking, const TornadoTexts& texts);

// The name of a ranked input: its variable, or the group's joined by " + ".
QString InputName(const tamsic::RankedInput& input);
