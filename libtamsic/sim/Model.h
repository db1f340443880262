#pragma once
// A scenario's inputs in the form the yearly cycle uses them: counts as
// numbers, every rate cell as a Rate, grids cut into values per population,
// sex and age class. Read once per scenario (ReadModel) and then shared,
// unchanged, by all iterations.
#include <optional>
#include <string>
#include <vector>

#include "sim/Genetics.h"
#include "sim/Individual.h"
#include "sim/Options.h"
#include "sim/Rate.h"

namespace tamsic::sim {

enum class Mating { Monogamous, Polygamous, Hermaphroditic, LongTermMonogamous, LongTermPolygamous };

struct Catastrophe {
  bool global = false;
  Rate frequency;     // % per year
  Rate reproduction;  // proportion of normal breeding in a year it strikes
  Rate survival;      // proportion of normal survival
};

// Years, interval and criterion of a harvest or a supplementation.
struct Schedule {
  bool active = false;
  int first = 0;
  int last = 0;
  int interval = 1;
  std::optional<Rate> criterion;
};

// Per age class: ages 1 .. a-1 and then all adults (age a and older).
struct AgeClassCounts {
  std::vector<Rate> females;
  std::vector<Rate> males;
};

// An individual state variable: its value for founders and supplements, at
// birth, and its new value each year (none: the value stays as it is).
struct IndividualStateVar {
  std::string name;
  Rate initial;
  Rate birth;
  std::optional<Rate> transition;
};

struct PopulationModel {
  std::string label;
  Rate breeding;    // % adult females breeding
  Rate breedingSD;  // its SD from EV
  Rate broodMean;   // offspring per brood, mean and SD
  Rate broodSD;
  // Mortality pairs (mean %, SD) for ages 0-1 .. (a-1)-a, then all older ages.
  std::vector<Rate> mortality[2];
  std::vector<Rate> mortalitySD[2];
  std::vector<Catastrophe> catastrophes;
  Rate malesInPool;  // % of adult males in the breeding pool
  int initialSize = 0;
  std::vector<int> initial[2];  // by age 1..maxAge
  Rate capacity;
  Rate capacitySD;
  bool trend = false;
  int trendYears = 0;
  Rate trendPercent;
  Schedule harvest;
  AgeClassCounts harvested;
  Schedule supplement;
  AgeClassCounts supplemented;
  std::vector<Rate> dispersal;  // % per year to each population (own column ignored)
  std::vector<Rate> states;     // PS1, PS2, ...
};

struct Model {
  std::string name;
  int iterations = 0;
  int years = 0;
  bool criticalSizeExtinction = false;
  int criticalSize = 0;
  int populations = 0;
  bool inbreedingDepression = false;
  double lethalEquivalents = 0.0;
  double percentLethal = 0.0;
  bool concordance = false;
  double correlation = 0.0;  // of EV among populations
  int dispersalYoung = 0;
  int dispersalOld = 0;
  bool dispersing[2] = {false, false};
  Rate dispersalSurvival;               // %
  std::optional<Rate> dispersalModifier;  // a function of D and PP
  std::optional<double> dispersalMinimum; // a number there: the least N of a source
  Mating mating = Mating::Polygamous;
  int firstBreeding[2] = {2, 2};  // age of first offspring, by sex
  int maxAge = 10;
  int maxBroods = 1;
  int maxProgeny = 1;
  Rate sexRatio;  // % males at birth
  bool broodByMeanSD = true;
  std::vector<Rate> progenyPercent;  // 0..maxProgeny offspring per brood
  std::vector<Rate> broodPercent;    // 1..maxBroods broods per year
  bool startStable = true;
  int neutralLoci = 1;
  bool needsCounts = false;  // some function asks for N, F, M, ... of a population
  int userVariables = 0;  // state-variable columns of the yearly data
  std::vector<IndividualStateVar> individualStates;  // IS1, IS2, ...
  std::vector<Rate> globalStates;                    // GS1, GS2, ...
  std::vector<PopulationModel> pops;
  GeneticManagement genetics;
  Options options;

  bool sexual() const { return mating != Mating::Hermaphroditic; }
  int populationStates() const { return pops.empty() ? 0 : static_cast<int>(pops.front().states.size()); }
  bool hasStates() const { return !individualStates.empty() || populationStates() > 0 || !globalStates.empty(); }
  // The mortality age class of an individual of that sex and age.
  int mortalityClass(int sex, int age) const { return age < firstBreeding[sex] ? age : firstBreeding[sex]; }
};

}  // namespace tamsic::sim
