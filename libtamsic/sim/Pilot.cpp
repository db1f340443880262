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

struct Mean {
  double sum = 0.0;
  int count = 0;
  void add(double x) { sum += x, ++count; }
  double value() const { return count > 0 ? sum / count : 0.0; }
};

// One worker thread's state, kept from iteration to iteration as the run keeps it.
struct Worker {
  World world{0, 0};
  IterationRecord record;
  int iterations = 0;
};

// What the pilot's threads found, gathered under a lock.
class Tally {
 public:
  void iteration(const Worker& worker, double seconds) {
    std::lock_guard lock(mutex_);
    (worker.iterations == 1 ? first_ : later_).add(seconds);
    bytes_ = std::max(bytes_, HeldBytes(worker.world) + HeldBytes(worker.record));
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

  const Mean& first() const { return first_; }
  const Mean& later() const { return later_; }
  std::size_t bytes() const { return bytes_; }
  bool cancelled() const { return cancelled_; }
  const std::optional<std::string>& error() const { return error_; }

 private:
  std::mutex mutex_;
  Mean first_, later_;
  std::size_t bytes_ = 0;
  std::atomic<bool> cancelled_{false};
  std::optional<std::string> error_;
  int errorIteration_ = 0;
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
  ++worker.iterations;
  tally.iteration(worker, SecondsSince(begin));
  return true;
}

}  // namespace

double Pilot::seconds(int count, int threads) const {
  return count <= 0 ? 0.0 : firstSeconds + laterSeconds * std::max(0.0, double(count) / threads - 1.0);
}

Pilot RunPilot(const Model& m, const std::vector<StartingNumbers>& start, std::uint64_t seed, int threads,
               const PilotLimits& limits) {
  const auto begin = Clock::now();
  Tally alone;
  Worker kept;
  Step(m, start, seed, 1, kept, alone);
  if (alone.error()) throw SimError(*alone.error());
  Pilot pilot;
  pilot.iterations = kept.iterations;
  pilot.firstSeconds = pilot.laterSeconds = alone.first().value();
  pilot.perThreadBytes = static_cast<double>(alone.bytes());
  pilot.cancelled = alone.cancelled();
  if (pilot.cancelled || pilot.perThreadBytes > limits.roomPerThread || m.iterations <= 1) return pilot;

  const double allowed =
      std::clamp(limits.runShare * pilot.seconds(m.iterations, threads), limits.leastSeconds, limits.mostSeconds);
  Tally side;
  std::atomic<int> next{2};
  const auto goOn = [&](int i) {
    const double elapsed = SecondsSince(begin);
    return i <= m.iterations && elapsed < allowed && (i <= limits.mostIterations || elapsed < limits.steadySeconds) &&
           !side.stopped();
  };
  auto work = [&](Worker& worker) {
    for (int i = next++; goOn(i); i = next++)
      if (!Step(m, start, seed, i, worker, side)) return;
  };
  std::vector<std::thread> pool;
  for (int t = 1; t < threads; ++t)
    pool.emplace_back([&] {
      Worker worker;
      work(worker);
    });
  work(kept);
  for (std::thread& t : pool) t.join();
  if (side.error()) throw SimError(*side.error());
  pilot.cancelled = side.cancelled();
  pilot.iterations += side.first().count + side.later().count;
  pilot.perThreadBytes = std::max(pilot.perThreadBytes, static_cast<double>(side.bytes()));
  // Iteration 1 ran without the others beside it: a first iteration beside them tells better.
  if (side.first().count > 0) pilot.firstSeconds = side.first().value();
  pilot.laterSeconds = side.later().count > 0 ? side.later().value() : pilot.firstSeconds;
  return pilot;
}

}  // namespace tamsic::sim
