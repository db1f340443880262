#pragma once
// Turning a project's sensitivity-test scheme into scenarios: the scheme's
// problems before anything changes, then one "ST." scenario per item at the
// end of the collection, a copy of its baseline with the item applied.
#include <cstddef>
#include <string>
#include <vector>

#include "model/ScenarioCollection.h"
#include "st/STScheme.h"

namespace tamsic {

class Engine;

// A problem of item `item` (its index in the scheme, from 0, as in the
// project file). The text is English; LocalizedSTAnswer translates it.
struct STProblem {
  int item;
  std::string text;
};

// The scheme's problems before generating (a baseline outside the collection
// or itself an ST scenario, an item without variables, a name that is not in
// its baseline's list, a value the check refuses as "<name>: <answer>"), in
// item order; empty when the scheme can be generated.
std::vector<STProblem> CheckSTScheme(const ScenarioCollection& scenarios, const STScheme& scheme, Engine& engine);

// Replaces the "ST." scenarios at the end of the collection by one per item
// (a copy of its baseline named "ST." + a name built from the label, unique
// and valid under the scenario name rules), then applies the scheme. Answers
// the number of the first generated scenario (Count + 1 when there are no
// items). A baseline that CheckSTScheme refuses throws std::invalid_argument
// before anything changes.
std::size_t GenerateSTScenarios(ScenarioCollection& scenarios, const STScheme& scheme);

// How many scenarios at the end of the collection are ST scenarios.
std::size_t CountTrailingSTScenarios(const ScenarioCollection& scenarios);

// "ST." and the label, its characters that scenario names, the project file
// or the engine's lists cannot hold replaced by "_"; an empty label gives
// "ST.Item " and the item's index.
std::string STScenarioName(const std::string& label, int item);

}  // namespace tamsic
