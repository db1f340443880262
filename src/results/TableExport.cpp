#include "results/TableExport.h"

#include <charconv>
#include <cmath>

namespace tamsic {

namespace {

std::string CsvField(const std::string& field) {
  const bool quoted = field.find_first_of(",\"\r\n") != std::string::npos ||
                      (!field.empty() && (field.front() == ' ' || field.back() == ' '));
  if (!quoted) return field;
  std::string out = "\"";
  for (char c : field) {
    if (c == '"') out += '"';
    out += c;
  }
  return out + "\"";
}

std::string TabField(std::string field) {
  for (char& c : field)
    if (c == '\t' || c == '\r' || c == '\n') c = ' ';
  return field;
}

template <typename Field>
std::string Join(const Table& table, Field field, const char* separator, const char* lineEnd) {
  std::string text;
  const auto line = [&](const std::string& first, const std::vector<std::string>& rest) {
    text += field(first);
    for (const std::string& cell : rest) text += separator + field(cell);
    text += lineEnd;
  };
  line(table.corner, table.columns);
  for (const TableRow& row : table.rows) line(row.heading, row.cells);
  return text;
}

}  // namespace

std::string FormatNumber(double value) {
  if (!std::isfinite(value) || value == 0.0) return "0";  // no "-0"
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 6);
  return std::string(buffer, result.ptr);
}

std::string ToCsv(const Table& table) { return Join(table, CsvField, ",", "\r\n"); }

std::string ToTabText(const Table& table) { return Join(table, TabField, "\t", "\n"); }

}  // namespace tamsic
