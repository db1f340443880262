#pragma once
// What the function editor and the function preview ask of the engine: the
// formula's Polish form, which also tells whether the engine can read it, and
// its values over a range of one variable for the graph. The editor works on
// the formula without its leading "=".
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Engine.h"
#include "model/Messages.h"

namespace tamsic {

// The text the editor shows for a cell's value: the value without its leading "=".
std::string EditedFormula(std::string_view cellText);
// What OK hands back to the cell: "=" and the formula, even an empty one.
std::string AcceptedFunction(std::string_view formula);

struct PolishAnswer {
  std::optional<std::string> polish;   // the engine's "Polish: ..." reply when the formula is valid
  std::string reason;                  // otherwise the engine's words, when it gave any
  std::optional<std::size_t> errorAt;  // the character of the formula it names, from 0
};

// Asks the engine for the Polish form. An empty formula gets message 9105,
// one the engine refuses 9106 with the critical-stop icon.
PolishAnswer PolishForm(std::string_view formula, Engine& engine, Messages& messages);

// The range of a graph from the editor's three boxes. The engine takes whole
// numbers for From and To; the increment may be a fraction.
std::optional<GraphRequest> ReadGraphRange(std::string_view from, std::string_view to, std::string_view increment,
                                           Messages& messages);

struct GraphAnswer {
  std::optional<std::vector<double>> values;  // one per step of the range, from its start
  std::string reason;                         // what the engine said when there are none
  std::optional<std::size_t> errorAt;         // as in PolishAnswer
};

// Checks the formula as PolishForm does, then asks for its values; an engine
// that cannot compute them gets "Function graphing error!". `variable` is the
// x axis's place in the variable list (GraphVariableNumber).
GraphAnswer GraphValues(std::string_view formula, int variable, const GraphRequest& range, Engine& engine,
                        Messages& messages);

}  // namespace tamsic
