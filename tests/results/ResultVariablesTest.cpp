// The result vocabulary: numbers, modifiers and axis titles.
#include <gtest/gtest.h>

#include "app/StringTable.h"
#include "results/ResultVariables.h"

namespace tamsic {
namespace {

TEST(ResultVariables, LabelsNumbersModifiersAndBaseVariables) {
  for (int n = 1; n <= kResultVariableCount; ++n) EXPECT_EQ(ResultNumber(ResultLabel(n)), n) << n;
  EXPECT_EQ(ResultNumber("  N[all]\t"), 12);
  // The probabilities have an SE but no SD.
  EXPECT_EQ(ResultNumber("SD(P[survive])"), 0);
  EXPECT_EQ(ResultNumber("SD(P[extinction])"), 0);
  EXPECT_EQ(ResultNumber("Var11"), 0);
  EXPECT_EQ(ResultNumber("n[all]"), 0);
  EXPECT_EQ(ResultLabel(0), "");
  EXPECT_EQ(ResultLabel(63), "");

  // Modifiers make labels or nothing.
  EXPECT_EQ(ModifiedLabel(" GeneDiv ", kMean), "GeneDiv");
  EXPECT_EQ(ChoiceNumber("N[extant]", kStandardError), 10);
  EXPECT_EQ(ChoiceNumber("N[extant]", kStandardDeviation), 11);
  EXPECT_EQ(ChoiceNumber("P[survive]", kStandardDeviation), 0);
  EXPECT_EQ(ModifiedLabel("N[extant]", 3), std::nullopt);
  EXPECT_EQ(ChoiceNumber("N[extant]", 3), 0);
  EXPECT_EQ(ChoiceNumber("N[extant]", -1), 0);
  EXPECT_FALSE(ModifiersApply("Det.r"));
  EXPECT_FALSE(ModifiersApply(" MedianTE"));
  EXPECT_TRUE(ModifiersApply("TE"));

  // The base variables hold only the scenario's user variables.
  const auto none = BaseVariables(0);
  EXPECT_EQ(none.size(), 13u);
  EXPECT_EQ(none.back(), "P[extinct]");
  const auto two = BaseVariables(2);
  ASSERT_EQ(two.size(), none.size() + 2);
  EXPECT_EQ(two.back(), "Var2");
  EXPECT_EQ(BaseVariables(25).back(), "Var10");
}

TEST(ResultVariables, AxisTitlesFollowTheChoice) {
  StringTable strings = StringTable::fromFile(StringTable::locate());
  EXPECT_EQ(AxisTitle("MedianTE", kStandardDeviation, strings), "MedianTE");
  EXPECT_EQ(AxisTitle("P[extinction]", kMean, strings), "P[extinction](Prob. Extinction occurs in that year)");
  EXPECT_EQ(AxisTitle("N[extant]", kStandardDeviation, strings), "N[extant](Standard Devation)");
  strings.setLanguage(Language::German);
  EXPECT_EQ(AxisTitle("GeneDiv", kMean, strings), "GeneDiv(Mittelwert)");
}

}  // namespace
}  // namespace tamsic
