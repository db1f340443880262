#include <gtest/gtest.h>

#include "formula/FileSeries.h"

namespace tamsic::formula {
namespace {

TEST(FileSeries, OneValuePerYearThenTheLast) {
  const auto loaded = FileSeries::FromText("10\r\n 20 ; 30\n\n40;\n");
  ASSERT_TRUE(loaded.series) << loaded.error;
  EXPECT_EQ(loaded.series->size(), 4u);
  EXPECT_EQ(loaded.series->valueForYear(0), 10);
  EXPECT_EQ(loaded.series->valueForYear(1), 10);
  EXPECT_EQ(loaded.series->valueForYear(3), 30);
  EXPECT_EQ(loaded.series->valueForYear(4), 40);
  EXPECT_EQ(loaded.series->valueForYear(500), 40);
}

TEST(FileSeries, BadContentIsNamed) {
  EXPECT_EQ(FileSeries::FromText("1\n2\nabc\n").error, "\"abc\" on line 3 is not a finite number");
  EXPECT_EQ(FileSeries::FromText(" \n;\n").error, "the file holds no values");
  const auto missing = FileSeries::FromFile("/nonexistent", "rates.txt");
  EXPECT_FALSE(missing.series);
  EXPECT_EQ(missing.error, "cannot find the file rates.txt");
}

TEST(FileSeries, ReferenceNames) {
  EXPECT_EQ(FileReferenceName("file=rates.txt"), "rates.txt");
  EXPECT_EQ(FileReferenceName(" FILE= my rates.txt "), "my rates.txt");
  EXPECT_EQ(FileReferenceName("file="), "");
  EXPECT_FALSE(FileReferenceName("=file"));
  EXPECT_FALSE(FileReferenceName("files"));
}

}  // namespace
}  // namespace tamsic::formula
