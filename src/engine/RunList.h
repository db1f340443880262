#pragma once
// The run request that the run dialog hands to the run command: how many
// scenarios were checked and their names. Each checked name is followed by
// ", " unless it is the last entry of the whole list, checked or not, so a
// list whose last entry is unchecked ends in ", "; the run call strips that.
#include <optional>
#include <string>
#include <vector>

namespace tamsic {

struct RunListEntry {
  std::string name;
  bool checked = false;
};

struct RunList {
  int count = 0;  // 0: nothing to run
  std::string names;
  std::vector<std::size_t> checked;  // the positions of the checked entries, from 0
};

RunList BuildRunList(const std::vector<RunListEntry>& entries);

// The progress reply "done;total" as two numbers; nothing for a reply that
// is not of that form or has no total.
struct RunProgress {
  long done = 0;
  long total = 0;
};
std::optional<RunProgress> ParseProgress(const std::string& reply);

// Seconds still to go at the pace so far; nothing before the first iteration is done.
std::optional<double> SecondsLeft(const RunProgress& progress, double secondsSoFar);

}  // namespace tamsic
