#pragma once
// The special options of a run, from the options string: ";"-separated
// codes, a value option carrying its number behind the letter ("T80",
// "Y5"), free codes after them ("SEED42", "THREADS2"), and the run mode last.
#include <cstdint>
#include <optional>
#include <string_view>

namespace tamsic::sim {

struct Options {
  bool translocate = false;           // T: supplements come from the harvested
  double translocationSurvival = 100; // % surviving the move
  bool excludeLastPopulation = false; // X: not in the metapopulation tally
  bool noDispersalIntoFull = false;   // M
  bool declineIsExtinction = false;   // B
  std::optional<std::uint64_t> seed;  // SEED<n>
  int threads = 0;                    // THREADS<n>; 0: every core
};

Options ParseOptions(std::string_view text);

}  // namespace tamsic::sim
