#include "sim/Simulate.h"

#include <atomic>
#include <map>
#include <mutex>
#include <thread>

#include "sim/LifeTable.h"
#include "sim/RunMonitor.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

// Records that finished out of order wait here until their turn to be folded.
class OrderedFold final : public Outlet {
 public:
  OrderedFold(Results& results, const RecordSink& sink, int iterations)
      : results_(results), sink_(sink), iterations_(iterations) {}

  void deliver(int iteration, IterationRecord& record) override {
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

  void fail(int iteration, const std::string& message) override {
    std::lock_guard lock(mutex_);
    if (!error_ || iteration < errorIteration_) error_ = message, errorIteration_ = iteration;
  }
  bool failedBefore(int iteration) override {
    std::lock_guard lock(mutex_);
    return error_ && errorIteration_ < iteration;
  }
  // Whether the outcome is known: every iteration folded, or a fault with every iteration before it folded.
  bool settled() {
    std::lock_guard lock(mutex_);
    return error_ ? next_ >= errorIteration_ : next_ > iterations_;
  }
  const std::optional<std::string>& error() const { return error_; }

 private:
  void add(int iteration, const IterationRecord& record) {
    results_.add(iteration, record);
    if (sink_) sink_(iteration, record);
    ++next_;
    RunMonitor::get().step();
  }

  std::mutex mutex_;
  Results& results_;
  const RecordSink& sink_;
  const int iterations_;
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

int ShareSize(const Model& m, Share share) {
  return share.first > m.iterations ? 0 : (m.iterations - share.first) / share.step + 1;
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

void RunShare(const Model& m, const std::vector<StartingNumbers>& start, std::uint64_t seed, int threads,
              Share share, Outlet& outlet, const Meanwhile& meanwhile) {
  std::atomic<int> next{0};
  const RunMonitor& monitor = RunMonitor::get();
  auto work = [&] {
    World world(seed, 0);
    IterationRecord record;
    try {
      Reserve(m, world);
    } catch (const std::exception&) {
      outlet.fail(0, "option W: there is not enough memory for " + std::to_string(m.options.reserveIndividuals) +
                         " individuals");
      return;
    }
    for (int i = share.first + next++ * share.step; i <= m.iterations; i = share.first + next++ * share.step) {
      if (monitor.cancelled() || outlet.failedBefore(i)) return;
      try {
        if (!RunIteration(m, start, seed, i, world, record)) return;
      } catch (const std::bad_alloc&) {
        outlet.fail(i, "iteration " + std::to_string(i) + " ran out of memory");
        return;
      } catch (const std::exception& fault) {
        outlet.fail(i, fault.what());
        return;
      }
      outlet.deliver(i, record);
    }
  };
  const unsigned cores = std::max(1u, std::thread::hardware_concurrency());
  const int count = std::min(ShareSize(m, share), threads > 0 ? threads : static_cast<int>(cores));
  std::atomic<int> working{count};
  std::vector<std::jthread> pool;
  for (int t = meanwhile ? 0 : 1; t < count; ++t)
    pool.emplace_back([&] {
      work();
      --working;
    });
  if (meanwhile) meanwhile([&] { return working == 0; });
  else work();
}

std::optional<Results> Simulate(const Model& m, const std::vector<StartingNumbers>& start, std::uint64_t seed,
                                int threads, const RecordSink& sink, Share share, Remote* remote) {
  Results results(m.populations > 1 ? m.populations + 1 : 1, m.years, m.userVariables);
  OrderedFold fold(results, sink, m.iterations);
  const RunMonitor& monitor = RunMonitor::get();
  Meanwhile collect;
  if (remote)
    collect = [&](const std::function<bool()>&) {
      try {
        while (!fold.settled() && !monitor.cancelled()) remote->fetch(fold);
      } catch (const std::exception& fault) {
        fold.fail(0, fault.what());  // which also stops this process's threads
      }
    };
  RunShare(m, start, seed, threads, share, fold, collect);
  if (fold.error()) throw SimError(*fold.error());
  if (monitor.cancelled()) return std::nullopt;
  return results;
}

}  // namespace tamsic::sim
