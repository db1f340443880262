#include "sim/TeamRun.h"

#include <chrono>
#include <new>
#include <thread>

#include "sim/RecordBytes.h"
#include "sim/RunMonitor.h"
#include "sim/SimError.h"
#include "sim/TeamLetters.h"

namespace tamsic::sim {

namespace {

// How long a process with nothing to do waits before it looks for letters again.
constexpr auto kPause = std::chrono::milliseconds(1);

std::string Where(const Team& team, int rank) {
  return "rank " + std::to_string(rank) + " of " + std::to_string(team.size());
}

// "SEED\nNAME\nNAME...": scenario names are single lines of the project file.
std::string PlanText(const RunPlan& plan) {
  std::string text = std::to_string(plan.seed);
  for (const std::string& name : plan.scenarios) text += "\n" + name;
  return text;
}

RunPlan ReadPlan(const std::string& text) {
  RunPlan plan;
  std::size_t end = text.find('\n');
  plan.seed = std::stoull(text.substr(0, end));
  while (end != std::string::npos) {
    const std::size_t start = end + 1;
    end = text.find('\n', start);
    plan.scenarios.push_back(text.substr(start, end == std::string::npos ? end : end - start));
  }
  return plan;
}

}  // namespace

RunPlan Muster(Team& team, const std::string& problem, const RunPlan& plan) {
  const std::vector<std::string> problems = team.gather(problem);
  // "+" and the plan, or "!" and the problem of the lowest rank that has one.
  std::string verdict;
  if (team.rank() == 0) {
    std::size_t r = 0;
    while (r < problems.size() && problems[r].empty()) ++r;
    verdict = r == problems.size() ? std::string("+").append(PlanText(plan))
                                   : std::string("!").append(problems[r]);
    if (r > 0 && r < problems.size()) verdict.append(" (" + Where(team, static_cast<int>(r)) + ")");
  }
  team.broadcast(verdict);
  if (verdict.front() == '!') throw SimError(verdict.substr(1));
  return ReadPlan(verdict.substr(1));
}

void StandDown(Team& team, const std::string& reason) {
  try {
    Muster(team, reason.empty() ? "the process stopped before the run" : reason, {});
  } catch (const SimError&) {
    // The process that leads the run says why it did not start.
  }
}

Share ShareOf(const Team& team, std::int64_t offset) {
  const std::int64_t size = team.size();
  return {static_cast<int>(1 + ((team.rank() - offset) % size + size) % size), static_cast<int>(size)};
}

// The letters of one scenario of the run, and the control letters that come meanwhile.
class Crew::Arrivals final : public Remote {
 public:
  explicit Arrivals(Team& team) : team_(team) {}

  void fetch(Outlet& outlet) override {
    bool came = false;
    while (auto letter = team_.collect(letters::kControl)) came = true, note(*letter);
    while (auto letter = team_.collect(tag_)) came = true, open(*letter, outlet);
    if (!came) std::this_thread::sleep_for(kPause);
  }

  // Waits for the last letter of every other process, dropping whatever else still comes.
  void gatherIn() {
    while (done_ < team_.size() - 1) {
      const auto letter = team_.collect(Team::kAnyTag);
      if (!letter) std::this_thread::sleep_for(kPause);
      else if (letter->tag == letters::kControl) note(*letter);
    }
  }

  void turnTo(int tag) { tag_ = tag; }

 private:
  void note(const Letter& letter) {
    if (letter.body == letters::kDone) ++done_;
    if (letter.body == letters::kCancelled) RunMonitor::get().requestCancel();
  }

  void open(const Letter& letter, Outlet& outlet) {
    const int iteration = letters::IterationOf(letter.body);
    const std::string_view content = std::string_view(letter.body).substr(letters::kHead);
    if (letter.body.front() == letters::kFault) {
      outlet.fail(iteration, std::string(content) + " (" + (iteration > 0 ? "iteration " +
                  std::to_string(iteration) + ", " : std::string()) + Where(team_, letter.from) + ")");
      return;
    }
    try {
      Unpack(content, record_);
    } catch (const std::bad_alloc&) {
      outlet.fail(iteration, "iteration " + std::to_string(iteration) + " ran out of memory");
      return;
    }
    outlet.deliver(iteration, record_);
  }

  Team& team_;
  int tag_ = letters::ScenarioTag(0);
  int done_ = 0;
  IterationRecord record_;
};

Crew::Crew(Team& team) : team_(team), arrivals_(std::make_unique<Arrivals>(team)) {}

Crew::~Crew() {
  if (team_.size() == 1) return;
  try {
    for (int r = 1; r < team_.size(); ++r) team_.post(r, letters::kControl, letters::kStop);
    arrivals_->gatherIn();
    while (team_.pending() > 0) std::this_thread::sleep_for(kPause);
  } catch (...) {
    // Nothing is left to tell: the MPI library ends the job on a failure of its own.
  }
}

Crew::Part Crew::next(int iterations) {
  const Share share = ShareOf(team_, offset_);
  offset_ += iterations;
  arrivals_->turnTo(letters::ScenarioTag(scenario_++));
  return {share, team_.size() > 1 ? arrivals_.get() : nullptr};
}

}  // namespace tamsic::sim
