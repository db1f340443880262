#include "sim/Pilot.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "sim/Footprint.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

// What the pilot's threads found, gathered under a lock.
class Tally {
 public:
  void iteration(double seconds, std::size_t bytes) {
    std::lock_guard lock(mutex_);
    seconds_ += seconds;
    ++count_;
    bytes_ = std::max(bytes_, bytes);
  }
  // The fault of the lowest iteration is the one the run would report.
  void fail(int iteration, const std::string& message) {
    std::lock_guard lock(mutex_);
    if (!error_ || iteration < errorIteration_) error_ = message, errorIteration_ = iteration;
  }
  void cancel() { cancelled_ = true; }
  bool stopped() {
    std::lock_guard lock(mutex_);
    return cancelled_ || error_.has_value();
  }

  int count() const { return count_; }
  double seconds() const { return seconds_; }
  std::size_t bytes() const { return bytes_; }
  bool cancelled() const { return cancelled_; }
  const std::optional<std::string>& error() const { return error_; }

 private:
  std::mutex mutex_;
  double seconds_ = 0.0;
  int count_ = 0;
  std::size_t bytes_ = 0;
  std::atomic<bool> cancelled_{false};
  std::optional<std::string> error_;
  int errorIteration_ = 0;
};

// One worker thread's state, kept from iteration to iteration as the run keeps it.
struct Worker {
  World world{0, 0};
  IterationRecord record;
};

// Runs iteration `i` in the worker and tells the tally; false when the pilot is to stop.
bool Step(const Model& m, const std::vector<StartingNumbers>& start, std::uint64_t seed, int i, Worker& worker,
          Tally& tally) {
  const auto begin = Clock::now();
  try {
    if (!RunIteration(m, start, seed, i, worker.world, worker.record)) {
      tally.cancel();
      return false;
    }
  } catch (const std::bad_alloc&) {
    tally.fail(i, "iteration " + std::to_string(i) + " ran out of memory");
    return false;
  } catch (const std::exception& fault) {
    tally.fail(i, fault.what());
    return false;
  }
  tally.iteration(SecondsSince(begin), HeldBytes(worker.world) + HeldBytes(worker.record));
  return true;
}

}  // namespace

Pilot RunPilot(const Model& m, const std::vector<StartingNumbers>& start, std::uint64_t seed, int threads,
               const PilotLimits& limits) {
  const auto begin = Clock::now();
  Tally first;
  {
    Worker alone;
    Step(m, start, seed, 1, alone, first);
  }
  if (first.error()) throw SimError(*first.error());
  Pilot pilot{first.count(), first.seconds(), static_cast<double>(first.bytes()), first.cancelled()};
  const int last = std::min(m.iterations, limits.mostIterations);
  if (pilot.cancelled || pilot.perThreadBytes > limits.roomPerThread || last <= 1) return pilot;

  const double foretold = pilot.secondsPerIteration * m.iterations / threads;
  const double allowed = std::clamp(limits.runShare * foretold, limits.leastSeconds, limits.mostSeconds);
  Tally side;
  std::atomic<int> next{2};
  auto work = [&] {
    Worker worker;
    for (int i = next++; i <= last && SecondsSince(begin) < allowed && !side.stopped(); i = next++)
      if (!Step(m, start, seed, i, worker, side)) return;
  };
  std::vector<std::thread> pool;
  for (int t = 1; t < threads; ++t) pool.emplace_back(work);
  work();
  for (std::thread& t : pool) t.join();
  if (side.error()) throw SimError(*side.error());
  pilot.cancelled = side.cancelled();
  pilot.iterations += side.count();
  pilot.perThreadBytes = std::max(pilot.perThreadBytes, static_cast<double>(side.bytes()));
  if (side.count() > 0) pilot.secondsPerIteration = side.seconds() / side.count();
  return pilot;
}

}  // namespace tamsic::sim
