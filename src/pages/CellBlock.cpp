#include "pages/CellBlock.h"

#include <algorithm>
#include <cctype>

#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

}  // namespace

CellBlock ParseTabSeparated(std::string_view text) {
  CellBlock block;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find_first_of("\r\n", start);
    if (end == std::string_view::npos) end = text.size();
    std::vector<std::string> row;
    for (std::string_view cell : Split(text.substr(start, end - start), '\t')) row.emplace_back(cell);
    block.push_back(std::move(row));
    start = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
  }
  return block;
}

std::string FormTabSeparated(const CellBlock& block) {
  std::string text;
  for (std::size_t r = 0; r < block.size(); ++r) {
    if (r > 0) text += '\n';
    for (std::size_t c = 0; c < block[r].size(); ++c) {
      if (c > 0) text += '\t';
      text += block[r][c];
    }
  }
  return text;
}

std::vector<PlacedText> PlaceBlock(const CellBlock& block, const std::vector<CellSpot>& selected, std::size_t rows,
                                   std::size_t cols) {
  std::vector<PlacedText> placed;
  if (block.empty() || selected.empty()) return placed;
  const bool single = block.size() == 1 && block[0].size() == 1;
  if (single) {
    for (const CellSpot& spot : selected)
      if (spot.row < rows && spot.col < cols) placed.push_back({spot, block[0][0]});
    return placed;
  }
  CellSpot corner = selected.front();
  for (const CellSpot& spot : selected) {
    corner.row = std::min(corner.row, spot.row);
    corner.col = std::min(corner.col, spot.col);
  }
  for (std::size_t r = 0; r < block.size() && corner.row + r < rows; ++r)
    for (std::size_t c = 0; c < block[r].size() && corner.col + c < cols; ++c)
      placed.push_back({{corner.row + r, corner.col + c}, block[r][c]});
  return placed;
}

std::string SwitchText(std::string_view text) {
  const std::string word = Lower(Trim(text));
  if (word == "1" || word == "-1" || word == "true") return "1";
  if (word == "0" || word == "false") return "0";
  return std::string(text);
}

std::string WithDecimalPoint(std::string_view text, char decimalSeparator) {
  std::string number(text);
  if (decimalSeparator != ',' || std::count(number.begin(), number.end(), ',') != 1 ||
      number.find('.') != std::string::npos)
    return number;
  std::replace(number.begin(), number.end(), ',', '.');
  return ExactNumber(number) ? number : std::string(text);
}

}  // namespace tamsic
