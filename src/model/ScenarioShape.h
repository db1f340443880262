#pragma once
// The counts a scenario's grids are shaped by, read from the scenario's own
// count and age fields, and the re-shaping of every grid when one of them
// changes. Restoring a scenario never re-shapes: the grids are shown as stored.
#include "model/GridLayouts.h"
#include "model/clsScenario.h"

namespace tamsic {

// Population labels come from the label column of gridPopLabels; a population
// without a label is headed by its number.
LayoutCounts CountsOf(const clsScenario& scenario);

// Gives every grid the shape of the scenario's counts, keeping the values that still fit.
void RelayoutScenario(clsScenario& scenario);

// The option buttons of the group that `option` belongs to, `option` included.
std::vector<Field> OptionGroupOf(Field option);

}  // namespace tamsic
