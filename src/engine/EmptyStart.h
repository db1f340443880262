#pragma once
// A population given no individuals at the start is extinct from the first
// census; the run itself has nothing to say about it, so the program warns
// before running such a scenario.
#include <string>
#include <vector>

#include "model/clsScenario.h"

namespace tamsic {

// The labels of the populations that start with no individual: a stable-age
// start of size 0, or no one by age. None when a studbook gives the founders.
std::vector<std::string> PopulationsStartingEmpty(const clsScenario& scenario);

}  // namespace tamsic
