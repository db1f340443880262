#pragma once
// What a run of one scenario holds at its peak: the process as it stands,
// then each worker thread's World and iteration record at their largest,
// then what the run keeps across iterations (the Results, and the records
// that finished out of order and wait to be folded in).
//
// Before every scenario the run works the need out from the model alone,
// which costs nothing next to the run, and refuses to start a scenario
// whose need is more than the machine has: a run that outgrows its memory
// is killed by the system, files half written, or crawls on swap. The living
// a thread holds at once are the most of the deterministic projection of
// each population (held at K as its trend grows it) with a year's young on
// top, or the number the option W sets aside room for instead. That is close
// for a population that reaches K and more than enough for one that declines
// (it may drift towards K rather than follow the projection, which the
// estimate's pilot tells better).
#include <vector>

#include "sim/LifeTable.h"
#include "sim/MemoryRoom.h"
#include "sim/Model.h"

namespace tamsic::sim {

struct MemoryNeed {
  int threads = 1;
  double perThread = 0.0;  // bytes
  double runWide = 0.0;    // bytes
  double peak(double baseline) const { return baseline + threads * perThread + runWide; }
};

// The worker threads of a run: THREADS, or one per core, and no more than its iterations.
int RunThreads(const Model& model);

// The Results of a whole run, every iteration's final states among them.
double ResultsBytes(const Model& model);

// N by year 0..NumYears of each population by the deterministic projection
// from its founders, held at K at its largest.
std::vector<std::vector<double>> ProjectedNumbers(const Model& model, const std::vector<LifeTable>& tables);

// The living a thread holds at once at most, by the model; see above.
double PeakIndividuals(const Model& model, const std::vector<LifeTable>& tables);

// Individuals created in an iteration, founders and young, by the projection.
double CreatedIndividuals(const Model& model, const std::vector<LifeTable>& tables);

MemoryNeed NeedFromModel(const Model& model, const std::vector<LifeTable>& tables);

// Throws SimError when the need at its peak is more than the room has; with
// the option W the message begins as it did when W's reservation failed.
void CheckMemory(const Model& model, const MemoryNeed& need, const MemoryRoom& room);

}  // namespace tamsic::sim
