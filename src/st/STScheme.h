#pragma once
// The project's sensitivity-test scheme: each item names a baseline scenario
// and the variables to change in a copy of it.
#include <cstdint>
#include <string>
#include <vector>

namespace tamsic {

struct STItem {
  std::int16_t ScenarioIndex = 0;  // baseline's position in the scenario collection, from 1
  std::int16_t AnalysisIndex = 0;  // kept for the analysis window, stored as it is
  std::string Label;
  std::vector<std::string> Vars;  // variable names, parallel to Vals
  std::vector<std::string> Vals;  // values as typed: numbers, words or "=..." functions
  bool operator==(const STItem&) const = default;
};

struct STScheme {
  // NumItems, not Items.size(), says how many items there are: reading sizes
  // Items one slot larger, and that slot is never written back.
  std::int16_t NumItems = 0;
  std::vector<STItem> Items;
  bool operator==(const STScheme&) const = default;
};

}  // namespace tamsic
