#pragma once
// Runs the iterations of one scenario on a pool of threads and folds their
// records into Results in iteration order.
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "sim/Iteration.h"
#include "sim/LifeTable.h"
#include "sim/Results.h"

namespace tamsic::sim {

// Sees every iteration's record once, in iteration order (for the extra files).
using RecordSink = std::function<void(int iteration, const IterationRecord& record)>;

// `threads` 0 means one per core. Throws SimError (the first fault of the
// lowest iteration) and stops early, answering nothing, when cancelled.
std::optional<Results> Simulate(const Model& model, const std::vector<StartingNumbers>& start, std::uint64_t seed,
                                int threads, const RecordSink& sink = {});

// The founders of every population: by the stable age distribution or the grids.
std::vector<StartingNumbers> StartingPopulations(const Model& model, const std::vector<LifeTable>& tables);

}  // namespace tamsic::sim
