#pragma once
// A run as tamsicsim asks for it: the work file, "{" + scenario names
// separated by ", " + "}", and the options string. Runs the scenarios in
// order and writes their files into the current directory.
#include <string>

#include "sim/Team.h"

namespace tamsic::sim {

// "Message: ..." with a one-line summary, or "Error: ..." naming the
// scenario and the input at fault. Files of scenarios finished before a
// fault stay written. Never throws.
std::string RunScenarios(const std::string& workFile, const std::string& bracedList, const std::string& options);

// The same run shared by the processes of `team` (TeamRun.h), each of which
// calls this: rank 0 answers for the run and writes every file; the others
// answer whether their part went well.
std::string RunScenarios(const std::string& workFile, const std::string& bracedList, const std::string& options,
                         Team& team);

}  // namespace tamsic::sim
