#pragma once
// The three measures of mate monopolization on their page are equivalent:
// when the user changes one of them for a population, the engine works out
// the other two for that population held at K, from a saved copy of the
// project (tcheckin loads it, findpolyg answers).
#include <optional>
#include <string>

#include "engine/Engine.h"
#include "model/clsScenario.h"

namespace tamsic {

// Fills, in `after`, the two other measures of each population whose one
// measure of gridDegMonop changed from `before` to a plain number. `workFile`
// holds the project with `after` as scenario `number`. Answers the engine's
// first error (the measures of that population stay as the user left them).
std::optional<std::string> ApplyMatesEquivalents(const clsScenario& before, clsScenario& after, std::size_t number,
                                                 const std::string& workFile, Engine& engine);

// Whether any measure changed to a plain number, so that the engine is worth asking.
bool MatesMeasureChanged(const clsScenario& before, const clsScenario& after);

}  // namespace tamsic
