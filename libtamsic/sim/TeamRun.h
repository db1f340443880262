#pragma once
// A run shared by a team of processes (Team.h). The (scenario, iteration)
// items of the whole run are dealt round robin, so that no process waits
// when a scenario's iterations are no multiple of the team's size, and the
// others move on to the next scenario while rank 0 still folds the last one.
// Every iteration runs from its own random stream, as in one process; the
// others send their records to rank 0, which folds them in iteration order
// and alone writes every file, so the files are those of one process with
// the same seed. A fault anywhere ends the run as it would in one process:
// rank 0 waits for the iterations before the lowest failing one, so that
// the fault it reports is the one a single process would.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "files/ProjectDocument.h"
#include "sim/Options.h"
#include "sim/Simulate.h"
#include "sim/Team.h"

namespace tamsic::sim {

// What rank 0 settles for the whole team: the seed and the scenarios to run now.
struct RunPlan {
  std::uint64_t seed = 0;
  std::vector<std::string> scenarios;
};

// The start of a run, on every process: each says what kept it from
// starting (nothing: empty), and rank 0 hands its plan to all. Throws
// SimError everywhere when any process could not start; rank 0's own
// problem comes first.
RunPlan Muster(Team& team, const std::string& problem, const RunPlan& plan);

// For a process that leaves its team without running (its front end failed
// before the run): it takes part in the start as one that could not, so
// that the others do not wait for it.
void StandDown(Team& team, const std::string& reason);

// The iterations of a scenario that this process runs, when the scenario's
// first iteration is item `offset` of the run.
Share ShareOf(const Team& team, std::int64_t offset);

// Rank 0's side of a run: the records that the others send, scenario by
// scenario, and the end of their part. A team of one has no others.
class Crew {
 public:
  explicit Crew(Team& team);
  // Tells every other process to stop and waits for its last letter, whatever
  // became of the run, so that each ends cleanly.
  ~Crew();
  Crew(const Crew&) = delete;
  Crew& operator=(const Crew&) = delete;

  // This process's share of the run's next scenario, and where the rest comes from.
  struct Part {
    Share share;
    Remote* remote = nullptr;
  };
  Part next(int iterations);

 private:
  class Arrivals;
  Team& team_;
  std::unique_ptr<Arrivals> arrivals_;
  std::int64_t offset_ = 0;
  std::size_t scenario_ = 0;
};

// Every process but rank 0: runs its share of each scenario of the plan and
// sends the records to rank 0, until the plan is done or rank 0 says stop.
void Help(const ProjectDocument& project, const RunPlan& plan, const Options& options, Team& team);

}  // namespace tamsic::sim
