#pragma once
// tamsic-cli run: runs scenarios of a project through the engine library,
// as the desktop program does, with a progress bar on stderr.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "StderrMessageBox.h"
#include "app/Messages.h"

namespace tamsic {

struct RunArguments {
  std::string project;
  std::vector<std::string> scenarios;  // empty: all scenarios of the project
  std::optional<std::uint64_t> seed;
  int threads = 0;  // 0: every core
};

// The exit code: 0 when the engine answered "Message", else 1 (its reply on stderr).
int RunProject(const RunArguments& arguments, Messages& messages, StderrMessageBox& box);

}  // namespace tamsic
