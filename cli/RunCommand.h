#pragma once
// tamsic-cli run: runs scenarios of a project through the engine library,
// as the desktop program does, with a progress bar on stderr.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "StderrMessageBox.h"
#include "files/ProjectOpen.h"
#include "model/Messages.h"

namespace tamsic {

// The estimate of time and memory: before the run, not at all, or instead of it, told to
// people or as the engine's reply.
enum class EstimateUse { BeforeRun, Skip, Only, OnlyReply };

struct RunArguments {
  std::string project;
  std::vector<std::string> scenarios;  // empty: all scenarios of the project
  std::optional<std::uint64_t> seed;
  int threads = 0;  // 0: every core
  bool resume = false;  // go on with an unfinished run: its seed, and only the scenarios it did not finish
  EstimateUse estimate = EstimateUse::BeforeRun;
};

// A project read for the command line, with no backups: nothing here changes
// the file. Nothing when it could not be read; the reason is on stderr.
std::optional<OpenedProject> OpenForReading(const std::string& path, Messages& messages, StderrMessageBox& box);

// The exit code: 0 when the engine answered "Message", else 1 (its reply on stderr). A run whose
// memory cannot be had ends at its estimate.
int RunProject(const RunArguments& arguments, Messages& messages, StderrMessageBox& box);

}  // namespace tamsic
