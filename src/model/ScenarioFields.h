#pragma once
// The one table that describes every stored field of a scenario: the member
// name of the page control that edits it, the key it is written under, its
// kind, the file section it belongs to and the comment written beside it.
// Record access by name, the project writer and the project reader all walk
// this table, so they cannot drift apart. The table is in file order.
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

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
};

namespace detail {
using K = FieldKind;
using S = ScenarioSection;
// clang-format off
inline constexpr FieldDescriptor kFieldTable[] = {
  {"Notes", "ScenarioNotes", K::Grid, S::ScenarioNotes, "Scenario Notes in RTF format"},

  {"txtSceneName", "ScenarioName", K::Text, S::SimulationSettings, "Scenario name"},
  {"txtNumIter", "NumIter", K::Text, S::SimulationSettings, "Number of iterations/simulations"},
  {"txtNumYear", "NumYears", K::Text, S::SimulationSettings, "Number of years"},
  {"txtNumDays", "NumDays", K::Text, S::SimulationSettings, "Number of days"},
  {"optExtinctDef_0", "ExtinctDef0", K::Truth, S::SimulationSettings, "Extinction definition 0 (one of ExtinctDef0 and ExtinctDef1 *must* be FALSE and the other must be TRUE)"},
  {"optExtinctDef_1", "ExtinctDef1", K::Truth, S::SimulationSettings, "Extinction definition 1"},
  {"txtExtinctN", "CriticalSize", K::Text, S::SimulationSettings, "Critical size"},
  {"txtNumPop", "NumPop", K::Text, S::SimulationSettings, "Number of populations"},

  {"chkDepress", "InbreedDepress", K::Check, S::SpeciesDescription, "Inbreeding depression?"},
  {"txtLethalEquiv", "LethalEquiv", K::Text, S::SpeciesDescription, "Lethal equivalents"},
  {"txtPercentLethal", "PercentLethal", K::Text, S::SpeciesDescription, "Percent due to recessive lethals"},
  {"chkEVConcord", "EVConcord", K::Check, S::SpeciesDescription, "EV concordance?"},
  {"txtNumCatast", "NumCatast", K::Text, S::SpeciesDescription, "Number of types of catastrophes"},
  {"txtEV", "EV", K::Text, S::SpeciesDescription, "EV Correlation"},
  {"txtDispYoung", "DispYoung", K::Text, S::SpeciesDescription, "Lower age for dispersal"},
  {"txtDispOld", "DispOld", K::Text, S::SpeciesDescription, "Upper age for dispersal"},
  {"chkDispFemales", "DispFemales", K::Check, S::SpeciesDescription, "Females disperse?"},
  {"chkDispMales", "DispMales", K::Check, S::SpeciesDescription, "Males disperse?"},
  {"txtPercentDispSurvive", "PercentDispSurvive", K::Text, S::SpeciesDescription, "% survival of dispersers"},
  {"txtDensDispersal", "DensDispersal", K::Text, S::SpeciesDescription, "Minimum density for dispersal"},

  {"txtNumPopStateVars", "NumPopStateVars", K::Text, S::PopulationLabels, "Num Population State Vars?"},
  {"gridPopLabels", "PopLabels", K::Grid, S::PopulationLabels, "Population Labels"},
  {"txtNumGlobalVars", "NumGlobalVars", K::Text, S::PopulationLabels, "Num Global State Vars?"},
  {"gridGlobalVars", "GlobalVars", K::Grid, S::PopulationLabels, "Global State Vars"},
  {"txtNumIndividualStateParams", "NumIndivStateVars", K::Text, S::PopulationLabels, "Num Individual State Vars?"},
  {"gridIndividualStateParams", "IndivStateVars", K::Grid, S::PopulationLabels, "Individual State Vars"},

  {"gridDispRates", "DispRates", K::Grid, S::DispersalRates, "Dispersal rates"},

  {"optMPHLQ_0", "Monogamous", K::Truth, S::ReproductiveSystem, "Monogamous?"},
  {"optMPHLQ_1", "Polygamous", K::Truth, S::ReproductiveSystem, "Polygamous?"},
  {"optMPHLQ_2", "Hermaphroditic", K::Truth, S::ReproductiveSystem, "Hermaphroditic?"},
  {"optMPHLQ_3", "LTMonogamous", K::Truth, S::ReproductiveSystem, "Long Term Monogamous?"},
  {"optMPHLQ_4", "LTPolygamous", K::Truth, S::ReproductiveSystem, "Long Term Polygamous?"},
  {"txtAgeReproF", "AgeReproF", K::Text, S::ReproductiveSystem, "Age of first reproduction for females"},
  {"txtAgeReproM", "AgeReproM", K::Text, S::ReproductiveSystem, "Age of first reproduction for males"},
  {"txtMaxAgeRepro", "AgeRepro", K::Text, S::ReproductiveSystem, "Maximum age of reproduction"},
  {"txtMaxLitters", "MaxLitters", K::Text, S::ReproductiveSystem, "Maximum number litters per year"},
  {"txtMaxProgeny", "MaxProgeny", K::Text, S::ReproductiveSystem, "Maximum number progeny per litter"},
  {"txtSexRatio", "SexRatio", K::Text, S::ReproductiveSystem, "Sex Ratio"},
  {"gridReproSys", "ReproSys", K::Grid, S::ReproductiveSystem, "Density dependent reproduction"},

  {"gridRepRates1", "RepRates1", K::Grid, S::ReproductiveRates, "% Adult Females Breeding / EV in % Breeding"},
  {"optUseMean_0", "UseMean0", K::Truth, S::ReproductiveRates, "Use mean and SD?"},
  {"optUseMean_1", "UseMean1", K::Truth, S::ReproductiveRates, "Use mean and SD?"},
  {"gridRepRates2", "RepRates2", K::Grid, S::ReproductiveRates, "Mean/Standard Deviation"},
  {"gridRepRates3", "RepRates3", K::Grid, S::ReproductiveRates, "Full specification [1-n Offspring]"},
  {"gridRepRates4", "RepRates4", K::Grid, S::ReproductiveRates, "Distribution of Litters"},

  {"gridMortFemales", "MortFemales", K::Grid, S::Mortality, "Females"},
  {"gridMortMales", "MortMales", K::Grid, S::Mortality, "Males"},

  {"gridCatastropheLabels", "CatastropheLabels", K::Grid, S::Catastrophes, ""},
  {"gridCatastrophes1", "Catastrophes1", K::Grid, S::Catastrophes, ""},
  {"gridCatastrophes2", "Catastrophes2", K::Grid, S::Catastrophes, ""},

  {"gridDegMonop", "DegMonop", K::Grid, S::Monopolization, "% Males in Breeding Pool / % Males Successfully Siring Offspring / % Mean # Offspring/Successful Sire"},

  {"optStartWith_0", "StartWith0", K::Truth, S::InitialPopulationSize, "Stable age distribution? 0"},
  {"optStartWith_1", "StartWith1", K::Truth, S::InitialPopulationSize, "Stable age distribution? 1"},
  {"gridInitPopStable", "InitPopStable", K::Grid, S::InitialPopulationSize, "Initial population size"},
  {"gridInitPopFemale", "InitPopFemale", K::Grid, S::InitialPopulationSize, "Female ages"},
  {"gridInitPopMale", "InitPopMale", K::Grid, S::InitialPopulationSize, "Male ages"},

  {"gridCarryingCap1", "CarryingCap1", K::Grid, S::CarryingCapacity, "Carrying Capacity (k) / SD in K Due to EV"},
  {"gridCarryingCap2", "CarryingCap2", K::Grid, S::CarryingCapacity, "Trend in K? / Over how many years? / % annual increase decrease?"},

  {"gridHarvest", "Harvest", K::Grid, S::Harvest, "Harvest Population? / First Year of Harvest / Last Year of Harvest / Interval Between Harvests"},
  {"gridHarvestF", "HarvestF", K::Grid, S::Harvest, "Female harvest [Age 1-n harvested]"},
  {"gridHarvestM", "HarvestM", K::Grid, S::Harvest, "Male harvest [Age 1-n harvested]"},

  {"gridSuppl", "Suppl", K::Grid, S::Supplementation, "Supplement Population? / First Year of Supplement / Last Year of Supplement / Interval Between Supplements"},
  {"gridSupplF", "SupplF", K::Grid, S::Supplementation, "Female Supplement [Age 1-n Supplemented]"},
  {"gridSupplM", "SupplM", K::Grid, S::Supplementation, "Male Supplement [Age 1-n Supplemented]"},

  {"chkGenMgtImportStudbookFile", "ImportStudbookFile", K::Check, S::GeneticManagement, "ImportStudbookFile?"},
  {"txtGenMgtImportStudbookFile", "StudbookFile", K::Text, S::GeneticManagement, "StudbookFile?"},
  {"txtGenMgtNumNeutralLoci", "NumNeutralLoci", K::Text, S::GeneticManagement, "NumNeutralLoci?"},
  {"GTallyOptButton_0", "Locus1Only", K::Truth, S::GeneticManagement, "LociToTally?"},
  {"GTallyOptButton_1", "NotLocus1", K::Truth, S::GeneticManagement, "LociToTally?"},
  {"GTallyOptButton_2", "AllLoci", K::Truth, S::GeneticManagement, "LociToTally?"},
  {"chkGenMgtAlleleFreqs", "ImportAlleleFreqsFile", K::Check, S::GeneticManagement, "ImportAlleleFreqsFile?"},
  {"txtGenMgtAlleleFreqs", "AlleleFreqsFile", K::Text, S::GeneticManagement, "AlleleFreqsFile?"},
  {"chkGenMgtBreedToMaintinK", "BreedMaintainK", K::Check, S::GeneticManagement, "BreedMaintainK?"},
  {"chkGenMgtPreventMatingsF", "PreventMatingsF", K::Check, S::GeneticManagement, "PreventMatingsF?"},
  {"txtGenMgtPreventMatingsF", "PreventMatingsFValue", K::Text, S::GeneticManagement, "PreventMatingsFValue?"},
  {"chkGenMgtPairMeanKinship", "PairMeanKinship", K::Check, S::GeneticManagement, "PairMeanKinship?"},
  {"SSOptGenMgtPairMK_0", "PairMeanKinshipDynamic", K::Truth, S::GeneticManagement, "PairMeanKinshipDynamic?"},
  {"SSOptGenMgtPairMK_1", "PairMeanKinshipStatic", K::Truth, S::GeneticManagement, "PairMeanKinshipStatic?"},
  {"txtGenMgtMaxNumMates", "MaxNumMates", K::Text, S::GeneticManagement, "MaxNumMates?"},
  {"txtGenMgtPairingLimitation", "PairingLimitation", K::Text, S::GeneticManagement, "PairingLimitation?"},
  {"txtGenMgtNumTimesTryFindMate", "NumTriesFindMate", K::Text, S::GeneticManagement, "NumTriesFindMate?"},
  {"chkGenMgtOutputGenePop", "OutputGenePop", K::Check, S::GeneticManagement, "OutputGenePop?"},
  {"chkGenMgtOutputAlleleFreq", "OutputAlleleFreqFile", K::Check, S::GeneticManagement, "OutputAlleleFreqFile?"},
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
