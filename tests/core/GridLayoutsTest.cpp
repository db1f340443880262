#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "model/GridLayouts.h"
#include "model/HeadingWords.h"
#include "model/InputRules.h"
#include "model/TextNumbers.h"

namespace tamsic {
namespace {

LayoutCounts ThreePopulations() {
  LayoutCounts counts;
  counts.populations = {"North", "South", "East"};
  counts.popStateVars = 3;
  counts.catastrophes = 2;
  counts.ageReproF = 2;
  counts.ageReproM = 3;
  counts.maxAge = 12;
  counts.maxLitters = 2;
  counts.maxProgeny = 4;
  return counts;
}

TEST(GridLayouts, ShapesFollowTheCountsAndARelayoutKeepsValuesThatStillFit) {
  LayoutCounts counts = ThreePopulations();
  const Grid labels = LayoutGrid(F("gridPopLabels"), counts);
  EXPECT_EQ(labels.rows(), 4u);
  EXPECT_EQ(labels.cols(), 5u);
  EXPECT_EQ(labels.at(0, 2), "PS1");
  EXPECT_EQ(labels.at(0, 4), "PS3");

  EXPECT_EQ(LayoutGrid(F("gridGlobalVars"), counts).cols(), 2u) << "no global variables still leaves two columns";
  EXPECT_EQ(LayoutGrid(F("gridIndividualStateParams"), counts).rows(), 5u);

  const Grid females = LayoutGrid(F("gridMortFemales"), counts);
  EXPECT_EQ(females.cols(), 2u * (2 + 1) + 1);
  EXPECT_EQ(females.at(0, 1), "Mortality From Age 0 to 1");
  EXPECT_EQ(females.at(0, 4), "SD in 1 to 2 Mortality Due to EV");
  EXPECT_EQ(females.at(0, 5), "Annual Mortality After Age 2");
  EXPECT_EQ(LayoutGrid(F("gridMortMales"), counts).cols(), 2u * (3 + 1) + 1);

  EXPECT_EQ(LayoutGrid(F("gridDispRates"), counts).cols(), 4u);
  EXPECT_EQ(LayoutGrid(F("gridDispRates"), counts).at(0, 3), "East");
  EXPECT_EQ(LayoutGrid(F("gridCatastrophes1"), counts).cols(), 5u);
  EXPECT_EQ(LayoutGrid(F("gridCatastropheLabels"), counts).rows(), 2u) << "one row per catastrophe, no heading";
  EXPECT_EQ(LayoutGrid(F("gridRepRates3"), counts).rows(), 6u) << "0..4 offspring";
  EXPECT_EQ(LayoutGrid(F("gridRepRates4"), counts).rows(), 3u) << "1..2 broods";
  EXPECT_EQ(LayoutGrid(F("gridInitPopMale"), counts).cols(), 13u);
  const Grid harvestM = LayoutGrid(F("gridHarvestM"), counts);
  EXPECT_EQ(harvestM.cols(), 4u);
  EXPECT_EQ(harvestM.at(0, 3), "Adults");
  EXPECT_EQ(LayoutGrid(F("gridHarvest"), counts).rows(), 6u);
  EXPECT_THROW(LayoutGrid(F("txtNumPop"), counts), std::logic_error);

  // A relayout keeps the values that still fit and rewrites the headings.
  Grid mort = females;
  mort.at(1, 1) = "25";
  mort.at(3, 6) = "3";
  counts.populations.pop_back();
  counts.ageReproF = 3;
  const Grid resized = Relayout(mort, F("gridMortFemales"), counts);
  EXPECT_EQ(resized.rows(), 3u);
  EXPECT_EQ(resized.cols(), 9u);
  EXPECT_EQ(resized.at(1, 1), "25");
  EXPECT_EQ(resized.at(0, 7), "Annual Mortality After Age 3") << "headings are rewritten";

  Grid catastrophes = LayoutGrid(F("gridCatastropheLabels"), counts);
  catastrophes.at(0, 1) = "Fire";
  counts.catastrophes = 3;
  EXPECT_EQ(Relayout(catastrophes, F("gridCatastropheLabels"), counts).at(0, 1), "Fire");
}

// Each cell that holds a value is headed by its line and its population, so that the rule the cell is checked by
// is the one its heading names; and whatever the grid and its counts, no heading a layout makes reaches the user in
// English: each one is shown in the words of the string table.
TEST(GridLayouts, EveryHeadingNamesTheRuleOfItsCellsInTheUsersLanguage) {
  struct Numbers : IStringTable {
    std::string text(int number) const override { return "<" + std::to_string(number).append(">"); }
  } numbers;
  LayoutCounts counts = ThreePopulations();
  counts.globalVars = 2;
  counts.indivStateVars = 2;
  // Names, numbers and the symbols that functions use (PS1, GS2, IS1, %) read alike in every language.
  const auto alike = [&counts](const std::string& heading) {
    const bool symbol = heading.size() > 2 && std::isupper(heading[0]) && std::isupper(heading[1]) &&
                        heading.find_first_not_of("0123456789", 2) == std::string::npos;
    return heading.empty() || heading == "%" || symbol || ExactNumber(heading) ||
           std::find(counts.populations.begin(), counts.populations.end(), heading) != counts.populations.end();
  };
  int cells = 0, shown = 0;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    if (Describe(field).kind != FieldKind::Grid || field == F("Notes")) continue;
    const GridDescription& d = GridOf(field);
    const Grid grid = LayoutGrid(field, counts);
    EXPECT_EQ(PopulationsInColumns(field), d.shape == GridShape::PopulationColumns) << Describe(field).member;
    const bool rowHeaded = d.shape == GridShape::PopulationColumns || d.shape == GridShape::StateVariables ||
                           d.shape == GridShape::CatastropheLabels;
    for (std::size_t r = 0; r < grid.rows(); ++r)
      for (std::size_t c = 0; c < grid.cols(); ++c) {
        const GridLine* line = LineOf(field, r, c);
        if (!line || line->heading.empty()) continue;
        ++cells;
        const std::string heading = rowHeaded ? grid.at(r, 0) : grid.at(0, c);
        const bool adults = d.lines == Lines::AgeClasses && heading == "Adults";  // the oldest class
        EXPECT_TRUE(adults || heading.starts_with(line->heading))
            << Describe(field).member << " (" << r << ", " << c << "): " << heading << " is not " << line->heading;
        if (d.shape == GridShape::PopulationRows) {
          EXPECT_EQ(grid.at(r, 0), counts.populations[r - 1]);
        }
        if (d.shape == GridShape::PopulationColumns) {
          EXPECT_EQ(grid.at(0, c), counts.populations[c - 1]);
        }
      }
    std::vector<std::string> headings;
    for (std::size_t r = 0; r < grid.rows(); ++r) headings.push_back(grid.at(r, 0));
    if (d.shape != GridShape::CatastropheLabels)
      for (std::size_t c = 1; c < grid.cols(); ++c) headings.push_back(grid.at(0, c));
    for (const std::string& heading : headings) {
      if (alike(heading)) continue;
      const auto words = ShownHeading(heading, numbers);
      ASSERT_TRUE(words) << Describe(field).member << ": \"" << heading << "\" has no caption";
      EXPECT_TRUE(std::none_of(words->begin(), words->end(), [](char c) { return std::isalpha(c); }))
          << Describe(field).member << ": \"" << heading << "\" shows as \"" << *words << '"';
      ++shown;
    }
  }
  EXPECT_GT(cells, 200);
  EXPECT_GT(shown, 80);
  EXPECT_EQ(ShownHeading("Mortality From Age 2 to 3", numbers), "<608>2<609>3");
  EXPECT_EQ(ShownHeading("Frequency % 2", numbers), "<710> 2");
  EXPECT_EQ(ShownHeading("Frequency %", numbers), std::nullopt) << "a numbered heading without its number";
  EXPECT_EQ(ShownHeading("SD in Mortality After Age 2x", numbers), std::nullopt);
}

}  // namespace
}  // namespace tamsic
