#pragma once
// The first scenario of a new project: one population of a believable
// medium-sized mammal that runs as it stands, so that a new user sees
// sensible numbers on every page instead of zeros. docs/input-pages.md says
// where the values come from.
#include "model/clsScenario.h"

namespace tamsic {

clsScenario NewScenarioDefaults();

}  // namespace tamsic
