#pragma once
// One iteration of a scenario: founders, then the yearly cycle for NumYears
// years, with a census after each.
#include <cstdint>
#include <vector>

#include "sim/Model.h"
#include "sim/Record.h"
#include "sim/World.h"

namespace tamsic::sim {

// The founders of one population by sex and age (index 0 is age 1).
struct StartingNumbers {
  std::vector<int> byAge[2];
};

// Runs iteration `iteration` (from 1) into `record`, reusing `world`. A
// cancel request is seen every simulated year, so that one long iteration
// of a large population stops at once; false when it stopped so.
bool RunIteration(const Model& model, const std::vector<StartingNumbers>& start, std::uint64_t seed,
                  int iteration, World& world, IterationRecord& record);

// The genome layout a scenario needs.
GenomeShape ShapeOf(const Model& model);

}  // namespace tamsic::sim
