#pragma once
// The two sets of Individual State variables a user can add with one click:
// a disease outbreak (DiseaseState, StatePermanent, DaysInState,
// IsVaccinated) and a spatial model (X, Y, SpatialIndex). They follow the
// variables already there, so their own numbers (=IS3 ...) are the highest.
#include <optional>
#include <string>

#include "model/Messages.h"
#include "model/clsScenario.h"

namespace tamsic {

enum class StatePreset { Outbreak, Spatial };

// Raises the count, re-shapes the grid and fills the new columns. A preset
// that would take the count past 10 changes nothing; the answer is then the
// message that says so, in the words of the table.
std::optional<std::string> AddStateVariables(clsScenario& scenario, StatePreset preset, const IStringTable& words);

}  // namespace tamsic
