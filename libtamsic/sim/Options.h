#pragma once
// The special options of a run, from the options string: ";"-separated
// codes, a value option carrying its number behind the letter ("T80",
// "Y5"), free codes after them ("SEED42", "THREADS2"), and the run mode last.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tamsic::sim {

struct Options {
  bool translocate = false;           // T: supplements come from the harvested
  double translocationSurvival = 100; // % surviving the move
  bool excludeLastPopulation = false; // X: not in the metapopulation tally
  bool noDispersalIntoFull = false;   // M
  bool declineIsExtinction = false;   // B
  bool livingFile = false;            // A: the living at the end of each iteration
  bool createdFile = false;           // N: every individual created in each iteration
  bool censusFile = false;            // Y: the census of each year ...
  int censusIterations = 0;           // ... of the first so many iterations; 0: all
  long long reserveIndividuals = 0;   // W: room for so many living individuals per thread
  std::optional<std::uint64_t> seed;  // SEED<n>
  int threads = 0;                    // THREADS<n>; 0: every core
  std::string runMode;                // "+" resumed or "META" stepwise; empty for a normal run
  bool estimate = false;              // ESTIMATE: a short pilot answers the run's time and memory, no run

  bool censusOf(int iteration) const {
    return censusFile && (censusIterations <= 0 || iteration <= censusIterations);
  }
};

Options ParseOptions(std::string_view text);

}  // namespace tamsic::sim
