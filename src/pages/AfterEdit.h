#pragma once
// What follows from an edit of the input pages, worked out on the records
// before and after it: grids re-shaped when a count, an age or a population
// label changed; the density-dependent breeding function written into the
// reproductive rates; the last row of each exact distribution; the values
// some boxes take when they are filled in or left blank. Kept apart from the
// widgets so that the pages only show the result.
#include "model/Messages.h"
#include "model/clsScenario.h"

namespace tamsic {

void AfterEdit(const clsScenario& before, clsScenario& after);

// Whether a demographic rate (breeding, progeny, mortality, catastrophes,
// monopolization, carrying capacity) is a function, which the front end's own
// calculations from the rates cannot follow.
bool AnyRateIsFunction(const clsScenario& scenario);

// Whether any input of the scenario holds a function.
bool AnyInputIsFunction(const clsScenario& scenario);

// The cautions given when the stable age distribution is chosen or breeding
// to K is checked while a rate is a function; the values stay as chosen.
void WarnAboutRateFunctions(const clsScenario& before, const clsScenario& after, Messages& messages);

}  // namespace tamsic
