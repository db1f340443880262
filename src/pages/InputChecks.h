#pragma once
// The checks every value of the input pages passes when the user leaves a cell
// or a box. Each check answers whether the edit must be cancelled; it has
// already told the user why. A rejected value is never stored and never
// changed: the user corrects what they typed. What a value may hold comes
// from the input description, which the engine reads too, so a value the
// pages accept is one the engine runs.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/Messages.h"
#include "engine/Engine.h"
#include "model/Grid.h"
#include "model/InputRules.h"

namespace tamsic {

// A grid cell that must hold a number: an empty cell passes; a number outside
// the rule is refused with "Invalid input", the place and the cause, all in the
// language of the messages. A number between 0 and 1 where a percent up to 100
// is expected is questioned, and passes.
bool TestCell(std::string_view text, const ValueRule& rule, const InputPlace& place, Messages& messages);
// Functions go to the engine's formula test; file references pass as they are.
bool TestCellFunctions(std::string_view text, const ValueRule& rule, const InputPlace& place, Messages& messages,
                       Engine& engine);
// The check of a cell of a grid, chosen by the cell's rule.
bool TestGridCell(Field grid, const Grid& table, std::size_t row, std::size_t col, std::string_view text,
                  Messages& messages, Engine& engine);

// The check of a text box by its rule; `caption` names the box in messages.
// Whether a value of this rule may be a function or a file reference.
bool TakesFunctions(const ValueRule& rule);

bool TestTextBoxFunctions(Field box, std::string_view text, const std::string& caption, Messages& messages,
                          Engine& engine);

// The number of the message refusing a text box that must hold a whole
// number (ages of reproduction, maximum age, broods, progeny), or nothing.
std::optional<int> WholeNumberProblem(Field box, std::string_view text);

// Refuses an upper dispersal age below the lower one (equal is fine).
bool TestDispersalAges(std::string_view young, std::string_view old, Messages& messages);

// The last row of an exact distribution: 100 minus the rows above it, "0.00".
std::string ExactDistributionRemainder(const Grid& distribution);

}  // namespace tamsic
