#include "model/NewScenario.h"

#include <initializer_list>

#include "model/ScenarioShape.h"

namespace tamsic {

namespace {

void Choose(clsScenario& s, Field option) {
  for (Field member : OptionGroupOf(option)) s.SetTruth(member, member == option);
}

void Row(clsScenario& s, Field field, std::size_t row, std::initializer_list<const char*> cells) {
  Grid grid = s.GetGrid(field);
  std::size_t col = 1;
  for (const char* cell : cells) grid.at(row, col++) = cell;
  s.SetGrid(field, std::move(grid));
}

void Column(clsScenario& s, Field field, std::size_t col, std::initializer_list<const char*> cells) {
  Grid grid = s.GetGrid(field);
  std::size_t row = 1;
  for (const char* cell : cells) grid.at(row++, col) = cell;
  s.SetGrid(field, std::move(grid));
}

void Settings(clsScenario& s) {
  s.SetText(F("txtSceneName"), "Baseline");
  s.SetText(F("txtNumIter"), "500");
  s.SetText(F("txtNumYear"), "100");
  s.SetText(F("txtNumDays"), "365");
  Choose(s, F("optExtinctDef_0"));
  s.SetText(F("txtNumPop"), "1");
  s.SetText(F("txtNumPopStateVars"), "0");
  s.SetText(F("txtNumGlobalVars"), "0");
  s.SetText(F("txtNumIndividualStateParams"), "0");
  s.SetCheck(F("chkDepress"), 1);
  s.SetText(F("txtLethalEquiv"), "6.29");
  s.SetText(F("txtPercentLethal"), "50");
  s.SetText(F("txtNumCatast"), "1");
  s.SetText(F("txtEV"), "0.5");
  s.SetText(F("txtDispYoung"), "1");
  s.SetText(F("txtDispOld"), "2");
  s.SetCheck(F("chkDispFemales"), 1);
  s.SetCheck(F("chkDispMales"), 1);
  s.SetText(F("txtPercentDispSurvive"), "80");
  Choose(s, F("optMPHLQ_1"));
  s.SetText(F("txtAgeReproF"), "2");
  s.SetText(F("txtAgeReproM"), "3");
  s.SetText(F("txtMaxAgeRepro"), "13");
  s.SetText(F("txtMaxLitters"), "1");
  s.SetText(F("txtMaxProgeny"), "1");
  s.SetText(F("txtSexRatio"), "50");
  Choose(s, F("optUseMean_1"));
  Choose(s, F("optStartWith_0"));
  s.SetText(F("txtGenMgtNumNeutralLoci"), "10");
  Choose(s, F("GTallyOptButton_2"));
  Choose(s, F("SSOptGenMgtPairMK_0"));
  s.SetText(F("txtGenMgtMaxNumMates"), "1");
  s.SetText(F("txtGenMgtNumTimesTryFindMate"), "10");
}

void Grids(clsScenario& s) {
  RelayoutScenario(s);
  Row(s, F("gridPopLabels"), 1, {"Population 1"});
  RelayoutScenario(s);  // the label heads every other grid
  Column(s, F("gridReproSys"), 1, {"0"});
  Row(s, F("gridRepRates1"), 1, {"65", "10"});
  Row(s, F("gridRepRates2"), 1, {"1", "0"});
  Row(s, F("gridRepRates3"), 1, {"0"});
  Row(s, F("gridRepRates3"), 2, {"100.00"});
  Row(s, F("gridRepRates4"), 1, {"100.00"});
  Row(s, F("gridMortFemales"), 1, {"25", "6", "15", "4", "10", "3"});
  Row(s, F("gridMortMales"), 1, {"25", "6", "18", "4", "18", "4", "12", "3"});
  Grid labels = s.GetGrid(F("gridCatastropheLabels"));
  labels.at(0, 1) = "Drought";
  s.SetGrid(F("gridCatastropheLabels"), std::move(labels));
  Row(s, F("gridCatastrophes1"), 1, {"Local", "10"});
  Row(s, F("gridCatastrophes2"), 1, {"0.8", "0.9"});
  Column(s, F("gridDegMonop"), 1, {"50"});
  Row(s, F("gridInitPopStable"), 1, {"250"});
  Column(s, F("gridCarryingCap1"), 1, {"300", "30"});
  Column(s, F("gridCarryingCap2"), 1, {"0"});
  Column(s, F("gridHarvest"), 1, {"0"});
  Column(s, F("gridSuppl"), 1, {"0"});
}

}  // namespace

clsScenario NewScenarioDefaults() {
  clsScenario s;
  Settings(s);
  Grids(s);
  s.ResetNotes();
  return s;
}

}  // namespace tamsic
