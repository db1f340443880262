// Writes the reference projects of the simulation benchmark (R1, R2, R3)
// into the folder given on the command line, with the program's own saver.
//   R1: one population, polygamous, breeding from age 2, at most age 10, 50 %
//       of females breed, one brood of 0..4 young in Poisson(2) proportions
//       (the rest in 4), mortality 40 % at age 0, 20 % at age 1, 10 % after,
//       no EV or catastrophes, K 1000, 500 at the stable age distribution,
//       100 years, 500 iterations.
//   R2: as R1 with K 5000 and 2500 at the start.
//   R3: two populations as R1, 5 % of those aged 1-2 dispersing each year.
#include <iostream>

#include "app/EnglishMessages.h"
#include "files/ProjectFile.h"
#include "model/GridLayouts.h"

namespace tamsic {
namespace {

class PrintingBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest& request) override {
    std::cerr << request.text << "\n";
    return MsgAnswer::Ok;
  }
};

void Set(clsScenario& s, Field grid, std::size_t row, std::size_t col, const std::string& value) {
  Grid table = s.GetGrid(grid);
  table.at(row, col) = value;
  s.SetGrid(grid, std::move(table));
}

// A value in every population's row (or column, for the settings grids).
void Each(clsScenario& s, Field grid, std::size_t index, int pops, const std::string& value) {
  for (std::size_t p = 1; p <= static_cast<std::size_t>(pops); ++p)
    PopulationsInColumns(grid) ? Set(s, grid, index, p, value) : Set(s, grid, p, index, value);
}

clsScenario Reference(const std::string& name, int pops, int start, int capacity) {
  LayoutCounts counts;
  for (int p = 1; p <= pops; ++p) counts.populations.push_back("Population " + std::to_string(p));
  clsScenario s;
  for (std::size_t i = 0; i < kFieldCount; ++i)
    if (Describe(Field{i}).kind == FieldKind::Grid) s.SetGrid(Field{i}, LayoutGrid(Field{i}, counts));
  s.ResetNotes();
  const std::pair<const char*, const char*> texts[] = {
      {"txtSceneName", name.c_str()}, {"txtNumIter", "500"}, {"txtNumYear", "100"}, {"txtNumDays", "365"},
      {"txtNumPop", pops == 1 ? "1" : "2"}, {"txtNumCatast", "0"}, {"txtEV", "0"}, {"txtDispYoung", "1"},
      {"txtDispOld", "2"}, {"txtPercentDispSurvive", "100"}, {"txtAgeReproF", "2"}, {"txtAgeReproM", "2"},
      {"txtMaxAgeRepro", "10"}, {"txtMaxLitters", "1"}, {"txtMaxProgeny", "4"}, {"txtSexRatio", "50"},
      {"txtGenMgtNumNeutralLoci", "10"}, {"txtNumPopStateVars", "0"}, {"txtNumGlobalVars", "0"},
      {"txtNumIndividualStateParams", "0"}};
  for (const auto& [member, value] : texts) s.SetText(*FieldByMember(member), value);
  for (const char* option : {"optExtinctDef_0", "optMPHLQ_1", "optUseMean_1", "optStartWith_0", "GTallyOptButton_2"})
    s.SetTruth(*FieldByMember(option), true);
  s.SetCheck(F("chkDispFemales"), pops > 1);
  s.SetCheck(F("chkDispMales"), pops > 1);
  const char* young[] = {"13.53", "27.07", "27.07", "18.04", "14.29"};
  for (std::size_t k = 0; k < 5; ++k) Set(s, F("gridRepRates3"), k + 1, 1, young[k]);
  Set(s, F("gridRepRates4"), 1, 1, "100");
  Each(s, F("gridRepRates1"), 1, pops, "50");
  Each(s, F("gridRepRates1"), 2, pops, "0");
  const char* mortality[] = {"40", "0", "20", "0", "10", "0"};
  for (std::size_t c = 0; c < 6; ++c) {
    Each(s, F("gridMortFemales"), c + 1, pops, mortality[c]);
    Each(s, F("gridMortMales"), c + 1, pops, mortality[c]);
  }
  Each(s, F("gridDegMonop"), 1, pops, "100");
  Each(s, F("gridInitPopStable"), 1, pops, std::to_string(start));
  Each(s, F("gridCarryingCap1"), 1, pops, std::to_string(capacity));
  Each(s, F("gridCarryingCap1"), 2, pops, "0");
  for (Field grid : {F("gridReproSys"), F("gridCarryingCap2"), F("gridHarvest"), F("gridSuppl")}) Each(s, grid, 1, pops, "0");
  if (pops > 1) {
    Set(s, F("gridDispRates"), 1, 2, "5");
    Set(s, F("gridDispRates"), 2, 1, "5");
  }
  return s;
}

void Write(const std::string& folder, const std::string& name, clsScenario scenario, Messages& messages) {
  ProjectDocument project;
  project.title = name;
  project.notes = "Reference project of the simulation benchmark.";
  project.users = {"Tamsic benchmarks"};
  project.scenarios.Add(std::move(scenario));
  SaveProject(project, folder + "/" + name + ".tpj", messages);
}

}  // namespace
}  // namespace tamsic

int main(int argc, char** argv) {
  using namespace tamsic;
  if (argc != 2) {
    std::cerr << "usage: tamsic-make-bench-projects FOLDER\n";
    return 2;
  }
  PrintingBox box;
  EnglishMessages strings;
  Messages messages(box, strings);
  Write(argv[1], "R1", Reference("R1", 1, 500, 1000), messages);
  Write(argv[1], "R2", Reference("R2", 1, 2500, 5000), messages);
  Write(argv[1], "R3", Reference("R3", 2, 500, 1000), messages);
  return 0;
}
