#pragma once
// Where the input an ST variable names stands in a scenario record:
// "SexRatio" is the sex ratio box, "K_Pop2" the carrying capacity of
// population 2, "FemaleMortality_Pop1_Age0" the first mortality cell of
// population 1, "CatastrophesFreq_Pop3_Cat1" the frequency of catastrophe 1
// in population 3. The analysis reads the baseline's value of each varied
// input through it.
#include <optional>
#include <string>
#include <string_view>

#include "model/clsScenario.h"

namespace tamsic {

// The input's text as the record holds it, a check box as "0" or "1";
// nothing for a name that is no ST variable, or that names a population, age
// or catastrophe the scenario does not have.
std::optional<std::string> STInputText(const clsScenario& scenario, std::string_view name);

}  // namespace tamsic
