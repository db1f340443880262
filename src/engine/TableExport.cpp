#include "engine/TableExport.h"

namespace tamsic {

namespace {

std::string CsvField(const std::string& field) {
  if (field.find_first_of(",\"\r\n") == std::string::npos) return field;
  std::string quoted = "\"";
  for (char c : field) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

std::string Joined(const TableRows& rows, char separator, const char* lineEnd, bool quote) {
  std::string text;
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) text += separator;
      text += quote ? CsvField(row[i]) : row[i];
    }
    text += lineEnd;
  }
  return text;
}

}  // namespace

std::string ToCsv(const TableRows& rows) { return Joined(rows, ',', "\r\n", true); }

// A tab or line break inside a cell would split it; spreadsheets never put one there.
std::string ToTabText(const TableRows& rows) { return Joined(rows, '\t', "\n", false); }

}  // namespace tamsic
