#pragma once
// The vocabulary of the input description: what kind of value an input
// holds and between which bounds, how a grid is shaped and what each of its
// rows or columns means, the input's default for a new scenario, and the
// message numbers of its caption and hint. Everything here is a constant
// known when the program is compiled; the description itself is the field
// table of ScenarioFields.h and the grids of GridDescriptions.h.
#include <span>
#include <string_view>

namespace tamsic {

enum class ValueKind : unsigned char {
  Text,       // any text: names, labels, file names, notes
  Whole,      // a whole number
  Number,     // a number
  Rate,       // a number, a function "=..." or a file reference "file=..."
  WholeRate,  // a rate whose numbers must be whole (individuals moved)
  Switch,     // a yes/no cell: 0 or 1 (also True/False)
  Place,      // "Local" or "Global"
};

// Both bounds belong to the valid range.
struct ValueRule {
  ValueKind kind = ValueKind::Text;
  double low = 0;
  double high = 0;
};

constexpr ValueRule AnyText() { return {ValueKind::Text, 0, 0}; }
constexpr ValueRule WholeIn(double low, double high) { return {ValueKind::Whole, low, high}; }
constexpr ValueRule NumberIn(double low, double high) { return {ValueKind::Number, low, high}; }
constexpr ValueRule RateIn(double low, double high) { return {ValueKind::Rate, low, high}; }
constexpr ValueRule WholeRateIn(double low, double high) { return {ValueKind::WholeRate, low, high}; }
constexpr ValueRule SwitchCell() { return {ValueKind::Switch, 0, 1}; }
constexpr ValueRule PlaceCell() { return {ValueKind::Place, 0, 0}; }

// One row or column of a grid that is not a population: its stored English
// heading (the piece before the number for numbered lines), the message
// number of the heading's caption and of the hint shown for its cells, and
// what its cells hold.
struct GridLine {
  std::string_view heading;
  int caption = 0;
  int hint = 0;
  ValueRule rule;
};

// How a grid is laid out. Row 0 is the heading row and column 0 the label
// column unless the shape says otherwise.
enum class GridShape : unsigned char {
  Notes,              // the scenario's notes, a block of text
  PopulationLabels,   // a row per population: its label, then the PS variables
  StateVariables,     // a column per variable, a row per line
  PopulationRows,     // a row per population, a column per line
  PopulationColumns,  // a column per population, a row per line
  DispersalMatrix,    // a row and a column per population
  Distribution,       // a row per count, its percent beside it
  CatastropheLabels,  // a row per catastrophe, no heading row
};

// What the lines of a grid run over: its own list, or a list made from a
// count of the scenario, cycling through the grid's lines.
enum class Lines : unsigned char {
  Fixed,             // exactly the listed lines
  MortalityPairs,    // mean and SD for each age up to the age of first offspring, then the adults
  Ages,              // ages 1 to the maximum age
  AgeClasses,        // ages 1 to the age of first offspring less one, then the adults
  CatastrophePairs,  // two lines per catastrophe type
  Counted,           // one line per unit of `count` (state variables, distribution rows)
};

// The scenario count that sizes a grid's lines.
enum class Count : unsigned char {
  None,
  PopStateVars,
  GlobalVars,
  IndivStateVars,
  Catastrophes,
  MaxAge,
  MaxLitters,
  MaxProgeny,
};

enum class Sex : unsigned char { Female, Male };

struct GridDescription {
  GridShape shape;
  Lines lines = Lines::Fixed;
  Count count = Count::None;
  Sex sex = Sex::Female;        // whose age of first offspring sizes age lines
  int first = 1;                // the first number of counted lines
  std::span<const GridLine> line;
  // A new scenario's values, line by line, for every population.
  std::span<const std::string_view> defaults;
  // The heading of counted columns before their number ("PS" makes PS1, PS2, ...).
  std::string_view prefix = {};
};

// What the input pages and the engine know of one field beyond its place in
// the file: its rule (for text boxes), its default in a new scenario, its
// caption and hint, and for a grid the grid's description.
struct InputDescription {
  ValueRule rule;
  std::string_view byDefault;
  int caption = 0;
  int hint = 0;
  const GridDescription* grid = nullptr;
};

constexpr InputDescription TextInput(ValueRule rule, std::string_view byDefault, int caption, int hint) {
  return {rule, byDefault, caption, hint, nullptr};
}
// A check box ("1" checked) or an option button ("True" chosen).
constexpr InputDescription ChoiceInput(std::string_view byDefault, int caption, int hint) {
  return {AnyText(), byDefault, caption, hint, nullptr};
}
// A grid's caption is the title the page shows over it; messages name the grid by it.
constexpr InputDescription GridInput(const GridDescription& grid, int hint, int caption) {
  return {AnyText(), {}, caption, hint, &grid};
}

}  // namespace tamsic
