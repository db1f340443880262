#pragma once
// The estimate of a run, which the option ESTIMATE asks for instead of the
// run: how long each scenario will take with the run's threads and how much
// memory the process will hold at its peak, from a short pilot of each
// scenario (sim/Pilot.h). It writes no file. The reply is one line of
// records separated by " | ", each of "key=value" fields separated by
// blanks: first the whole run, then each scenario in the order it would run,
// its name last, for a name may hold blanks and "=":
//   Message: estimate threads=2 seconds=390.2 peak=360000000 available=16000000000 baseline=12000000 piloted=36
//     | iterations=500 piloted=12 seconds=130.5 peak=350000000 checked=200000000 fits=1 scenario=Baseline | ...
// Seconds are wall time; peak, available and baseline are bytes of the
// process (see sim/MemoryRoom.h); checked is the peak that the run's own
// check works out from the model (sim/MemoryNeed.h); fits is 0 when the run
// would not start the scenario for want of memory, by either figure.
#include <cstdint>
#include <string>
#include <vector>

#include "files/ProjectDocument.h"
#include "sim/MemoryRoom.h"
#include "sim/Options.h"

namespace tamsic::sim {

struct ScenarioEstimate {
  std::string name;
  int iterations = 0;
  int piloted = 0;  // iterations of its own pilot; 0 when scaled from a piloted neighbour's
  double seconds = 0.0;
  double peakBytes = 0.0;
  double checkedBytes = 0.0;
  bool fits = true;
};

struct RunEstimate {
  int threads = 0;
  double seconds = 0.0;    // all scenarios, one after another
  double peakBytes = 0.0;  // the largest of the scenarios' peaks
  MemoryRoom room;
  int piloted = 0;
  std::vector<ScenarioEstimate> scenarios;
};

// `names` are the scenarios the run would run now, `seed` its seed. Throws
// SimError naming the scenario at fault, or when the run monitor cancels.
RunEstimate EstimateRun(const ProjectDocument& project, const std::vector<std::string>& names,
                        const Options& options, std::uint64_t seed, const MemoryRoom& room);

std::string EstimateReply(const RunEstimate& estimate);

}  // namespace tamsic::sim
