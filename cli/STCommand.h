#pragma once
// tamsic-cli st: checks a project's sensitivity-test scheme and writes the
// project again with one "ST." scenario per item, ready for tamsic-cli run.
#include <string>

#include "StderrMessageBox.h"
#include "model/Messages.h"

namespace tamsic {

struct STArguments {
  std::string project;
  std::string out;  // empty: back into the project, keeping its earlier version as a backup
};

// The exit code: 0 when the scenarios were generated and written; 1 when the
// project could not be read or written, or the scheme has problems (each on
// stderr, and nothing written).
int GenerateSTCommand(const STArguments& arguments, Messages& messages, StderrMessageBox& box);

}  // namespace tamsic
