#pragma once
// The inputs of one population, read from the rows or columns of the
// scenario's grids that belong to it.
#include "sim/CellReader.h"
#include "sim/Model.h"

namespace tamsic::sim {

// `pop` counts from 0; `model` holds the counts and ages read so far.
PopulationModel ReadPopulation(const CellReader& in, const Model& model, int pop, int catastrophes);

}  // namespace tamsic::sim
