#include "sim/Simulate.h"

#include <map>
#include <mutex>
#include <thread>

#include "sim/LifeTable.h"
#include "sim/RunMonitor.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

// Records that finished out of order wait here until their turn to be folded.
class OrderedFold {
 public:
  OrderedFold(Results& results, const RecordSink& sink) : results_(results), sink_(sink) {}

  void deliver(int iteration, IterationRecord& record) {
    std::lock_guard lock(mutex_);
    if (iteration != next_) {
      waiting_[iteration] = std::move(record);
      return;
    }
    add(iteration, record);
    for (auto found = waiting_.find(next_); found != waiting_.end(); found = waiting_.find(next_)) {
      add(next_, found->second);
      waiting_.erase(found);
    }
  }

  void fail(int iteration, const std::string& message) {
    std::lock_guard lock(mutex_);
    if (!error_ || iteration < errorIteration_) error_ = message, errorIteration_ = iteration;
  }
  bool failed() {
    std::lock_guard lock(mutex_);
    return error_.has_value();
  }
  const std::optional<std::string>& error() const { return error_; }

 private:
  void add(int iteration, const IterationRecord& record) {
    results_.add(iteration, record);
    if (sink_) sink_(iteration, record);
    ++next_;
  }

  std::mutex mutex_;
  Results& results_;
  const RecordSink& sink_;
  int next_ = 1;
  std::map<int, IterationRecord> waiting_;
  std::optional<std::string> error_;
  int errorIteration_ = 0;
};

// The option W sets aside room for so many living individuals in each
// thread, so that no array grows during the run.
void Reserve(const Model& m, World& world) {
  const auto n = static_cast<std::size_t>(m.options.reserveIndividuals);
  if (n == 0) return;
  world.genomes.reserve(ShapeOf(m), n);
  world.pops.resize(static_cast<std::size_t>(m.populations));
  for (PopulationState& pop : world.pops) pop.members.reserve(n);
  world.moving.reserve(n);
  for (auto* scratch : {&world.scratchA, &world.scratchB, &world.scratchC}) scratch->reserve(n);
}

}  // namespace

std::vector<StartingNumbers> StartingPopulations(const Model& m, const std::vector<LifeTable>& tables) {
  std::vector<StartingNumbers> start(static_cast<std::size_t>(m.populations));
  for (std::size_t p = 0; p < start.size(); ++p) {
    if (m.startStable) StableNumbers(tables[p], m.pops[p].initialSize, start[p].byAge);
    else
      for (int sex : {kFemale, kMale}) start[p].byAge[sex] = m.pops[p].initial[sex];
    if (!m.sexual()) {
      for (std::size_t a = 0; a < start[p].byAge[kMale].size(); ++a) {
        if (a >= start[p].byAge[kFemale].size()) start[p].byAge[kFemale].resize(a + 1, 0);
        start[p].byAge[kFemale][a] += start[p].byAge[kMale][a];
      }
      start[p].byAge[kMale].clear();
    }
  }
  return start;
}

std::optional<Results> Simulate(const Model& m, const std::vector<StartingNumbers>& start, std::uint64_t seed,
                                int threads, const RecordSink& sink) {
  Results results(m.populations > 1 ? m.populations + 1 : 1, m.years, m.userVariables);
  OrderedFold fold(results, sink);
  std::atomic<int> next{1};
  RunMonitor& monitor = RunMonitor::get();
  auto work = [&] {
    World world(seed, 0);
    IterationRecord record;
    try {
      Reserve(m, world);
    } catch (const std::exception&) {
      fold.fail(0, "option W: there is not enough memory for " + std::to_string(m.options.reserveIndividuals) +
                       " individuals");
      return;
    }
    for (int i = next++; i <= m.iterations; i = next++) {
      if (monitor.cancelled() || fold.failed()) return;
      try {
        if (!RunIteration(m, start, seed, i, world, record)) return;
      } catch (const std::bad_alloc&) {
        fold.fail(i, "iteration " + std::to_string(i) + " ran out of memory");
        return;
      } catch (const std::exception& fault) {
        fold.fail(i, fault.what());
        return;
      }
      fold.deliver(i, record);
      monitor.step();
    }
  };
  const unsigned cores = std::max(1u, std::thread::hardware_concurrency());
  const int count = std::min(m.iterations, threads > 0 ? threads : static_cast<int>(cores));
  std::vector<std::thread> pool;
  for (int t = 1; t < count; ++t) pool.emplace_back(work);
  work();
  for (std::thread& t : pool) t.join();
  if (fold.error()) throw SimError(*fold.error());
  if (monitor.cancelled()) return std::nullopt;
  return results;
}

}  // namespace tamsic::sim
