#pragma once
// Tables as text: CSV for a file and tab-separated lines for the clipboard,
// which spreadsheets paste cell by cell. Numbers are written as the engine
// writes them, whatever the locale: six significant digits and a dot.
#include <string>
#include <vector>

#include "results/SummaryTable.h"

namespace tamsic {

std::string FormatNumber(double value);

using TableRows = std::vector<std::vector<std::string>>;

// Fields separated by "," and quoted only when they hold a comma, a quote, a
// line break or blanks at an end; lines end in CR LF.
std::string ToCsv(const TableRows& rows);

// Fields separated by tabs, lines ending in "\n"; tabs and line breaks
// inside a field become blanks.
std::string ToTabText(const TableRows& rows);

// A summary table as rows: a header row (the corner, then the columns), then
// one row per record, its heading first.
TableRows Rows(const Table& table);
std::string ToCsv(const Table& table);
std::string ToTabText(const Table& table);

}  // namespace tamsic
