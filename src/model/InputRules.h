#pragma once
// The checks every input passes, read from the input description, and the
// words for what is wrong with a value. The input pages check a value as the
// user leaves it and the engine checks every value of a scenario before it
// runs; both ask these functions, so a value is accepted by both or refused
// by both for the same stated cause.
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "model/Grid.h"
#include "model/Messages.h"
#include "model/ScenarioFields.h"
#include "model/clsScenario.h"

namespace tamsic {

enum class Fault {
  NotANumber,
  NotWhole,
  BelowLow,
  AboveHigh,
  NotASwitch,
  NotAPlace,
};

// Whether a value breaks its rule. An empty value breaks none; functions and
// file references break none here, since only the engine can compile them
// and read their files.
std::optional<Fault> CheckValue(const ValueRule& rule, std::string_view text);

// The words of faults and places in English, built in so that the engine
// speaks without the program's string table; the table holds the same words
// in every language under the same message numbers.
const IStringTable& EnglishInputWords();

// "the value must be at most 100", in the words of the table.
std::string FaultWording(Fault fault, const ValueRule& rule, const IStringTable& words = EnglishInputWords());

// Where a value is: the input (its file key, or the caption a page shows),
// and for a grid cell the population and the heading of the cell's line.
struct InputPlace {
  std::string input;
  std::string population;
  std::string line;
  // "MortFemales, North, Mortality From Age 0 to 1"
  std::string Text() const;
};

// A fault of one value: where it is, what is wrong, and the rule it breaks.
struct InputFault {
  InputPlace place;
  Fault cause;
  ValueRule rule;
  // "MortFemales, North, Mortality From Age 0 to 1: the value must be at most 100"
  std::string Text(const IStringTable& words = EnglishInputWords()) const {
    return place.Text() + ": " + FaultWording(cause, rule, words);
  }
};

// The description of a grid field; std::logic_error for any other field.
const GridDescription& GridOf(Field grid);

// The grid line a cell belongs to, or nothing for headings and labels.
const GridLine* LineOf(Field grid, std::size_t row, std::size_t col);
// The rule of a cell; headings and labels take any text.
ValueRule CellRule(Field grid, std::size_t row, std::size_t col);
// The hint of a cell, or the grid's own hint.
int CellHint(Field grid, std::size_t row, std::size_t col);

// How the place of a cell is worded: the name of its input, the headings as
// they are shown, and the table whose words name a row or column whose
// heading is blank.
struct PlaceWording {
  std::string input;
  std::function<std::string(const std::string& stored)> heading;
  const IStringTable& words;
};

// The place of a cell: the population's label and the line's heading, or the
// row and column numbers where they are blank.
InputPlace CellPlace(Field grid, const Grid& table, std::size_t row, std::size_t col, const PlaceWording& wording);
// The same as the engine words it: the grid's key and the headings as stored, in English.
InputPlace CellPlace(Field grid, const Grid& table, std::size_t row, std::size_t col);

// The first value of the scenario that breaks its rule, text boxes first,
// then the grids in file order.
std::optional<InputFault> FirstFault(const clsScenario& scenario);

}  // namespace tamsic
