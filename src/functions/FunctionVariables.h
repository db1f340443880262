#pragma once
// The variables a function may use, as the function editor lists them, and
// the ones a formula uses. A variable's place in the list, counted from 1, is
// how the engine's graph values name the variable on the x axis; the global
// state variables GS1..GS10, valid in functions but not listed, follow as
// 87..96.
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamsic {

struct FunctionVariable {
  std::string_view name;  // with "()" when it takes an argument
  std::string_view description;
};

// The 86 entries in the editor's order.
std::span<const FunctionVariable> FunctionVariables();

// "N - Population Size", as the list shows an entry.
std::string ListEntry(const FunctionVariable& variable);

// The variable's number for the engine's graph values (1..96), or 0 for a
// name that is not a variable (E, a function, an unknown name). Any letter
// case; "FF" and "FF()" alike.
int GraphVariableNumber(std::string_view name);

// The variables a formula uses, in upper case and in the order they first
// appear; names of functions and constants are left out, and so is a file
// reference's file name.
std::vector<std::string> VariablesIn(std::string_view formula);

}  // namespace tamsic
