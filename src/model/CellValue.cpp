#include "model/CellValue.h"

#include <charconv>

namespace tamsic {

namespace {

// A decimal number with an optional sign, as typed in a cell.
bool IsNumber(std::string_view text) {
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
  if (text.empty() || text.front() == '+' || text.front() == '-') return false;
  double value = 0.0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value, std::chars_format::fixed);
  return error == std::errc() && end == last;
}

}  // namespace

CellKind ClassifyCell(std::string_view text) {
  if (text.empty()) return CellKind::Empty;
  if (text.front() == '=') return CellKind::Function;
  if (text.starts_with("file")) return CellKind::FileReference;
  return IsNumber(text) ? CellKind::Number : CellKind::Other;
}

}  // namespace tamsic
