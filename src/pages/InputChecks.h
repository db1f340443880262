#pragma once
// The checks every value of the input pages passes when the user leaves a cell
// or a box. Each check answers whether the edit must be cancelled; it has
// already told the user why. A rejected value is never stored and never
// changed: the user corrects what they typed.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "app/Messages.h"
#include "engine/Engine.h"
#include "model/Grid.h"
#include "model/ScenarioFields.h"

namespace tamsic {

// The bounds of a cell, and whether it may hold a function or a file reference.
struct CellCheck {
  bool functions = false;
  double lower = 0;
  double upper = 0;
  bool decimals = true;
};

// The check of a cell of a grid (rows as the grid layouts count them), or
// nothing for cells that take any text.
std::optional<CellCheck> CellCheckFor(Field grid, std::size_t row);

// A number within [lower, upper], whole when decimals are not allowed. A value
// between 0 and 1 where a percent up to 100 is expected is questioned, and
// passes.
bool RangeTest(std::string_view text, double lower, double upper, bool decimals, Messages& messages);

// Answers true when the edit is refused. Empty cells pass.
bool TestCell(std::string_view text, const CellCheck& check, Messages& messages);
// Functions go to the engine's formula test; file references pass as they are.
bool TestCellFunctions(std::string_view text, const CellCheck& check, Messages& messages, Engine& engine);
// Applies whichever of the two the cell's check names.
bool TestGridCell(std::string_view text, const CellCheck& check, Messages& messages, Engine& engine);

// The limits a validating text box carries with it.
struct TextBoxLimits {
  double min = 0;
  double max = 0;
  std::string belowMessage;
  std::string aboveMessage;
};
bool TestTextBoxFunctions(std::string_view text, const TextBoxLimits& limits, Messages& messages,
                          Engine& engine);

// The message refusing a text box that must hold a whole number
// (ages of reproduction, maximum age, broods, progeny), or nothing.
std::optional<std::string> WholeNumberProblem(Field box, std::string_view text);

// Refuses an upper dispersal age below the lower one (equal is fine).
bool TestDispersalAges(std::string_view young, std::string_view old, Messages& messages);

// The last row of an exact distribution: 100 minus the rows above it, "0.00".
std::string ExactDistributionRemainder(const Grid& distribution);

}  // namespace tamsic
