#pragma once
// The one piece of state shared between a run in progress and the calls
// that may come in while it runs (tamsicProgress, tamsicCancel): the
// iterations done and due, and the request to stop.
#include <atomic>
#include <cstdint>

namespace tamsic::sim {

class RunMonitor {
 public:
  static RunMonitor& get();

  void start(std::int64_t total) {
    done_ = 0;
    total_ = total;
    cancel_ = false;
  }
  void finish() { total_ = 0, done_ = 0; }
  void step() { ++done_; }
  void requestCancel() { cancel_ = true; }
  bool cancelled() const { return cancel_; }
  std::int64_t done() const { return done_; }
  std::int64_t total() const { return total_; }

 private:
  std::atomic<std::int64_t> done_{0};
  std::atomic<std::int64_t> total_{0};
  std::atomic<bool> cancel_{false};
};

}  // namespace tamsic::sim
