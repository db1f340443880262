#pragma once
// A short pilot of one scenario: the real run's first iterations (the same
// model, the same seed and so the same random streams), timed and their
// memory counted. Iteration 1 runs alone first, so that a scenario whose
// threads cannot all have the memory one of them needs is told without
// trying; the run's threads then take the next iterations from a shared
// counter, as the run's own do, until the time allowed is spent or enough
// iterations have run for a steady mean. An iteration takes as long as it
// takes: the pilot is never shorter than one.
//
// A thread's first iteration grows its World from nothing, and large arrays
// come fresh from the system, page by page; later iterations reuse them and
// run faster (twice as fast for populations of tens of thousands). The run
// pays the first kind once per thread, so the pilot times the two kinds
// apart, and the thread of iteration 1 goes on with its World.
#include <cstdint>
#include <vector>

#include "sim/Iteration.h"
#include "sim/Model.h"

namespace tamsic::sim {

struct PilotLimits {
  double leastSeconds = 0.0;  // the time allowed, whatever the run's length ...
  double runShare = 0.0;      // ... or this share of the run as iteration 1 foretells it, whichever is more ...
  double mostSeconds = 0.0;   // ... but never more than this
  int mostIterations = 1;     // and no more iterations than these ...
  double steadySeconds = 0.0;  // ... once it has run this long: a pilot of a few milliseconds tells little
  double roomPerThread = 0.0;  // bytes each of the run's threads may hold
};

struct Pilot {
  int iterations = 0;
  // Mean wall times of an iteration while the run's threads work side by
  // side: a thread's first, and a later one (the first kind when the pilot
  // ran none of the later).
  double firstSeconds = 0.0;
  double laterSeconds = 0.0;
  double perThreadBytes = 0.0;  // a thread's World and record at their largest
  bool cancelled = false;       // the run monitor asked to stop

  // The wall time of `iterations` iterations on `threads` threads.
  double seconds(int iterations, int threads) const;
};

// Throws SimError for a fault of an iteration, as the run would.
Pilot RunPilot(const Model& model, const std::vector<StartingNumbers>& start, std::uint64_t seed, int threads,
               const PilotLimits& limits);

}  // namespace tamsic::sim
