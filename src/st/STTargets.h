#pragma once
// Where in a scenario record each sensitivity-test variable lives. A variable
// name is a base name ("PercentBreed"), then "_Pop" and the population for
// per-population inputs, then "_Age" and the age class or "_Cat" and the
// catastrophe. Base names that contain one another ("PercentBreed" in
// "PercentBreedEV", "K" in "K-SD") are told apart by trying them in a fixed
// order, the first match winning.
#include <cstddef>
#include <optional>
#include <string_view>

#include "model/clsScenario.h"

namespace tamsic {

// How the record holds the input: a text box, a check box, or a grid cell.
enum class STStore { Text, Check, Cell };

// What a cell holds when it is not a number: a yes/no switch ("1"/"0") or "Global"/"Local".
enum class STCellKind { Value, Switch, Place };

struct STTarget {
  Field field;
  STStore store = STStore::Text;
  STCellKind kind = STCellKind::Value;
  std::size_t row = 0;
  std::size_t col = 0;
};

// The base name that `name` matches in the order values are applied, or
// nothing. Names without suffix match by equality, the others when the name
// contains the base name; both compare case-sensitively.
std::optional<std::string_view> AppliedBaseName(std::string_view name);

// The input that `name` designates, or nothing when it matches no base name.
std::optional<STTarget> TargetOf(std::string_view name);

// The record's value of the input as text ("1"/"0" for a check box), or
// nothing when the scenario's grid has no such cell.
std::optional<std::string> ValueAt(const clsScenario& scenario, const STTarget& target);

// Stores the text as that input; a check box takes the text's number. A cell
// outside the scenario's grid is left alone.
void StoreAt(clsScenario& scenario, const STTarget& target, const std::string& text);

}  // namespace tamsic
