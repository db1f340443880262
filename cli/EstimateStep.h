#pragma once
// The estimate in tamsic-cli: printed before a run (stderr, the run's
// output being the summary on stdout), or as the whole output of
// `tamsic-cli estimate` (stdout, a line for each scenario as well). A run
// whose memory cannot be had stops here with the engine's reason; one whose
// estimate failed goes ahead, for the run to report the fault in its turn.
#include <optional>

#include "RunCommand.h"
#include "engine/Engine.h"
#include "engine/basSimulation.h"

namespace tamsic {

// The exit code when the command ends with the estimate (refused, failed, or
// asked for alone); nothing when the run is to go ahead.
std::optional<int> TellEstimate(Engine& engine, const basSimulation::RunRequest& request, EstimateUse use);

}  // namespace tamsic
