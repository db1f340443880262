#pragma once
// Blocks of grid cells as spreadsheets exchange them on the clipboard: cells
// separated by tabs, rows by line ends. Grid cells never hold a tab or a line
// end, so cells are taken as they stand, without the quoting a spreadsheet
// uses for cells that do.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tamsic {

using CellBlock = std::vector<std::vector<std::string>>;

// Rows end at "\r\n", "\n" or "\r"; the line end spreadsheets put after the
// last row adds no empty row. Empty text is an empty block.
CellBlock ParseTabSeparated(std::string_view text);

// Cells joined by tabs, rows by "\n", with no line end after the last row, so
// that a single cell pastes into a text box as its bare value.
std::string FormTabSeparated(const CellBlock& block);

// A cell of a grid's area of values, counted from 0 at its top left.
struct CellSpot {
  std::size_t row = 0;
  std::size_t col = 0;
  bool operator==(const CellSpot&) const = default;
};

struct PlacedText {
  CellSpot spot;
  std::string text;
  bool operator==(const PlacedText&) const = default;
};

// Where a pasted block goes in an area of rows x cols cells: from the top
// left of the selected cells on, what lies beyond the area dropped. A block of
// one value goes into every selected cell instead, as spreadsheets do. With
// nothing selected, nothing is placed.
std::vector<PlacedText> PlaceBlock(const CellBlock& block, const std::vector<CellSpot>& selected, std::size_t rows,
                                   std::size_t cols);

// A pasted check-box value as the grid stores it: "1" for 1, -1 and true,
// "0" for 0 and false, in any letter case; any other text as it is, for the
// cell's check to refuse.
std::string SwitchText(std::string_view text);

// A number written with a decimal comma, where that is the user's decimal
// separator, in the form the record holds ("2,5" becomes "2.5"); any other
// text, functions with their commas among them, as it is.
std::string WithDecimalPoint(std::string_view text, char decimalSeparator);

}  // namespace tamsic
