#pragma once
// Reads the state variables of a scenario: the individual ones (name,
// initial, birth and yearly functions), the population ones (the PS columns
// beside each population's label) and the global ones. An empty cell is 0,
// except an empty yearly function of an individual state variable, which
// leaves the value as it is.
#include "sim/CellReader.h"
#include "sim/Model.h"

namespace tamsic::sim {

// Needs the populations of `model` read already.
void ReadStateVariables(const CellReader& in, Model& model);

}  // namespace tamsic::sim
