#include <gtest/gtest.h>

#include "pages/CellBlock.h"

namespace tamsic {
namespace {

// Spreadsheets end every row, the last one too, with "\r\n" or "\n"; empty
// cells and rows of other lengths keep their places. A block goes from the top
// left of the selection and stops at the edges of the area; one value fills
// every selected cell.
TEST(CellBlock, ReadsAndFormsSpreadsheetTextAndPlacesIt) {
  const CellBlock block = {{"25", "", "=N/K"}, {""}, {"Local", "1"}};
  EXPECT_EQ(ParseTabSeparated("25\t\t=N/K\r\n\r\nLocal\t1\r\n"), block);
  EXPECT_EQ(ParseTabSeparated("25\t\t=N/K\n\nLocal\t1"), block);
  EXPECT_EQ(FormTabSeparated(block), "25\t\t=N/K\n\nLocal\t1");
  EXPECT_EQ(ParseTabSeparated("7\n"), (CellBlock{{"7"}}));
  EXPECT_TRUE(ParseTabSeparated("").empty());

  const CellBlock letters = {{"a", "b", "c"}, {"d", "e", "f"}};
  EXPECT_EQ(PlaceBlock(letters, {{2, 1}, {1, 2}}, 3, 3),
            (std::vector<PlacedText>{{{1, 1}, "a"}, {{1, 2}, "b"}, {{2, 1}, "d"}, {{2, 2}, "e"}}));
  EXPECT_EQ(PlaceBlock({{"7"}}, {{0, 0}, {2, 1}, {5, 0}}, 3, 3),
            (std::vector<PlacedText>{{{0, 0}, "7"}, {{2, 1}, "7"}}));
  EXPECT_TRUE(PlaceBlock(letters, {}, 3, 3).empty());
}

TEST(CellBlock, CheckBoxWordsAndDecimalCommas) {
  EXPECT_EQ(SwitchText("TRUE"), "1");
  EXPECT_EQ(SwitchText("-1"), "1");
  EXPECT_EQ(SwitchText(" false "), "0");
  EXPECT_EQ(SwitchText("yes"), "yes") << "left for the check to refuse";
  EXPECT_EQ(WithDecimalPoint("2,5", ','), "2.5");
  EXPECT_EQ(WithDecimalPoint("2,5", '.'), "2,5");
  EXPECT_EQ(WithDecimalPoint("=MIN(2,5)", ','), "=MIN(2,5)");
  EXPECT_EQ(WithDecimalPoint("1.000,5", ','), "1.000,5");
}

}  // namespace
}  // namespace tamsic
