#pragma once
// The one table that describes every stored field of a scenario: the member
// name of the page control that edits it, the key it is written under, its
// kind, the file section it belongs to, the comment written beside it, and
// what it may hold (its rule, its default in a new scenario, its caption and
// hint, and for a grid the grid's layout). Record access by name, the project
// writer and reader, the input pages' checks, the grid layouts, a new
// scenario and the engine's reader all walk this table, so they cannot drift
// apart. The table is in file order.
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "model/GridDescriptions.h"

namespace tamsic {

enum class FieldKind {
  Text,   // the control's text as typed (possibly a function "=...")
  Truth,  // an option button: written True or False
  Check,  // a check box state: written 0 or 1
  Grid    // a whole table of texts
};

enum class ScenarioSection {
  ScenarioNotes,
  SimulationSettings,
  SpeciesDescription,
  PopulationLabels,
  DispersalRates,
  ReproductiveSystem,
  ReproductiveRates,
  Mortality,
  Catastrophes,
  Monopolization,
  InitialPopulationSize,
  CarryingCapacity,
  Harvest,
  Supplementation,
  GeneticManagement,
};
inline constexpr std::size_t kScenarioSectionCount = 15;

// The title that follows the scenario number in the section header ("3 Mortality").
constexpr std::string_view SectionTitle(ScenarioSection section) {
  constexpr std::array<std::string_view, kScenarioSectionCount> titles = {
      "Scenario Notes",    "Simulation Settings",     "Species Description",
      "Population Labels", "Dispersal Rates",         "Reproductive System",
      "Reproductive Rates", "Mortality",              "Catastrophes",
      "Monopolization",    "Initial Population Size", "Carrying Capacity",
      "Harvest",           "Supplementation",         "Genetic Management"};
  return titles[static_cast<std::size_t>(section)];
}

struct FieldDescriptor {
  std::string_view member;
  std::string_view key;
  FieldKind kind;
  ScenarioSection section;
  std::string_view comment;  // empty: no comment is written
  InputDescription input;
};

namespace detail {
using K = FieldKind;
using S = ScenarioSection;
// clang-format off
inline constexpr FieldDescriptor kFieldTable[] = {
  {"Notes", "ScenarioNotes", K::Grid, S::ScenarioNotes, "Scenario Notes in RTF format",
   GridInput(grids::kNotes, 0, 0)},

  {"txtSceneName", "ScenarioName", K::Text, S::SimulationSettings, "Scenario name",
   TextInput(AnyText(), "Baseline", 8, 1)},
  {"txtNumIter", "NumIter", K::Text, S::SimulationSettings, "Number of iterations/simulations",
   TextInput(WholeIn(1, 100000), "500", 9, 2)},
  {"txtNumYear", "NumYears", K::Text, S::SimulationSettings, "Number of years",
   TextInput(WholeIn(1, 2000), "100", 10, 3)},
  {"txtNumDays", "NumDays", K::Text, S::SimulationSettings, "Number of days",
   TextInput(WholeIn(1, 3650), "365", 11, 4)},
  {"optExtinctDef_0", "ExtinctDef0", K::Truth, S::SimulationSettings, "Extinction definition 0 (one of ExtinctDef0 and ExtinctDef1 *must* be FALSE and the other must be TRUE)",
   ChoiceInput("True", 13, 5)},
  {"optExtinctDef_1", "ExtinctDef1", K::Truth, S::SimulationSettings, "Extinction definition 1",
   ChoiceInput("False", 14, 16)},
  {"txtExtinctN", "CriticalSize", K::Text, S::SimulationSettings, "Critical size",
   TextInput(WholeIn(0, kMostIndividuals), "", 14, 6)},
  {"txtNumPop", "NumPop", K::Text, S::SimulationSettings, "Number of populations",
   TextInput(WholeIn(1, kMaxPopulations), "1", 15, 7)},

  {"chkDepress", "InbreedDepress", K::Check, S::SpeciesDescription, "Inbreeding depression?",
   ChoiceInput("1", 107, 101)},
  {"txtLethalEquiv", "LethalEquiv", K::Text, S::SpeciesDescription, "Lethal equivalents",
   TextInput(NumberIn(0, 100), "6.29", 108, 102)},
  {"txtPercentLethal", "PercentLethal", K::Text, S::SpeciesDescription, "Percent due to recessive lethals",
   TextInput(NumberIn(0, 100), "50", 109, 103)},
  {"chkEVConcord", "EVConcord", K::Check, S::SpeciesDescription, "EV concordance?",
   ChoiceInput("0", 110, 104)},
  {"txtNumCatast", "NumCatast", K::Text, S::SpeciesDescription, "Number of types of catastrophes",
   TextInput(WholeIn(0, kMaxCatastrophes), "1", 113, 106)},
  {"txtEV", "EV", K::Text, S::SpeciesDescription, "EV Correlation",
   TextInput(NumberIn(-1, 1), "0.5", 111, 105)},
  {"txtDispYoung", "DispYoung", K::Text, S::SpeciesDescription, "Lower age for dispersal",
   TextInput(WholeIn(0, kMaxAge), "1", 314, 307)},
  {"txtDispOld", "DispOld", K::Text, S::SpeciesDescription, "Upper age for dispersal",
   TextInput(WholeIn(0, kMaxAge), "2", 315, 309)},
  {"chkDispFemales", "DispFemales", K::Check, S::SpeciesDescription, "Females disperse?",
   ChoiceInput("1", 318, 311)},
  {"chkDispMales", "DispMales", K::Check, S::SpeciesDescription, "Males disperse?",
   ChoiceInput("1", 317, 310)},
  {"txtPercentDispSurvive", "PercentDispSurvive", K::Text, S::SpeciesDescription, "% survival of dispersers",
   TextInput(RateIn(0, 100), "80", 323, 312)},
  {"txtDensDispersal", "DensDispersal", K::Text, S::SpeciesDescription, "Minimum density for dispersal",
   TextInput(RateIn(-kSmall, kSmall), "", 324, 112)},

  {"txtNumPopStateVars", "NumPopStateVars", K::Text, S::PopulationLabels, "Num Population State Vars?",
   TextInput(WholeIn(0, kMaxStateVars), "0", 205, 203)},
  {"gridPopLabels", "PopLabels", K::Grid, S::PopulationLabels, "Population Labels",
   GridInput(grids::kPopLabels, 201, 204)},
  {"txtNumGlobalVars", "NumGlobalVars", K::Text, S::PopulationLabels, "Num Global State Vars?",
   TextInput(WholeIn(0, kMaxStateVars), "0", 235, 233)},
  {"gridGlobalVars", "GlobalVars", K::Grid, S::PopulationLabels, "Global State Vars",
   GridInput(grids::kGlobalVars, 234, 236)},
  {"txtNumIndividualStateParams", "NumIndivStateVars", K::Text, S::PopulationLabels, "Num Individual State Vars?",
   TextInput(WholeIn(0, kMaxStateVars), "0", 244, 237)},
  {"gridIndividualStateParams", "IndivStateVars", K::Grid, S::PopulationLabels, "Individual State Vars",
   GridInput(grids::kIndividualState, 238, 245)},

  {"gridDispRates", "DispRates", K::Grid, S::DispersalRates, "Dispersal rates",
   GridInput(grids::kDispersal, 302, 300)},

  {"optMPHLQ_0", "Monogamous", K::Truth, S::ReproductiveSystem, "Monogamous?",
   ChoiceInput("False", 429, 401)},
  {"optMPHLQ_1", "Polygamous", K::Truth, S::ReproductiveSystem, "Polygamous?",
   ChoiceInput("True", 430, 402)},
  {"optMPHLQ_2", "Hermaphroditic", K::Truth, S::ReproductiveSystem, "Hermaphroditic?",
   ChoiceInput("False", 431, 403)},
  {"optMPHLQ_3", "LTMonogamous", K::Truth, S::ReproductiveSystem, "Long Term Monogamous?",
   ChoiceInput("False", 432, 404)},
  {"optMPHLQ_4", "LTPolygamous", K::Truth, S::ReproductiveSystem, "Long Term Polygamous?",
   ChoiceInput("False", 433, 405)},
  {"txtAgeReproF", "AgeReproF", K::Text, S::ReproductiveSystem, "Age of first reproduction for females",
   TextInput(WholeIn(1, kMaxAge), "2", 434, 406)},
  {"txtAgeReproM", "AgeReproM", K::Text, S::ReproductiveSystem, "Age of first reproduction for males",
   TextInput(WholeIn(1, kMaxAge), "3", 435, 407)},
  {"txtMaxAgeRepro", "AgeRepro", K::Text, S::ReproductiveSystem, "Maximum age of reproduction",
   TextInput(WholeIn(1, kMaxAge), "13", 436, 408)},
  {"txtMaxLitters", "MaxLitters", K::Text, S::ReproductiveSystem, "Maximum number litters per year",
   TextInput(WholeIn(1, kMaxBroodsOrProgeny), "1", 437, 409)},
  {"txtMaxProgeny", "MaxProgeny", K::Text, S::ReproductiveSystem, "Maximum number progeny per litter",
   TextInput(WholeIn(1, kMaxBroodsOrProgeny), "1", 438, 410)},
  {"txtSexRatio", "SexRatio", K::Text, S::ReproductiveSystem, "Sex Ratio",
   TextInput(RateIn(0, 100), "50", 439, 411)},
  {"gridReproSys", "ReproSys", K::Grid, S::ReproductiveSystem, "Density dependent reproduction",
   GridInput(grids::kReproSys, 412, 400)},

  {"gridRepRates1", "RepRates1", K::Grid, S::ReproductiveRates, "% Adult Females Breeding / EV in % Breeding",
   GridInput(grids::kBreeding, 501, 500)},
  {"optUseMean_0", "UseMean0", K::Truth, S::ReproductiveRates, "Use mean and SD?",
   ChoiceInput("False", 511, 503)},
  {"optUseMean_1", "UseMean1", K::Truth, S::ReproductiveRates, "Use mean and SD?",
   ChoiceInput("True", 512, 507)},
  {"gridRepRates2", "RepRates2", K::Grid, S::ReproductiveRates, "Mean/Standard Deviation",
   GridInput(grids::kBroodSize, 504, 510)},
  {"gridRepRates3", "RepRates3", K::Grid, S::ReproductiveRates, "Full specification [1-n Offspring]",
   GridInput(grids::kProgeny, 505, 520)},
  {"gridRepRates4", "RepRates4", K::Grid, S::ReproductiveRates, "Distribution of Litters",
   GridInput(grids::kBroods, 506, 515)},

  {"gridMortFemales", "MortFemales", K::Grid, S::Mortality, "Females",
   GridInput(grids::kMortFemales, 601, 607)},
  {"gridMortMales", "MortMales", K::Grid, S::Mortality, "Males",
   GridInput(grids::kMortMales, 602, 614)},

  {"gridCatastropheLabels", "CatastropheLabels", K::Grid, S::Catastrophes, "",
   GridInput(grids::kCatastropheLabels, 707, 717)},
  {"gridCatastrophes1", "Catastrophes1", K::Grid, S::Catastrophes, "",
   GridInput(grids::kCatastrophes, 701, 708)},
  {"gridCatastrophes2", "Catastrophes2", K::Grid, S::Catastrophes, "",
   GridInput(grids::kSeverity, 703, 716)},

  {"gridDegMonop", "DegMonop", K::Grid, S::Monopolization, "% Males in Breeding Pool / % Males Successfully Siring Offspring / % Mean # Offspring/Successful Sire",
   GridInput(grids::kMonopoly, 805, 810)},

  {"optStartWith_0", "StartWith0", K::Truth, S::InitialPopulationSize, "Stable age distribution? 0",
   ChoiceInput("True", 907, 901)},
  {"optStartWith_1", "StartWith1", K::Truth, S::InitialPopulationSize, "Stable age distribution? 1",
   ChoiceInput("False", 908, 902)},
  {"gridInitPopStable", "InitPopStable", K::Grid, S::InitialPopulationSize, "Initial population size",
   GridInput(grids::kInitialSize, 903, 909)},
  {"gridInitPopFemale", "InitPopFemale", K::Grid, S::InitialPopulationSize, "Female ages",
   GridInput(grids::kInitialFemales, 904, 910)},
  {"gridInitPopMale", "InitPopMale", K::Grid, S::InitialPopulationSize, "Male ages",
   GridInput(grids::kInitialMales, 905, 911)},

  {"gridCarryingCap1", "CarryingCap1", K::Grid, S::CarryingCapacity, "Carrying Capacity (k) / SD in K Due to EV",
   GridInput(grids::kCapacity, 1001, 1000)},
  {"gridCarryingCap2", "CarryingCap2", K::Grid, S::CarryingCapacity, "Trend in K? / Over how many years? / % annual increase decrease?",
   GridInput(grids::kTrend, 1002, 1000)},

  {"gridHarvest", "Harvest", K::Grid, S::Harvest, "Harvest Population? / First Year of Harvest / Last Year of Harvest / Interval Between Harvests",
   GridInput(grids::kHarvest, 1101, 1112)},
  {"gridHarvestF", "HarvestF", K::Grid, S::Harvest, "Female harvest [Age 1-n harvested]",
   GridInput(grids::kHarvestFemales, 1102, 1109)},
  {"gridHarvestM", "HarvestM", K::Grid, S::Harvest, "Male harvest [Age 1-n harvested]",
   GridInput(grids::kHarvestMales, 1103, 1110)},

  {"gridSuppl", "Suppl", K::Grid, S::Supplementation, "Supplement Population? / First Year of Supplement / Last Year of Supplement / Interval Between Supplements",
   GridInput(grids::kSupplement, 1201, 1212)},
  {"gridSupplF", "SupplF", K::Grid, S::Supplementation, "Female Supplement [Age 1-n Supplemented]",
   GridInput(grids::kSupplementFemales, 1202, 1209)},
  {"gridSupplM", "SupplM", K::Grid, S::Supplementation, "Male Supplement [Age 1-n Supplemented]",
   GridInput(grids::kSupplementMales, 1203, 1210)},

  {"chkGenMgtImportStudbookFile", "ImportStudbookFile", K::Check, S::GeneticManagement, "ImportStudbookFile?",
   ChoiceInput("0", 1339, 1315)},
  {"txtGenMgtImportStudbookFile", "StudbookFile", K::Text, S::GeneticManagement, "StudbookFile?",
   TextInput(AnyText(), "", 0, 1316)},
  {"txtGenMgtNumNeutralLoci", "NumNeutralLoci", K::Text, S::GeneticManagement, "NumNeutralLoci?",
   TextInput(WholeIn(1, 1000), "10", 1342, 1321)},
  {"GTallyOptButton_0", "Locus1Only", K::Truth, S::GeneticManagement, "LociToTally?",
   ChoiceInput("False", 1357, 1337)},
  {"GTallyOptButton_1", "NotLocus1", K::Truth, S::GeneticManagement, "LociToTally?",
   ChoiceInput("False", 1358, 1338)},
  {"GTallyOptButton_2", "AllLoci", K::Truth, S::GeneticManagement, "LociToTally?",
   ChoiceInput("True", 1356, 1336)},
  {"chkGenMgtAlleleFreqs", "ImportAlleleFreqsFile", K::Check, S::GeneticManagement, "ImportAlleleFreqsFile?",
   ChoiceInput("0", 1340, 1318)},
  {"txtGenMgtAlleleFreqs", "AlleleFreqsFile", K::Text, S::GeneticManagement, "AlleleFreqsFile?",
   TextInput(AnyText(), "", 0, 1319)},
  {"chkGenMgtBreedToMaintinK", "BreedMaintainK", K::Check, S::GeneticManagement, "BreedMaintainK?",
   ChoiceInput("0", 1343, 1322)},
  {"chkGenMgtPreventMatingsF", "PreventMatingsF", K::Check, S::GeneticManagement, "PreventMatingsF?",
   ChoiceInput("0", 1344, 1326)},
  {"txtGenMgtPreventMatingsF", "PreventMatingsFValue", K::Text, S::GeneticManagement, "PreventMatingsFValue?",
   TextInput(NumberIn(0, 1), "", 1344, 1327)},
  {"chkGenMgtPairMeanKinship", "PairMeanKinship", K::Check, S::GeneticManagement, "PairMeanKinship?",
   ChoiceInput("0", 1347, 1328)},
  {"SSOptGenMgtPairMK_0", "PairMeanKinshipDynamic", K::Truth, S::GeneticManagement, "PairMeanKinshipDynamic?",
   ChoiceInput("True", 1348, 1329)},
  {"SSOptGenMgtPairMK_1", "PairMeanKinshipStatic", K::Truth, S::GeneticManagement, "PairMeanKinshipStatic?",
   ChoiceInput("False", 1349, 1330)},
  {"txtGenMgtMaxNumMates", "MaxNumMates", K::Text, S::GeneticManagement, "MaxNumMates?",
   TextInput(WholeIn(1, 1000), "1", 1350, 1331)},
  {"txtGenMgtPairingLimitation", "PairingLimitation", K::Text, S::GeneticManagement, "PairingLimitation?",
   TextInput(NumberIn(0, 1), "", 1351, 1332)},
  {"txtGenMgtNumTimesTryFindMate", "NumTriesFindMate", K::Text, S::GeneticManagement, "NumTriesFindMate?",
   TextInput(WholeIn(1, 1000), "10", 1352, 1333)},
  {"chkGenMgtOutputGenePop", "OutputGenePop", K::Check, S::GeneticManagement, "OutputGenePop?",
   ChoiceInput("0", 1353, 1334)},
  {"chkGenMgtOutputAlleleFreq", "OutputAlleleFreqFile", K::Check, S::GeneticManagement, "OutputAlleleFreqFile?",
   ChoiceInput("0", 1354, 1335)},
};
// clang-format on
}  // namespace detail

inline constexpr std::size_t kFieldCount = std::size(detail::kFieldTable);

// A field of the scenario record, by its position in the table.
struct Field {
  std::size_t index;
  bool operator==(const Field&) const = default;
};

inline constexpr const FieldDescriptor& Describe(Field field) { return detail::kFieldTable[field.index]; }

// The field of a member name, checked when the program is compiled:
// F("txtNumYear") is fine, F("txtNumYears") does not compile.
consteval Field F(std::string_view member) {
  for (std::size_t i = 0; i < kFieldCount; ++i)
    if (detail::kFieldTable[i].member == member) return Field{i};
  throw "no scenario field has this member name";
}

// Look-ups for names that arrive at run time (settings, sensitivity-test items).
std::optional<Field> FieldByMember(std::string_view member);
std::optional<Field> FieldByKey(std::string_view key);

}  // namespace tamsic
