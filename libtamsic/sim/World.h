#pragma once
// The state of one iteration: the living individuals of each population,
// their genomes, this year's environment and the counts that functions ask
// for. One World per worker thread is reused from iteration to iteration,
// so its arrays keep their capacity and a year allocates nothing.
#include <cstdint>
#include <vector>

#include "sim/Distribution.h"
#include "sim/Genome.h"
#include "sim/Individual.h"
#include "sim/IndividualStates.h"
#include "sim/Kinship.h"
#include "sim/Random.h"
#include "sim/Record.h"

namespace tamsic::sim {

// Counts of a population that functions and the census use.
struct Counts {
  int n = 0;
  int females = 0;
  int males = 0;
  int adultFemales = 0;
  int adultMales = 0;
  int juveniles = 0;  // age 0-1
  int subadults = 0;  // older than 1, younger than the age of breeding
  double meanInbreeding = 0.0;
};

// This year's conditions of a population after EV and catastrophes.
struct YearConditions {
  double breedingDeviate = 0.0;  // EV deviate of % breeding
  double survivalDeviate = 0.0;  // EV deviate of mortality (signed so that + is a good year)
  double capacityDeviate = 0.0;
  double reproductionFactor = 1.0;  // product of the severities of the catastrophes that struck
  double survivalFactor = 1.0;
  double capacity = 0.0;  // K of this year
};

struct PopulationState {
  std::vector<Individual> members;
  Counts counts;
  YearConditions year;
  std::vector<int> lastCatastrophe;  // year each type last struck, -1 never
  bool extinct = false;              // at the last census
  double geneDiversity = 0.0;  // at the last census
  double initialGeneDiversity = 0.0;
  std::vector<double> states;  // PS1, PS2, ... of this year
};

struct World {
  World(std::uint64_t seed, std::uint64_t iteration) : random(seed, iteration) {}

  Random random;
  GenomePool genomes;
  KinshipMatrix kinship;  // kept exact for a studbook or the management of pairs
  // Neutral alleles of founders by locus, when they are drawn from frequencies.
  const std::vector<Discrete>* founderAlleles = nullptr;
  std::vector<PopulationState> pops;
  std::uint32_t nextId = 1;
  int iteration = 1;
  int year = 0;
  IndividualStates individualStates;  // IS1, IS2, ... of the living
  std::vector<double> globalStates;   // GS1, GS2, ... of this year

  // Work arrays of the yearly steps, kept to save allocations.
  std::vector<std::uint32_t> scratchA;
  std::vector<std::uint32_t> scratchB;
  std::vector<std::uint32_t> scratchC;
  std::vector<Individual> moving;
  std::vector<std::vector<Individual>> arrivals;  // dispersers by recipient
  std::vector<double> destinations;              // cumulative chances of a disperser's recipients
  std::vector<std::uint32_t> mayDisperse;         // members of the dispersing sexes and ages, by index
  std::vector<std::uint32_t> leaving;             // members who left, by index
  std::vector<double> nextStates;                // state values being worked out
  std::vector<double> stateColumn;               // ... and one variable of them for a batch
  std::vector<std::uint32_t> alleleCounts;       // the census' counts of alleles, or its room to sort them
  std::vector<std::uint16_t> narrowCounts;       // ... or its counts when 16 bits hold them

  // The iteration's list of everyone created, when the option "N" asks for it.
  std::vector<CreatedEntry>* created = nullptr;
  void noteCreated(const Individual& ind, int population, Origin origin) {
    if (created) created->push_back({ind, population, year, origin, -1});
  }
};

}  // namespace tamsic::sim
