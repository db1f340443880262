// The part of every process but rank 0 in a team's run (TeamRun.h). The
// threads that run iterations pack their records and hand them to the
// courier; the thread that called the run, the only one that talks to the
// team, posts them and watches for rank 0's "stop".
#include <chrono>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <mutex>
#include <new>
#include <optional>

#include "sim/LifeTable.h"
#include "sim/ProjectReader.h"
#include "sim/ReadModel.h"
#include "sim/RecordBytes.h"
#include "sim/RunMonitor.h"
#include "sim/TeamLetters.h"
#include "sim/TeamRun.h"

namespace tamsic::sim {

namespace {

constexpr auto kPause = std::chrono::milliseconds(2);
// Letters waiting to go, beyond which the threads that run iterations wait:
// a process far ahead of rank 0 holds no more than this.
constexpr std::size_t kRoom = std::size_t{64} << 20;

class Courier {
 public:
  explicit Courier(Team& team) : team_(team) {}

  // From the threads that run iterations: queues a letter for rank 0, waiting while too many bytes are on their way.
  void send(int tag, std::string body) {
    std::unique_lock lock(mutex_);
    room_.wait(lock, [&] { return stopped_ || queued_ + travelling_ < kRoom; });
    queue(tag, std::move(body));
  }
  // From the thread that pumps, which must not wait for itself.
  void sendAtOnce(int tag, std::string body) {
    std::lock_guard lock(mutex_);
    queue(tag, std::move(body));
  }

  // On the calling thread: posts what is queued and reads rank 0's letters; waits a moment when idle.
  void pump() {
    std::deque<Outgoing> ready;
    {
      std::unique_lock lock(mutex_);
      if (queue_.empty()) wake_.wait_for(lock, kPause);
      ready.swap(queue_);
    }
    std::size_t posted = 0;
    for (Outgoing& letter : ready) {
      posted += letter.body.size();
      team_.post(0, letter.tag, std::move(letter.body));
    }
    const std::size_t travelling = team_.pending();
    bool stop = false;
    while (const auto letter = team_.collect(letters::kControl)) stop = stop || letter->body == letters::kStop;
    {
      std::lock_guard lock(mutex_);
      queued_ -= posted;
      travelling_ = travelling;
      if (stop) {
        stopped_ = true;
        queue_.clear();
        queued_ = 0;
      }
    }
    if (stop) RunMonitor::get().requestCancel();
    room_.notify_all();
  }

  bool stopped() {
    std::lock_guard lock(mutex_);
    return stopped_;
  }

  // "done" goes once everything else has gone, so that rank 0 takes it for
  // the last letter; then the process waits for rank 0 to let it go.
  void finish() {
    while (!idle()) pump();
    team_.post(0, letters::kControl, letters::kDone);
    while (team_.pending() > 0 || !stopped()) pump();
  }

 private:
  struct Outgoing {
    int tag;
    std::string body;
  };

  void queue(int tag, std::string body) {
    if (stopped_) return;
    queued_ += body.size();
    queue_.push_back({tag, std::move(body)});
    wake_.notify_one();
  }

  bool idle() {
    std::lock_guard lock(mutex_);
    return queue_.empty() && travelling_ == 0;
  }

  Team& team_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::condition_variable room_;
  std::deque<Outgoing> queue_;
  std::size_t queued_ = 0;
  std::size_t travelling_ = 0;
  bool stopped_ = false;
};

// The records of one scenario go to rank 0 as they come; a fault stops the later iterations here.
class Dispatch final : public Outlet {
 public:
  Dispatch(Courier& courier, int tag) : courier_(courier), tag_(tag) {}

  void deliver(int iteration, IterationRecord& record) override {
    std::string letter;
    try {
      letter = letters::Write(letters::kRecord, iteration, Pack(record));
    } catch (const std::bad_alloc&) {
      fail(iteration, "iteration " + std::to_string(iteration) + " ran out of memory");
      return;
    }
    if (letter.size() > letters::kLongest) {
      fail(iteration, "the record of iteration " + std::to_string(iteration) + " (" +
                          std::to_string(letter.size() >> 20) + " MB) is too large to send to rank 0");
      return;
    }
    courier_.send(tag_, std::move(letter));
  }
  void fail(int iteration, const std::string& message) override {
    {
      std::lock_guard lock(mutex_);
      if (!lowest_ || iteration < *lowest_) lowest_ = iteration;
    }
    courier_.send(tag_, letters::Write(letters::kFault, iteration, message));
  }
  bool failedBefore(int iteration) override {
    std::lock_guard lock(mutex_);
    return lowest_ && *lowest_ < iteration;
  }
  bool failed() {
    std::lock_guard lock(mutex_);
    return lowest_.has_value();
  }

 private:
  Courier& courier_;
  const int tag_;
  std::mutex mutex_;
  std::optional<int> lowest_;
};

struct Scenario {
  Model model;
  std::vector<StartingNumbers> start;
};

Scenario Prepare(const ProjectDocument& project, const std::string& name, const Options& options) {
  Scenario s{ReadModel(FindScenario(project, name), std::filesystem::current_path(), options), {}};
  std::vector<LifeTable> tables;
  for (int p = 0; p < s.model.populations; ++p) tables.push_back(BuildLifeTable(s.model, p));
  s.start = StartingPopulations(s.model, tables);
  return s;
}

}  // namespace

void Help(const ProjectDocument& project, const RunPlan& plan, const Options& options, Team& team) {
  RunMonitor& monitor = RunMonitor::get();
  monitor.start(0);
  Courier courier(team);
  std::int64_t offset = 0;
  for (std::size_t s = 0; s < plan.scenarios.size() && !courier.stopped() && !monitor.cancelled(); ++s) {
    const int tag = letters::ScenarioTag(s);
    std::optional<Scenario> scenario;
    try {
      scenario.emplace(Prepare(project, plan.scenarios[s], options));
    } catch (const std::exception& fault) {
      courier.sendAtOnce(tag, letters::Write(letters::kFault, 0, fault.what()));
      break;
    }
    Dispatch dispatch(courier, tag);
    RunShare(scenario->model, scenario->start, plan.seed, options.threads, ShareOf(team, offset), dispatch,
             [&](const std::function<bool()>& finished) {
               while (!finished()) courier.pump();
             });
    offset += scenario->model.iterations;
    if (dispatch.failed()) break;
  }
  if (monitor.cancelled() && !courier.stopped()) courier.sendAtOnce(letters::kControl, letters::kCancelled);
  courier.finish();
}

}  // namespace tamsic::sim
