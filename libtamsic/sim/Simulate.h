#pragma once
// Runs the iterations of one scenario on a pool of threads and folds their
// records into Results in iteration order.
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "sim/Iteration.h"
#include "sim/LifeTable.h"
#include "sim/Results.h"

namespace tamsic::sim {

// Sees every iteration's record once, in iteration order (for the extra files).
using RecordSink = std::function<void(int iteration, const IterationRecord& record)>;

// Where the records of iterations go: into the fold, or on to the process that folds them.
class Outlet {
 public:
  virtual ~Outlet() = default;
  virtual void deliver(int iteration, IterationRecord& record) = 0;
  virtual void fail(int iteration, const std::string& message) = 0;
  // Whether an earlier iteration failed, so that this one need not run.
  virtual bool failedBefore(int iteration) = 0;
};

// The iterations of a scenario that this process runs: first, first + step, ...
struct Share {
  int first = 1;
  int step = 1;
};

// On the process that folds, the records of the iterations that other processes run.
class Remote {
 public:
  virtual ~Remote() = default;
  // Hands the records and faults that have come to `outlet`, or waits a moment when none has.
  virtual void fetch(Outlet& outlet) = 0;
};

// `threads` 0 means one per core. Throws SimError (the first fault of the
// lowest iteration) and stops early, answering nothing, when cancelled.
// With a share of the iterations, the others come from `remote`.
std::optional<Results> Simulate(const Model& model, const std::vector<StartingNumbers>& start, std::uint64_t seed,
                                int threads, const RecordSink& sink = {}, Share share = {}, Remote* remote = nullptr);

// Runs the share on a pool of `threads` threads into `outlet`. The calling
// thread takes part, or with `meanwhile` runs that instead, which is told
// whether the pool has finished; the pool is joined when it returns.
using Meanwhile = std::function<void(const std::function<bool()>& finished)>;
void RunShare(const Model& model, const std::vector<StartingNumbers>& start, std::uint64_t seed, int threads,
              Share share, Outlet& outlet, const Meanwhile& meanwhile);

// The founders of every population: by the stable age distribution or the grids.
std::vector<StartingNumbers> StartingPopulations(const Model& model, const std::vector<LifeTable>& tables);

}  // namespace tamsic::sim
