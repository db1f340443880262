#include "model/TextNumbers.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <string>

#include "model/TextSplit.h"

namespace tamsic {

namespace {

// Parses a number at the start of the text; returns the count of characters used.
std::size_t ParsePrefix(std::string_view text, double& value) {
  std::size_t skip = 0;
  if (!text.empty() && text[0] == '+') skip = 1;  // from_chars does not take a leading plus
  if (skip && text.size() > 1 && text[1] == '-') return 0;
  const char* begin = text.data() + skip;
  const auto result = std::from_chars(begin, text.data() + text.size(), value);
  if (result.ec != std::errc()) return 0;
  return static_cast<std::size_t>(result.ptr - text.data());
}

}  // namespace

double LeadingNumber(std::string_view text) {
  double value = 0;
  if (ParsePrefix(Trim(text), value) == 0 || !std::isfinite(value)) return 0;
  return value;
}

std::optional<double> ExactNumber(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  double value = 0;
  if (trimmed.empty() || ParsePrefix(trimmed, value) != trimmed.size() || !std::isfinite(value))
    return std::nullopt;
  return value;
}

int LeadingInt(std::string_view text) {
  const double value = std::trunc(LeadingNumber(text));
  constexpr double kMax = 2147483647.0;
  return static_cast<int>(value > kMax ? kMax : value < -kMax ? -kMax : value);
}

bool TextToTruth(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  std::string lower;
  for (char c : trimmed) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (lower == "true") return true;
  if (lower == "false") return false;
  return LeadingNumber(trimmed) != 0;
}

std::string NumberToText(double value) {
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

}  // namespace tamsic
