#include <gtest/gtest.h>

#include "app/EnglishMessages.h"
#include "model/NewScenario.h"
#include "model/ScenarioShape.h"
#include "pages/AfterEdit.h"
#include "pages/StateVariablePresets.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

void SetCell(clsScenario& s, Field field, std::size_t row, std::size_t col, const std::string& text) {
  Grid grid = s.GetGrid(field);
  grid.at(row, col) = text;
  s.SetGrid(field, std::move(grid));
}

const std::string& Cell(const clsScenario& s, Field field, std::size_t row, std::size_t col) {
  return s.GetGrid(field).at(row, col);
}

// The new scenario: 1 population, 1 catastrophe, ages 2 (F) and 3 (M), max age 13, 1 brood, 1 progeny.
TEST(AfterEdit, ACountReshapesTheGridsThatDependOnIt) {
  const clsScenario before = NewScenarioDefaults();
  for (auto [box, value, grid, rows, cols] :
       {std::tuple{"txtNumPop", "3", "gridDispRates", 4u, 4u}, {"txtNumPop", "", "gridRepRates1", 1u, 3u},
        {"txtNumCatast", "3", "gridCatastropheLabels", 3u, 2u}, {"txtNumCatast", "0", "gridCatastrophes2", 2u, 1u},
        {"txtAgeReproF", "4", "gridMortFemales", 2u, 11u}, {"txtAgeReproM", "1", "gridSupplM", 2u, 2u},
        {"txtMaxAgeRepro", "20", "gridInitPopMale", 2u, 21u}, {"txtMaxProgeny", "5", "gridRepRates3", 7u, 2u},
        {"txtMaxLitters", "3", "gridRepRates4", 4u, 2u}, {"txtNumPopStateVars", "3", "gridPopLabels", 2u, 5u},
        {"txtNumGlobalVars", "0", "gridGlobalVars", 2u, 2u},
        {"txtNumIndividualStateParams", "2", "gridIndividualStateParams", 5u, 3u}}) {
    clsScenario after = before;
    after.SetText(*FieldByMember(box), value);
    AfterEdit(before, after);
    const Grid& reshaped = after.GetGrid(*FieldByMember(grid));
    EXPECT_EQ(reshaped.rows(), rows) << box << " = " << value << ": " << grid;
    EXPECT_EQ(reshaped.cols(), cols) << box << " = " << value << ": " << grid;
  }
}

TEST(AfterEdit, KeepsValuesHeadsGridsWithLabelsAndLeavesRestoredCountsAlone) {
  const clsScenario before = NewScenarioDefaults();
  clsScenario after = before;
  after.SetText(F("txtNumPop"), "2");
  AfterEdit(before, after);
  EXPECT_EQ(Cell(after, F("gridMortFemales"), 1, 1), "25");
  EXPECT_EQ(Cell(after, F("gridMortFemales"), 2, 0), "2") << "a population without a label is headed by its number";

  const clsScenario named = after;
  SetCell(after, F("gridPopLabels"), 2, 1, "North");
  AfterEdit(named, after);
  EXPECT_EQ(Cell(after, F("gridMortFemales"), 2, 0), "North");
  EXPECT_EQ(Cell(after, F("gridCarryingCap1"), 0, 2), "North");

  // A count that says 3 over grids of one population is left as the file holds it until edited.
  clsScenario restored = before;
  restored.SetText(F("txtNumPop"), "3");
  after = restored;
  AfterEdit(restored, after);
  EXPECT_EQ(after.GetGrid(F("gridMortFemales")).rows(), 2u);
}

TEST(AfterEdit, FillsTheBreedingFunctionOfCheckedPopulationsAndTheLastRowOfDistributions) {
  clsScenario before = NewScenarioDefaults();
  clsScenario after = before;
  for (auto [row, text] : {std::pair{1, "1"}, {2, "50"}, {3, "20"}, {4, ""}, {5, "2"}})
    SetCell(after, F("gridReproSys"), static_cast<std::size_t>(row), 1, text);
  AfterEdit(before, after);
  EXPECT_EQ(Cell(after, F("gridRepRates1"), 1, 1), "=(50-((50-20)*((N/K)^2)))*(N/(0+N))");
  EXPECT_TRUE(after.usingformula);

  before = after;
  SetCell(after, F("gridReproSys"), 1, 1, "0");
  AfterEdit(before, after);
  EXPECT_EQ(Cell(after, F("gridRepRates1"), 1, 1), "=(50-((50-20)*((N/K)^2)))*(N/(0+N))")
      << "unchecking leaves the function in place";

  // The last row of an exact distribution takes what the others leave of 100.
  before = after;
  after.SetText(F("txtMaxProgeny"), "3");
  AfterEdit(before, after);
  before = after;
  for (auto [row, text] : {std::pair{1, "10"}, {2, "45.5"}, {3, ""}})
    SetCell(after, F("gridRepRates3"), static_cast<std::size_t>(row), 1, text);
  AfterEdit(before, after);
  EXPECT_EQ(Cell(after, F("gridRepRates3"), 4, 1), "44.50");
  EXPECT_EQ(Cell(after, F("gridRepRates4"), 1, 1), "100.00");
}

