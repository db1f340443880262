// Writes the example projects into the folder given on the command line.
// The life-history values and where they come from are in docs/examples.md.
#include <iostream>

#include "ExampleScenario.h"
#include "app/EnglishMessages.h"
#include "files/ProjectFile.h"
#include "model/Errors.h"

namespace tamsic::examples {
namespace {

class PrintingBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest& request) override {
    std::cerr << request.caption << ": " << request.text << "\n";
    return MsgAnswer::Ok;
  }
};

// Settings both examples share: a century, 500 iterations, genetics tracked.
void CommonSettings(ExampleScenario& s) {
  s.text(F("txtNumIter"), "500").text(F("txtNumYear"), "100").text(F("txtNumDays"), "365");
  s.text(F("txtExtinctN"), "").text(F("txtNumPopStateVars"), "0").text(F("txtNumGlobalVars"), "0");
  s.text(F("txtNumIndividualStateParams"), "0");
  s.check(F("chkDepress")).text(F("txtLethalEquiv"), "6.29").text(F("txtPercentLethal"), "50");
  s.text(F("txtPercentDispSurvive"), "100").text(F("txtDensDispersal"), "");
  s.option(F("optMPHLQ_1")).text(F("txtSexRatio"), "50").text(F("txtMaxLitters"), "1").text(F("txtMaxProgeny"), "1");
  s.option(F("optUseMean_1"));
  s.cell(F("gridRepRates3"), 1, 1, "0").cell(F("gridRepRates3"), 2, 1, "100");
  s.cell(F("gridRepRates4"), 1, 1, "100");
  s.option(F("optStartWith_0"));
  s.text(F("txtGenMgtNumNeutralLoci"), "10").option(F("GTallyOptButton_2"));
  s.text(F("txtGenMgtNumTimesTryFindMate"), "10").text(F("txtGenMgtMaxNumMates"), "1");
  s.text(F("txtGenMgtPairingLimitation"), "").text(F("txtGenMgtPreventMatingsF"), "");
}

ProjectDocument Gorillas() {
  LayoutCounts counts{{"Virunga"}, 0, 0, 0, 1, 10, 15, 40, 1, 1};
  ExampleScenario s("Baseline", counts);
  CommonSettings(s);
  s.text(F("txtNumPop"), "1").text(F("txtNumCatast"), "1").text(F("txtEV"), "0");
  s.text(F("txtDispYoung"), "1").text(F("txtDispOld"), "3");
  s.text(F("txtAgeReproF"), "10").text(F("txtAgeReproM"), "15").text(F("txtMaxAgeRepro"), "40");
  s.cell(F("gridPopLabels"), 1, 1, "Virunga");
  s.column(F("gridReproSys"), 1, {"0", "", "", "", ""});
  s.row(F("gridRepRates1"), 1, {"25", "5"});
  s.row(F("gridRepRates2"), 1, {"1", "0"});
  s.row(F("gridMortFemales"), 1, {"22", "5", "6", "2", "4", "1.5", "3", "1", "3", "1", "3", "1", "3", "1",
                                  "3", "1", "3", "1", "3", "1", "3.5", "1"});
  s.row(F("gridMortMales"), 1, {"22", "5", "6", "2", "4", "1.5", "3", "1", "3", "1", "3", "1", "3", "1",
                                "4", "1", "4", "1", "4", "1", "5", "1.5", "5", "1.5", "5", "1.5", "5", "1.5",
                                "5", "1.5", "5", "1.5"});
  s.cell(F("gridCatastropheLabels"), 0, 1, "Respiratory disease");
  s.row(F("gridCatastrophes1"), 1, {"Local", "2"});
  s.row(F("gridCatastrophes2"), 1, {"0.9", "0.8"});
  s.column(F("gridDegMonop"), 1, {"40", "", ""});
  s.row(F("gridInitPopStable"), 1, {"480"});
  s.column(F("gridCarryingCap1"), 1, {"650", "30"});
  s.column(F("gridCarryingCap2"), 1, {"0", "", ""});
  s.column(F("gridHarvest"), 1, {"0", "", "", "", ""});
  s.column(F("gridSuppl"), 1, {"0", "", "", "", ""});

  ProjectDocument project;
  project.title = "Mountain gorillas";
  project.notes = "Example: the Virunga mountain gorilla population, one population with a disease risk.";
  project.users = {"Tamsic examples"};
  project.scenarios.Add(s.scenario());
  return project;
}

