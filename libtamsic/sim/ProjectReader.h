#pragma once
// Reads the work file with the core's project reader, the engine's way:
// messages the reader would show go into the error instead of a window.
#include <string>

#include "files/ProjectDocument.h"

namespace tamsic::sim {

// Throws SimError naming the file and the reader's complaint.
ProjectDocument ReadWorkFile(const std::string& path);

// The scenario of that name (without regard to case) or of that number
// ("3"); throws SimError when the project has none.
const clsScenario& FindScenario(const ProjectDocument& project, const std::string& name);

}  // namespace tamsic::sim
