#pragma once
// A summary table as text: CSV for a file and tab-separated lines for the
// clipboard. Numbers are written as the engine writes them, whatever the
// locale: six significant digits and a dot.
#include <string>

#include "results/SummaryTable.h"

namespace tamsic {

std::string FormatNumber(double value);

// A header row (the corner, then the columns) and one line per row, fields
// separated by "," and quoted only when they hold a comma, a quote, a line
// break or blanks at an end; lines end in CR LF.
std::string ToCsv(const Table& table);

// The same rows separated by tabs, lines ending in "\n"; tabs and line breaks
// inside a field become blanks.
std::string ToTabText(const Table& table);

}  // namespace tamsic
