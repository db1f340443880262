#pragma once
// The estimate of a run before it is made. The engine runs a short pilot of
// each scenario, when the options carry the word ESTIMATE, through the same
// call as the run itself, and answers how long the run will take with its
// threads and how much memory the process will hold at its peak, writing no
// file (libtamsic/sim/Estimate.h describes the reply). A scenario that does
// not fit in the memory available is one the run would refuse to start.
#include <optional>
#include <string>
#include <vector>

#include "engine/Engine.h"
#include "engine/basSimulation.h"

namespace tamsic {

struct ScenarioEstimate {
  std::string name;
  int iterations = 0;
  int piloted = 0;  // iterations of its own pilot; 0 when scaled from another scenario's
  double seconds = 0.0;
  double peakBytes = 0.0;
  double checkedBytes = 0.0;  // the peak by the run's own check, from the model
  bool fits = true;
};

struct RunEstimate {
  int threads = 0;
  double seconds = 0.0;
  double peakBytes = 0.0;
  double availableBytes = 0.0;
  double baselineBytes = 0.0;  // the process before the run
  int piloted = 0;             // iterations of all pilots
  std::vector<ScenarioEstimate> scenarios;

  std::vector<const ScenarioEstimate*> refused() const;
};

// The estimate of the engine's reply; nothing when the reply is not one.
std::optional<RunEstimate> ParseEstimate(const std::string& reply);

struct EstimateResult {
  std::optional<RunEstimate> estimate;
  std::string reply;    // the engine's, as it stands
  std::string failure;  // when there is no estimate: the engine's "Error: ..." reply, or why the call failed
};

// The estimate of the run `request` describes; its work file must be saved.
EstimateResult AskEstimate(Engine& engine, const basSimulation::RunRequest& request);

}  // namespace tamsic
