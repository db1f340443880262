#pragma once
// Turns a scenario record into the Model the simulation runs. Every input
// is checked here, before any iteration starts; a fault throws SimError
// naming the input, and files that inputs name are read and checked here.
#include <filesystem>

#include "model/clsScenario.h"
#include "sim/Model.h"

namespace tamsic::sim {

// `folder` is where file references are found (the project's working folder).
Model ReadModel(const clsScenario& scenario, const std::filesystem::path& folder, const Options& options);

}  // namespace tamsic::sim
