#pragma once
// Sensitivity testing: the variables an item may vary for a baseline
// scenario, the check of a value typed for one of them, the baseline value
// "B" inside such a value, and the application of items to the scenarios
// generated from their baselines (docs/sensitivity-testing.md).
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/ScenarioCollection.h"
#include "st/STScheme.h"

namespace tamsic {

class Engine;

// Every variable that can be varied for the baseline, in the fixed order of
// the choice list: the species-wide ones, then per population the breeding,
// progeny, mortality by age class (from 0), catastrophes, males breeding,
// initial size (only with a stable age distribution), carrying capacity,
// harvest and supplementation (ages from 1).
std::vector<std::string> STVariableNames(const clsScenario& baseline);
std::string BuildSTVariableList(const clsScenario& baseline, std::string_view separator);

// "OK", or the message that refuses the value. A function is given to the
// engine's formula test with "50.5" for its first "B"; EngineUnavailable
// from the engine goes through to the caller.
std::string CheckSTValue(std::string_view name, std::string_view value, const clsScenario& baseline,
                         Engine& engine);

// The value put beside a variable as soon as it is chosen.
std::string DefaultSTValue(std::string_view name);

// The expression with its first "B" replaced by the baseline value in
// parentheses (a function baseline without its "="); an expression without
// "=" or without "B" is answered as it is.
std::string SubstituteBaseline(std::string_view baselineValue, std::string_view expression);

// The baseline's value of the input the name designates; nothing when the
// name designates no input of that scenario.
std::optional<std::string> STBaselineValue(const clsScenario& baseline, std::string_view name);

// Applies each variable of the item in turn to the derived scenario; names
// that designate nothing are passed over. Grids are re-shaped when the number
// of populations or an age limit changed, as on the input pages.
void ApplySTItem(clsScenario& derived, const clsScenario& baseline, const STItem& item);

// Applies item i to the scenario at position Count - NumItems + 1 + i.
void ApplySTScheme(ScenarioCollection& scenarios, const STScheme& scheme);

// "t..." is true, "f..." false (either case); any other text is true when its
// leading number is not 0.
bool TextToTrueFalse(std::string_view text);

// The number after "_Pop" ("PercentBreed_Pop2" gives 2), and the number of
// the last suffix ("..._Age3" gives 3); 0 when there is none.
int STPopulationNumber(std::string_view name);
int STAgeOrCatastropheNumber(std::string_view name);

}  // namespace tamsic