ExampleScenario KoalaBaseline() {
  LayoutCounts counts{{"Northern ridge", "River flats", "Eastern remnant"}, 0, 0, 0, 2, 2, 3, 13, 1, 1};
  ExampleScenario s("Baseline", counts);
  CommonSettings(s);
  s.text(F("txtNumPop"), "3").text(F("txtNumCatast"), "2").text(F("txtEV"), "0.5").check(F("chkEVConcord"));
  s.text(F("txtDispYoung"), "1").text(F("txtDispOld"), "2").check(F("chkDispFemales")).check(F("chkDispMales"));
  s.text(F("txtPercentDispSurvive"), "80");
  s.text(F("txtAgeReproF"), "2").text(F("txtAgeReproM"), "3").text(F("txtMaxAgeRepro"), "13");
  const char* names[] = {"Northern ridge", "River flats", "Eastern remnant"};
  for (std::size_t p = 1; p <= 3; ++p) {
    s.cell(F("gridPopLabels"), p, 1, names[p - 1]);
    s.column(F("gridReproSys"), p, {"0", "", "", "", ""});
    s.row(F("gridRepRates1"), p, {"65", "10"});
    s.row(F("gridRepRates2"), p, {"1", "0"});
    s.row(F("gridMortFemales"), p, {"25", "6", "15", "4", "10", "3"});
    s.row(F("gridMortMales"), p, {"25", "6", "18", "4", "18", "4", "12", "3"});
    s.row(F("gridCatastrophes1"), p, {"Local", "4", "Global", "10"});
    s.row(F("gridCatastrophes2"), p, {"0.6", "0.7", "0.8", "0.9"});
    s.column(F("gridDegMonop"), p, {"50", "", ""});
    s.column(F("gridHarvest"), p, {"0", "", "", "", ""});
    s.column(F("gridSuppl"), p, {"0", "", "", "", ""});
    s.column(F("gridCarryingCap2"), p, {"0", "", ""});
  }
  s.row(F("gridDispRates"), 1, {"", "4", "1"});
  s.row(F("gridDispRates"), 2, {"6", "", "3"});
  s.row(F("gridDispRates"), 3, {"2", "4", ""});
  s.cell(F("gridCatastropheLabels"), 0, 1, "Bushfire").cell(F("gridCatastropheLabels"), 1, 1, "Drought");
  s.row(F("gridInitPopStable"), 1, {"250"}).row(F("gridInitPopStable"), 2, {"120"}).row(F("gridInitPopStable"), 3, {"40"});
  s.column(F("gridCarryingCap1"), 1, {"300", "30"}).column(F("gridCarryingCap1"), 2, {"150", "15"});
  s.column(F("gridCarryingCap1"), 3, {"80", "8"});
  s.column(F("gridCarryingCap2"), 3, {"1", "30", "-1"});
  return s;
}

ProjectDocument Koalas() {
  ExampleScenario baseline = KoalaBaseline();
  ExampleScenario managed = baseline;
  managed.text(F("txtSceneName"), "Managed");
  // Overbrowsed river flats: remove adults every five years; the small eastern
  // remnant gets adults from a captive colony every ten.
  managed.column(F("gridHarvest"), 2, {"1", "5", "50", "5", ""});
  managed.row(F("gridHarvestF"), 2, {"0", "5"}).row(F("gridHarvestM"), 2, {"0", "0", "3"});
  managed.column(F("gridSuppl"), 3, {"1", "10", "30", "10", ""});
  managed.row(F("gridSupplF"), 3, {"0", "4"}).row(F("gridSupplM"), 3, {"0", "0", "2"});

  // The corridors lost: no koala moves between the fragments.
  ExampleScenario isolated = baseline;
  isolated.text(F("txtSceneName"), "Isolated");
  isolated.row(F("gridDispRates"), 1, {"", "0", "0"});
  isolated.row(F("gridDispRates"), 2, {"0", "", "0"});
  isolated.row(F("gridDispRates"), 3, {"0", "0", ""});

  ProjectDocument project;
  project.title = "Koalas in three fragments";
  project.notes = "Example: a koala metapopulation in three forest fragments linked by dispersal, "
                  "with bushfire and drought, harvest and supplementation.";
  project.users = {"Tamsic examples"};
  project.scenarios.Add(baseline.scenario());
  project.scenarios.Add(managed.scenario());
  project.scenarios.Add(isolated.scenario());
  project.stScheme.NumItems = 3;
  project.stScheme.Items = {
      {1, 0, "Breeding -10%", {"PercentBreed_Pop1", "PercentBreed_Pop2", "PercentBreed_Pop3"}, {"=B*0.9", "=B*0.9", "=B*0.9"}},
      {1, 0, "Breeding +10%", {"PercentBreed_Pop1", "PercentBreed_Pop2", "PercentBreed_Pop3"}, {"=B*1.1", "=B*1.1", "=B*1.1"}},
      {1, 1, "Bushfires twice as often", {"CatastrophesFreq_Pop1_Cat1", "CatastrophesFreq_Pop2_Cat1", "CatastrophesFreq_Pop3_Cat1"}, {"8", "8", "8"}},
  };
  return project;
}

