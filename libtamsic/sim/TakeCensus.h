#pragma once
// The census at the end of a year (and of the initial population as year 0):
// extinction by the scenario's definition, then size and genetics of each
// population and of the metapopulation.
#include "sim/Model.h"
#include "sim/Record.h"
#include "sim/World.h"

namespace tamsic::sim {

void TakeCensus(const Model& model, World& world, IterationRecord& record);

}  // namespace tamsic::sim
