#pragma once
// Every grid of a scenario: its shape, its lines with their headings, hints
// and rules, and its values in a new scenario. The field table refers to
// these; docs/grid-layouts.md draws each layout.
#include "model/InputDescription.h"

namespace tamsic {

// The largest counts a scenario may have; the grids are built up to them.
inline constexpr int kMaxPopulations = 50;
inline constexpr int kMaxStateVars = 10;
inline constexpr int kMaxCatastrophes = 25;
inline constexpr int kMaxAge = 200;
inline constexpr int kMaxBroodsOrProgeny = 100;

// Bounds of the grid cells: small counts, and numbers of the size of K.
inline constexpr double kSmall = 32767;
inline constexpr double kLarge = 60000;
inline constexpr int kMostIndividuals = 30000;

namespace grids {
using L = GridLine;
using D = std::string_view;

inline constexpr L kPopLabelsLines[] = {{"Label", 206, 201, AnyText()}, {"", 0, 202, AnyText()}};
inline constexpr D kPopLabelsDefaults[] = {"Population 1"};
inline constexpr GridDescription kPopLabels{GridShape::PopulationLabels, Lines::Counted, Count::PopStateVars, Sex::Female,
                                            1, kPopLabelsLines, kPopLabelsDefaults, "PS"};

inline constexpr L kGlobalVarsLines[] = {{"Function", 252, 234, AnyText()}};
inline constexpr GridDescription kGlobalVars{GridShape::StateVariables, Lines::Fixed, Count::GlobalVars, Sex::Female,
                                             1, kGlobalVarsLines, {}, "GS"};

inline constexpr L kIndividualStateLines[] = {{"Name", 246, 238, AnyText()},
                                              {"Init fn", 247, 239, AnyText()},
                                              {"Birth fn", 248, 240, AnyText()},
                                              {"Transition fn", 249, 241, AnyText()}};
inline constexpr GridDescription kIndividualState{GridShape::StateVariables, Lines::Fixed, Count::IndivStateVars,
                                                  Sex::Female, 1, kIndividualStateLines, {}, "IS"};

inline constexpr L kDispersalLines[] = {{"", 0, 302, RateIn(-kSmall, kSmall)}};
inline constexpr GridDescription kDispersal{GridShape::DispersalMatrix, Lines::Fixed, Count::None, Sex::Female, 1,
                                            kDispersalLines, {}};

inline constexpr L kReproSysLines[] = {{"Density dependent?", 424, 412, SwitchCell()},
                                       {"% Breeding at Low Density, P(0)", 425, 419, RateIn(0, kLarge)},
                                       {"% Breeding at Carrying Capacity, P(K)", 426, 420, RateIn(0, kLarge)},
                                       {"Allee Parameter, A", 427, 421, RateIn(0, kLarge)},
                                       {"Steepness Parameter, B", 428, 422, RateIn(0, kLarge)}};
inline constexpr D kReproSysDefaults[] = {"0"};
inline constexpr GridDescription kReproSys{GridShape::PopulationColumns, Lines::Fixed, Count::None, Sex::Female, 1,
                                           kReproSysLines, kReproSysDefaults};

inline constexpr L kBreedingLines[] = {{"% Adult Females Breeding", 508, 501, RateIn(0, 100)},
                                       {"EV in % Breeding", 509, 502, RateIn(0, 100)}};
inline constexpr D kBreedingDefaults[] = {"65", "10"};
inline constexpr GridDescription kBreeding{GridShape::PopulationRows, Lines::Fixed, Count::None, Sex::Female, 1,
                                           kBreedingLines, kBreedingDefaults};

inline constexpr L kBroodSizeLines[] = {{"Mean progeny per brood", 513, 504, RateIn(-kSmall, kSmall)},
                                        {"SD", 514, 504, RateIn(-kSmall, kSmall)}};
inline constexpr D kBroodSizeDefaults[] = {"1", "0"};
inline constexpr GridDescription kBroodSize{GridShape::PopulationRows, Lines::Fixed, Count::None, Sex::Female, 1,
                                            kBroodSizeLines, kBroodSizeDefaults};

// Distributions: the heading of the count column, then the percent column.
inline constexpr L kProgenyLines[] = {{"Offspring per brood", 518, 505, AnyText()}, {"%", 0, 505, NumberIn(0, 100)}};
inline constexpr D kProgenyDefaults[] = {"0", "100.00"};
inline constexpr GridDescription kProgeny{GridShape::Distribution, Lines::Counted, Count::MaxProgeny, Sex::Female, 0,
                                          kProgenyLines, kProgenyDefaults};

inline constexpr L kBroodsLines[] = {{"Broods per year", 516, 506, AnyText()}, {"%", 0, 506, NumberIn(0, 100)}};
inline constexpr D kBroodsDefaults[] = {"100.00"};
inline constexpr GridDescription kBroods{GridShape::Distribution, Lines::Counted, Count::MaxLitters, Sex::Female, 1,
                                         kBroodsLines, kBroodsDefaults};

// Headings are made from the ages; see MadeHeading.
inline constexpr L kMortalityLines[] = {{"", 0, 604, RateIn(0, 100)}, {"", 0, 606, RateIn(0, 100)}};
inline constexpr D kMortFemalesDefaults[] = {"25", "6", "15", "4", "10", "3"};
inline constexpr D kMortMalesDefaults[] = {"25", "6", "18", "4", "18", "4", "12", "3"};
inline constexpr GridDescription kMortFemales{GridShape::PopulationRows, Lines::MortalityPairs, Count::None, Sex::Female,
                                              1, kMortalityLines, kMortFemalesDefaults};
inline constexpr GridDescription kMortMales{GridShape::PopulationRows, Lines::MortalityPairs, Count::None, Sex::Male, 1,
                                            kMortalityLines, kMortMalesDefaults};

inline constexpr L kCatastropheLabelLines[] = {{"Catastrophe", 714, 707, AnyText()}};
inline constexpr D kCatastropheLabelDefaults[] = {"Drought"};
inline constexpr GridDescription kCatastropheLabels{GridShape::CatastropheLabels, Lines::Counted, Count::Catastrophes,
                                                    Sex::Female, 1, kCatastropheLabelLines, kCatastropheLabelDefaults};

inline constexpr L kCatastropheLines[] = {{"Global/Local", 709, 705, PlaceCell()}, {"Frequency %", 710, 702, RateIn(0, 100)}};
inline constexpr D kCatastropheDefaults[] = {"Local", "10"};
inline constexpr GridDescription kCatastrophes{GridShape::PopulationRows, Lines::CatastrophePairs, Count::Catastrophes,
                                               Sex::Female, 1, kCatastropheLines, kCatastropheDefaults};

inline constexpr L kSeverityLines[] = {{"Reproduction", 711, 704, RateIn(0, kLarge)}, {"Survival", 712, 706, RateIn(0, kLarge)}};
inline constexpr D kSeverityDefaults[] = {"0.8", "0.9"};
inline constexpr GridDescription kSeverity{GridShape::PopulationRows, Lines::CatastrophePairs, Count::Catastrophes,
                                           Sex::Female, 1, kSeverityLines, kSeverityDefaults};

inline constexpr L kMonopolyLines[] = {{"% Males in Breeding Pool", 807, 801, RateIn(0, 100)},
                                       {"% Males Successfully Siring Offspring", 808, 802, NumberIn(0, 100)},
                                       {"Mean Offspring per Successful Sire", 809, 803, NumberIn(0, kSmall)}};
inline constexpr D kMonopolyDefaults[] = {"50"};
inline constexpr GridDescription kMonopoly{GridShape::PopulationColumns, Lines::Fixed, Count::None, Sex::Female, 1,
                                           kMonopolyLines, kMonopolyDefaults};

inline constexpr L kInitialSizeLines[] = {{"Initial population size", 909, 903, WholeIn(0, kMostIndividuals)}};
inline constexpr D kInitialSizeDefaults[] = {"250"};
inline constexpr GridDescription kInitialSize{GridShape::PopulationRows, Lines::Fixed, Count::None, Sex::Female, 1,
                                              kInitialSizeLines, kInitialSizeDefaults};

inline constexpr L kInitialFemaleLines[] = {{"Females Age", 910, 904, WholeIn(0, kMostIndividuals)}};
inline constexpr GridDescription kInitialFemales{GridShape::PopulationRows, Lines::Ages, Count::MaxAge, Sex::Female, 1,
                                                 kInitialFemaleLines, {}};
inline constexpr L kInitialMaleLines[] = {{"Males Age", 911, 905, WholeIn(0, kMostIndividuals)}};
inline constexpr GridDescription kInitialMales{GridShape::PopulationRows, Lines::Ages, Count::MaxAge, Sex::Male, 1,
                                               kInitialMaleLines, {}};

inline constexpr L kCapacityLines[] = {{"Carrying Capacity (K)", 1008, 1003, RateIn(0, kLarge)},
                                       {"SD in K Due to EV", 1009, 1004, RateIn(0, kLarge)}};
inline constexpr D kCapacityDefaults[] = {"300", "30"};
inline constexpr GridDescription kCapacity{GridShape::PopulationColumns, Lines::Fixed, Count::None, Sex::Female, 1,
                                           kCapacityLines, kCapacityDefaults};

// A declining K is entered as a negative change; it cannot fall by more than all of it.
inline constexpr L kTrendLines[] = {{"Trend in K?", 1010, 1005, SwitchCell()},
                                    {"Over how many years?", 1011, 1006, WholeIn(0, 2000)},
                                    {"% annual increase/decrease", 1012, 1007, NumberIn(-100, 100)}};
inline constexpr D kOff[] = {"0"};
inline constexpr GridDescription kTrend{GridShape::PopulationColumns, Lines::Fixed, Count::None, Sex::Female, 1,
                                        kTrendLines, kOff};

inline constexpr L kHarvestLines[] = {{"Population Harvested?", 1114, 1104, SwitchCell()},
                                      {"First Year of Harvest", 1115, 1105, WholeIn(0, kSmall)},
                                      {"Last Year of Harvest", 1116, 1106, WholeIn(0, kSmall)},
                                      {"Interval Between Harvests", 1117, 1107, WholeIn(0, kSmall)},
                                      {"Optional Criterion for Harvest", 1118, 1108, RateIn(0, kSmall)}};
inline constexpr GridDescription kHarvest{GridShape::PopulationColumns, Lines::Fixed, Count::None, Sex::Female, 1,
                                          kHarvestLines, kOff};

inline constexpr L kSupplementLines[] = {{"Population Supplemented?", 1213, 1204, SwitchCell()},
                                         {"First Year of Supplement", 1214, 1205, WholeIn(0, kSmall)},
                                         {"Last Year of Supplement", 1215, 1206, WholeIn(0, kSmall)},
                                         {"Interval Between Supplements", 1216, 1207, WholeIn(0, kSmall)},
                                         {"Optional Criterion for Supplement", 1217, 1208, RateIn(0, kSmall)}};
inline constexpr GridDescription kSupplement{GridShape::PopulationColumns, Lines::Fixed, Count::None, Sex::Female, 1,
                                             kSupplementLines, kOff};

// Ages 1 up to the age of first offspring, the last column holding all adults.
inline constexpr L kHarvestFemaleLines[] = {{"Age", 1111, 1102, WholeRateIn(0, kSmall)}};
inline constexpr L kHarvestMaleLines[] = {{"Age", 1111, 1103, WholeRateIn(0, kSmall)}};
inline constexpr L kSupplementFemaleLines[] = {{"Age", 1111, 1202, WholeRateIn(0, kSmall)}};
inline constexpr L kSupplementMaleLines[] = {{"Age", 1111, 1203, WholeRateIn(0, kSmall)}};
inline constexpr GridDescription kHarvestFemales{GridShape::PopulationRows, Lines::AgeClasses, Count::None, Sex::Female,
                                                 1, kHarvestFemaleLines, {}};
inline constexpr GridDescription kHarvestMales{GridShape::PopulationRows, Lines::AgeClasses, Count::None, Sex::Male, 1,
                                               kHarvestMaleLines, {}};
inline constexpr GridDescription kSupplementFemales{GridShape::PopulationRows, Lines::AgeClasses, Count::None,
                                                    Sex::Female, 1, kSupplementFemaleLines, {}};
inline constexpr GridDescription kSupplementMales{GridShape::PopulationRows, Lines::AgeClasses, Count::None, Sex::Male,
                                                  1, kSupplementMaleLines, {}};

inline constexpr GridDescription kNotes{GridShape::Notes, Lines::Fixed, Count::None, Sex::Female, 1, {}, {}};

}  // namespace grids
}  // namespace tamsic
