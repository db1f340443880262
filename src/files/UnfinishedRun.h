#pragma once
// What a run has finished so far, kept beside its result files while it
// goes on, so that a run that was cancelled, failed or is being taken a
// step at a time can be taken up again: with the same seed, the scenarios
// it finished keep their files and the others run as they would have.
// The file goes once every scenario of the run is done.
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tamsic {

struct UnfinishedRun {
  std::uint64_t seed = 0;
  std::vector<std::string> scenarios;  // as the run named them
  std::vector<std::string> finished;   // in the order they finished

  bool done(const std::string& name) const;
  // The first scenario of the run not finished yet, if any.
  std::optional<std::string> next() const;
};

// The record of the project titled `title` in `folder` (its results folder).
std::filesystem::path UnfinishedRunFile(const std::filesystem::path& folder, const std::string& title);
// Nothing when there is no record; throws FileError when it cannot be read.
std::optional<UnfinishedRun> ReadUnfinishedRun(const std::filesystem::path& folder, const std::string& title);
// Written whole beside the record and moved over it, so a failure never leaves half a record. Throws FileError.
void WriteUnfinishedRun(const std::filesystem::path& folder, const std::string& title, const UnfinishedRun& run);
void ForgetUnfinishedRun(const std::filesystem::path& folder, const std::string& title);

// Which of `names` a run in `mode` ("" normal, "+" resumed, "META" stepwise) runs, by the record in `folder`.
std::vector<std::string> ScenariosToRun(const std::filesystem::path& folder, const std::string& title,
                                        const std::vector<std::string>& names, const std::string& mode);

}  // namespace tamsic
