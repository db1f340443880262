#pragma once
// Which variables have a value in a function depends on where the function
// is evaluated: an individual's (A, S, IS1, ...) only in a rate worked out
// for one individual, a population's (N, K, PS1, ...) wherever a population
// is concerned, D and PP only in the dispersal modifier. A function that
// uses a variable without a value where it stands, or a state variable the
// scenario does not have, is refused before any iteration runs.
#include "sim/Model.h"

namespace tamsic::sim {

// Throws SimError naming the input and the variable.
void CheckVariableScopes(const Model& model);

}  // namespace tamsic::sim
