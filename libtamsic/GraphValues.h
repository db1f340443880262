#pragma once
// The values of a function over a range of one variable, for the graph of
// the function editor; the text of formulaGraphValues's reply.
#include <cstdint>
#include <string>
#include <string_view>

namespace tamsic {

struct GraphRange {
  int variable = 0;  // place in the editor's variable list, from 1
  int from = 0;
  int to = 0;
  int points = 0;    // at most this many values when > 0
  int population = 0;
  double increment = 1.0;
};

inline constexpr int kMaxGraphPoints = 10000;

// "v1;v2;..." or "Error: ..." (the reply as the export sends it).
std::string GraphValues(std::string_view formula, const GraphRange& range);

}  // namespace tamsic
