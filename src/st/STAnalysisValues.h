#pragma once
// The number an ST value stands for in its scenario: a number text as it
// is; a function such as "=B*1.1" once the baseline's value is put in for B
// ("=(0.5)*1.1"), worked out by the engine when it names no variable and
// draws no random number; for anything else (a word, a function of N or K,
// a file of values) there is none, and the value is shown as typed.
#include <optional>
#include <string_view>

#include "engine/Engine.h"

namespace tamsic {

// `baseline` is the text of the same input in the baseline scenario, when
// there is one. Throws EngineUnavailable when a function needs the engine
// and it cannot be loaded.
std::optional<double> STValueNumber(std::string_view value, std::optional<std::string_view> baseline,
                                    Engine& engine);

}  // namespace tamsic
