#pragma once
// The initial numbers by age and sex of every population, spread from its
// initial size by the stable age distribution that the engine computes from
// the scenario's rates. The engine reads the scenario from a saved copy of
// the project: tcheckin loads it, then agedist answers one population size
// at a time.
#include <optional>
#include <string>

#include "engine/Engine.h"
#include "model/clsScenario.h"

namespace tamsic {

// Fills the rows of gridInitPopFemale and gridInitPopMale from each
// population's size in gridInitPopStable. `workFile` holds the project with
// this scenario as number `number`. Answers the engine's error, or nothing
// when every population was filled; on an error nothing is changed.
std::optional<std::string> ApplyStableAgeDistribution(clsScenario& scenario, std::size_t number,
                                                      const std::string& workFile, Engine& engine);

}  // namespace tamsic
