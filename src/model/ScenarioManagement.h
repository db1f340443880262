#pragma once
// Adding, deleting, renaming and reordering scenarios. Scenario names become
// parts of the engine's output file names, hence the name rules; scenarios
// whose name begins with "ST." belong to the sensitivity tests and are only
// changed from there.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/Messages.h"
#include "model/ScenarioCollection.h"

namespace tamsic {

bool IsSTScenario(const clsScenario& scenario);

// Appends `count` copies of the template, named "<template> - Copy 1", ...
// Answers the number of the first new scenario.
std::size_t AddScenarioCopies(ScenarioCollection& scenarios, std::size_t templateNumber, int count);

// The scenario the new-scenario dialog proposes as the template: the current
// one, or, when that is a sensitivity-test scenario, the last one that is not.
std::size_t ProposedTemplate(const ScenarioCollection& scenarios, std::size_t current);

// Asks for confirmation and deletes the current scenario. Answers the number
// of the scenario to show next, or nothing when nothing was deleted.
std::optional<std::size_t> DeleteScenario(ScenarioCollection& scenarios, std::size_t current,
                                          Messages& messages);

// The number of the message that refuses a name for scenario `number`, or nothing when the name is fine.
std::optional<int> ScenarioNameProblem(const ScenarioCollection& scenarios, std::size_t number,
                                       std::string_view name);

// Swaps scenario `number` with its neighbour; answers the scenario's new number.
std::size_t MoveScenarioUp(ScenarioCollection& scenarios, std::size_t number);
std::size_t MoveScenarioDown(ScenarioCollection& scenarios, std::size_t number);

}  // namespace tamsic
