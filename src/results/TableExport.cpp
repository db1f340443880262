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
std::string Join(const TableRows& rows, Field field, const char* separator, const char* lineEnd) {
  std::string text;
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) text += (i > 0 ? separator : "") + field(row[i]);
    text += lineEnd;
  }
  return text;
}

}  // namespace

std::string FormatNumber(double value) {
  if (!std::isfinite(value) || value == 0.0) return "0";  // no "-0"
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 6);
  return std::string(buffer, result.ptr);
}

std::string ToCsv(const TableRows& rows) { return Join(rows, CsvField, ",", "\r\n"); }

std::string ToTabText(const TableRows& rows) { return Join(rows, TabField, "\t", "\n"); }

TableRows Rows(const Table& table) {
  TableRows rows;
  rows.push_back({table.corner});
  rows.back().insert(rows.back().end(), table.columns.begin(), table.columns.end());
  for (const TableRow& row : table.rows) {
    rows.push_back({row.heading});
    rows.back().insert(rows.back().end(), row.cells.begin(), row.cells.end());
  }
  return rows;
}

std::string ToCsv(const Table& table) { return ToCsv(Rows(table)); }

std::string ToTabText(const Table& table) { return ToTabText(Rows(table)); }

}  // namespace tamsic