TEST(AfterEdit, BoxesThatTakeAValueOfTheirOwn) {
  clsScenario before = NewScenarioDefaults();
  before.SetText(F("txtGenMgtNumTimesTryFindMate"), "");
  before.SetText(F("txtDensDispersal"), "=D");
  clsScenario after = before;
  after.SetTruth(F("optMPHLQ_1"), false);
  after.SetTruth(F("optMPHLQ_2"), true);
  after.SetCheck(F("chkGenMgtPreventMatingsF"), 1);
  after.SetText(F("txtDensDispersal"), "");
  AfterEdit(before, after);
  EXPECT_EQ(after.Text(F("txtSexRatio")), "0") << "hermaphrodites have no sex ratio";
  EXPECT_EQ(after.Text(F("txtGenMgtNumTimesTryFindMate")), "10");
  EXPECT_EQ(after.Text(F("txtDensDispersal")), " ");

  clsScenario limited = before;
  limited.SetText(F("txtGenMgtPairingLimitation"), "0.25");
  AfterEdit(before, limited);
  EXPECT_EQ(limited.Text(F("txtGenMgtNumTimesTryFindMate")), "10");
}

TEST(AfterEdit, WarnsOnlyWhenARateIsAFunction) {
  test::MessageRecorder recorder;
  clsScenario before = NewScenarioDefaults();
  before.SetTruth(F("optStartWith_0"), false);
  before.SetTruth(F("optStartWith_1"), true);
  clsScenario after = before;
  after.SetTruth(F("optStartWith_0"), true);
  after.SetTruth(F("optStartWith_1"), false);
  after.SetCheck(F("chkGenMgtBreedToMaintinK"), 1);
  WarnAboutRateFunctions(before, after, recorder.messages);
  EXPECT_TRUE(recorder.box.shown.empty());

  SetCell(after, F("gridMortMales"), 1, 1, "=20+N/K");
  WarnAboutRateFunctions(before, after, recorder.messages);
  ASSERT_EQ(recorder.box.shown.size(), 2u);
  EXPECT_EQ(recorder.box.shown[0].caption, "Caution!");
  EXPECT_EQ(recorder.box.shown[0].text,
            "Stable age distribution may not be accurate because a function was used for a demographic rate.");
  EXPECT_EQ(recorder.box.shown[1].caption, "Warning!");
  EXPECT_EQ(recorder.box.shown[1].text,
            "Tamsic may not be able to calculate how many pairs to breed, because a function is used for a "
            "demographic rate.");
}

TEST(StateVariablePresets, NewVariablesTakeTheHighestNumbersUpToTen) {
  clsScenario s = NewScenarioDefaults();
  s.SetText(F("txtNumIndividualStateParams"), "2");
  RelayoutScenario(s);
  SetCell(s, F("gridIndividualStateParams"), 1, 1, "Weight");
  ASSERT_EQ(AddStateVariables(s, StatePreset::Outbreak, EnglishMessages()), std::nullopt);
  EXPECT_EQ(s.Text(F("txtNumIndividualStateParams")), "6");
  const Grid& grid = s.GetGrid(F("gridIndividualStateParams"));
  ASSERT_EQ(grid.cols(), 7u);
  EXPECT_EQ(grid.at(1, 1), "Weight");
  EXPECT_EQ(grid.at(1, 3), "DiseaseState");
  EXPECT_EQ(grid.at(4, 3), "=IS3") << "a variable's transition names its own number";
  EXPECT_EQ(grid.at(4, 6), "=IS6");

  s.SetText(F("txtNumIndividualStateParams"), "7");
  RelayoutScenario(s);
  const clsScenario unchanged = s;
  EXPECT_NE(AddStateVariables(s, StatePreset::Outbreak, EnglishMessages()), std::nullopt) << "7 + 4 passes ten";
  EXPECT_EQ(s, unchanged);
  EXPECT_EQ(AddStateVariables(s, StatePreset::Spatial, EnglishMessages()), std::nullopt)
      << "7 + 3 is exactly the maximum";
}

TEST(NewScenario, EveryGridHasTheShapeOfItsCounts) {
  const clsScenario s = NewScenarioDefaults();
  clsScenario reshaped = s;
  RelayoutScenario(reshaped);
  EXPECT_EQ(reshaped, s);
  EXPECT_EQ(s.Notes().rows(), 14u);
  for (Field group : {F("optExtinctDef_0"), F("optMPHLQ_0"), F("optUseMean_0"), F("optStartWith_0"),
                      F("GTallyOptButton_0"), F("SSOptGenMgtPairMK_0")}) {
    int chosen = 0;
    for (Field option : OptionGroupOf(group)) chosen += s.Truth(option) ? 1 : 0;
    EXPECT_EQ(chosen, 1) << Describe(group).member;
  }
}

}  // namespace
}  // namespace tamsic
