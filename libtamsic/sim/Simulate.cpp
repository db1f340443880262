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
  explicit OrderedFold(Results& results) : results_(results) {}

  void deliver(int iteration, IterationRecord& record) {
    std::lock_guard lock(mutex_);
    if (iteration != next_) {
      waiting_[iteration] = std::move(record);
      return;
    }
    results_.add(iteration, record);
    ++next_;
    for (auto found = waiting_.find(next_); found != waiting_.end(); found = waiting_.find(next_)) {
      results_.add(next_, found->second);
      waiting_.erase(found);
      ++next_;
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
  std::mutex mutex_;
  Results& results_;
  int next_ = 1;
  std::map<int, IterationRecord> waiting_;
  std::optional<std::string> error_;
  int errorIteration_ = 0;
};

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
                                int threads) {
  Results results(m.populations > 1 ? m.populations + 1 : 1, m.years);
  OrderedFold fold(results);
  std::atomic<int> next{1};
  RunMonitor& monitor = RunMonitor::get();
  auto work = [&] {
    World world(seed, 0);
    IterationRecord record;
    for (int i = next++; i <= m.iterations; i = next++) {
      if (monitor.cancelled() || fold.failed()) return;
      try {
        RunIteration(m, start, seed, i, world, record);
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
