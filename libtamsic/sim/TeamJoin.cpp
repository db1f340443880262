// JoinTeam of an engine built without MPI: every process is alone.
#include <string>

#include "sim/SimError.h"
#include "sim/Team.h"

namespace tamsic::sim {

// Processes that a launcher started together would each run the whole study
// and write over each other's files, so they are stopped at once.
std::unique_ptr<Team> JoinTeam() {
  const Launch launch = LaunchedTogether();
  if (launch.size > 1)
    throw SimError(std::to_string(launch.size) + " processes were started together, but this engine was built " +
                   "without MPI, so each would run the whole study into the same files; run one process, or " +
                   "build Tamsic with cmake -DTAMSIC_MPI=ON");
  return std::make_unique<SoloTeam>();
}

}  // namespace tamsic::sim