// A zoo population of red pandas started from its studbook, with and without genetic management.
ExampleScenario CaptiveBaseline() {
  LayoutCounts counts{{"Zoos"}, 0, 0, 0, 0, 2, 2, 15, 1, 2};
  ExampleScenario s("Unmanaged", counts);
  CommonSettings(s);
  s.text(F("txtNumYear"), "50").text(F("txtNumPop"), "1").text(F("txtNumCatast"), "0").text(F("txtEV"), "0");
  s.text(F("txtDispYoung"), "1").text(F("txtDispOld"), "2");
  s.option(F("optMPHLQ_0")).text(F("txtMaxProgeny"), "2");
  s.text(F("txtAgeReproF"), "2").text(F("txtAgeReproM"), "2").text(F("txtMaxAgeRepro"), "15");
  s.cell(F("gridRepRates3"), 1, 1, "0").cell(F("gridRepRates3"), 2, 1, "55").cell(F("gridRepRates3"), 3, 1, "45");
  s.cell(F("gridPopLabels"), 1, 1, "Zoos");
  s.column(F("gridReproSys"), 1, {"0", "", "", "", ""});
  s.row(F("gridRepRates1"), 1, {"60", "10"});
  s.row(F("gridRepRates2"), 1, {"1.5", "0.5"});
  s.row(F("gridMortFemales"), 1, {"30", "5", "10", "3", "8", "2"});
  s.row(F("gridMortMales"), 1, {"30", "5", "10", "3", "8", "2"});
  s.column(F("gridDegMonop"), 1, {"100", "", ""});
  s.row(F("gridInitPopStable"), 1, {"20"});
  s.column(F("gridCarryingCap1"), 1, {"40", "0"});
  s.column(F("gridCarryingCap2"), 1, {"0", "", ""});
  s.column(F("gridHarvest"), 1, {"0", "", "", "", ""});
  s.column(F("gridSuppl"), 1, {"0", "", "", "", ""});
  s.check(F("chkGenMgtImportStudbookFile")).text(F("txtGenMgtImportStudbookFile"), "Captive-studbook.txt");
  s.check(F("chkGenMgtAlleleFreqs")).text(F("txtGenMgtAlleleFreqs"), "Captive-alleles.txt");
  s.text(F("txtGenMgtNumNeutralLoci"), "5");
  return s;
}

ProjectDocument Captive() {
  ExampleScenario unmanaged = CaptiveBaseline();
  // The programme's rules: breed only to fill the places, pairs by mean kinship.
  ExampleScenario managed = unmanaged;
  managed.text(F("txtSceneName"), "Mean kinship");
  managed.check(F("chkGenMgtBreedToMaintinK")).check(F("chkGenMgtPairMeanKinship"));
  managed.check(F("chkGenMgtOutputGenePop")).check(F("chkGenMgtOutputAlleleFreq"));
  // Random pairs, but none closer than half sibs: in so small a population
  // few pairs are left, and fewer every generation.
  ExampleScenario strict = unmanaged;
  strict.text(F("txtSceneName"), "No close matings");
  strict.check(F("chkGenMgtPreventMatingsF")).text(F("txtGenMgtPreventMatingsF"), "0.125");

  ProjectDocument project;
  project.title = "Captive red pandas";
  project.notes = "Example: a zoo population started from its studbook and microsatellite allele frequencies, "
                  "with random mating, pairing by mean kinship, and matings of close relatives prevented.";
  project.users = {"Tamsic examples"};
  project.scenarios.Add(unmanaged.scenario());
  project.scenarios.Add(managed.scenario());
  project.scenarios.Add(strict.scenario());
  return project;
}

}  // namespace
}  // namespace tamsic::examples

int main(int argc, char** argv) {
  using namespace tamsic;
  if (argc != 2) {
    std::cerr << "usage: tamsic-make-examples FOLDER\n";
    return 2;
  }
  examples::PrintingBox box;
  EnglishMessages strings;
  Messages messages(box, strings);
  try {
    const std::string folder = argv[1];
    SaveProject(examples::Gorillas(), folder + "/Gorillas.tpj", messages);
    SaveProject(examples::Koalas(), folder + "/Koalas.tpj", messages);
    SaveProject(examples::Captive(), folder + "/Captive.tpj", messages);
  } catch (const TamsicError& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
  return 0;
}
