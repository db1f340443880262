#pragma once
// Tables leave the program as CSV (for files: fields separated by ",",
// quoted when they hold a comma, a quote or a line break) or as tab-separated
// text (for the clipboard, which spreadsheets paste cell by cell). Rows end
// in CR LF in files and in LF on the clipboard.
#include <string>
#include <vector>

namespace tamsic {

using TableRows = std::vector<std::vector<std::string>>;

std::string ToCsv(const TableRows& rows);
std::string ToTabText(const TableRows& rows);

}  // namespace tamsic
