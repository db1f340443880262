#pragma once
// Cutting texts: at a separator, and the blanks off their ends. Both answer
// views into the text, which must outlive them.
#include <string_view>
#include <vector>

namespace tamsic {

// The pieces between separators, empty ones included.
inline std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  std::size_t start = 0;
  for (auto at = text.find(separator); at != std::string_view::npos; at = text.find(separator, start)) {
    parts.push_back(text.substr(start, at - start));
    start = at + 1;
  }
  parts.push_back(text.substr(start));
  return parts;
}

// The text without blanks, tabs and line ends at either end.
inline std::string_view Trim(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\n";
  const auto first = text.find_first_not_of(kBlank);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

}  // namespace tamsic
