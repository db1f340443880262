#include <gtest/gtest.h>

#include "functions/BreedingFunction.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

const DensityParameters kChecked{true, "50", "20", "5", "2"};

TEST(BreedingFunction, WrittenForCheckedPopulationsOnly) {
  const std::vector<DensityParameters> populations = {
      kChecked, {false, "60", "10", "1", "1"}, {true, "10.5", "", "", "1"}};
  const auto cells = BreedingFunctionCells(populations);
  ASSERT_EQ(cells.size(), 2u);
  EXPECT_EQ(cells[0].population, 1);
  EXPECT_EQ(cells[0].function, "=(50-((50-20)*((N/K)^2)))*(N/(5+N))");
  EXPECT_EQ(cells[1].population, 3);
  EXPECT_EQ(cells[1].function, "=(10.5-((10.5-0)*((N/K)^1)))*(N/(0+N))");
}

TEST(BreedingFunction, ViewShowsTheFunctionWithoutEquals) {
  test::MessageRecorder recorder;
  EXPECT_EQ(ViewBreedingFunction(kChecked, recorder.messages),
            "(50-((50-20)*((N/K)^2)))*(N/(5+N))");
  EXPECT_TRUE(recorder.box.shown.empty());
}

TEST(BreedingFunction, ViewRefusesUncheckedOrIncomplete) {
  test::MessageRecorder recorder;
  DensityParameters unchecked = kChecked;
  unchecked.dependent = false;
  EXPECT_EQ(ViewBreedingFunction(unchecked, recorder.messages), std::nullopt);

  DensityParameters incomplete = kChecked;
  incomplete.steepness.clear();
  EXPECT_EQ(ViewBreedingFunction(incomplete, recorder.messages), std::nullopt);

  // Unchecked wins over incomplete.
  incomplete.dependent = false;
  EXPECT_EQ(ViewBreedingFunction(incomplete, recorder.messages), std::nullopt);

  ASSERT_EQ(recorder.box.shown.size(), 3u);
  EXPECT_EQ(recorder.box.shown[0].text,
            "You must first check the box for density dependent reproduction for this population.");
  EXPECT_EQ(recorder.box.shown[1].text,
            "You must first fill in all values for this population in the density dependent "
            "reproduction table.");
  EXPECT_EQ(recorder.box.shown[2].text, recorder.box.shown[0].text);
  EXPECT_EQ(recorder.box.shown[0].caption, "Warning!");
}

}  // namespace
}  // namespace tamsic
