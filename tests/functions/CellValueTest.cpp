#include <gtest/gtest.h>

#include "model/CellValue.h"

namespace tamsic {
namespace {

TEST(CellValue, Kinds) {
  EXPECT_EQ(ClassifyCell(""), CellKind::Empty);
  for (const char* number : {"12", "-3", "+4.5", ".5", "7.", "0"})
    EXPECT_EQ(ClassifyCell(number), CellKind::Number) << number;
  for (const char* function : {"=N/K", "=", "= 1"})
    EXPECT_EQ(ClassifyCell(function), CellKind::Function) << function;
  // Whatever follows "file" is taken as a reference and never sent to the formula test.
  for (const char* file : {"file=rates.txt", "file", "files.txt"})
    EXPECT_EQ(ClassifyCell(file), CellKind::FileReference) << file;
  for (const char* other : {"File=rates.txt", " =N", "1,5", "--3", "+", "1e5", "abc", " 12"})
    EXPECT_EQ(ClassifyCell(other), CellKind::Other) << other;
}

}  // namespace
}  // namespace tamsic
