#pragma once
// Records with every field set to a value of its own, for round trips.
#include "files/ProjectDocument.h"

namespace tamsic::test {

// Every scalar holds a distinct text or state; every grid is rows x cols of distinct cells.
clsScenario FilledScenario(int salt, std::size_t rows = 3, std::size_t cols = 4);
ProjectDocument FilledProject(std::size_t scenarios);

}  // namespace tamsic::test
