#include "files/UnfinishedRun.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "files/AtomicFile.h"
#include "files/OutputNames.h"
#include "model/Errors.h"

namespace tamsic {

bool UnfinishedRun::done(const std::string& name) const {
  return std::find(finished.begin(), finished.end(), name) != finished.end();
}

std::optional<std::string> UnfinishedRun::next() const {
  for (const std::string& name : scenarios)
    if (!done(name)) return name;
  return std::nullopt;
}

std::filesystem::path UnfinishedRunFile(const std::filesystem::path& folder, const std::string& title) {
  return folder / (FileNamePart(title) + ".resume");
}

// Lines "seed;N", "scenario;NAME" for each scenario of the run, "finished;NAME" for each one done.
std::optional<UnfinishedRun> ReadUnfinishedRun(const std::filesystem::path& folder, const std::string& title) {
  const std::filesystem::path file = UnfinishedRunFile(folder, title);
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  UnfinishedRun run;
  bool readable = false;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::size_t cut = line.find(';');
    const std::string key = line.substr(0, cut);
    const std::string value = cut == std::string::npos ? "" : line.substr(cut + 1);
    if (key == "seed") {
      std::istringstream number(value);
      readable = static_cast<bool>(number >> run.seed) && number.eof();
    } else if (key == "scenario") {
      run.scenarios.push_back(value);
    } else if (key == "finished") {
      run.finished.push_back(value);
    } else if (!key.empty()) {
      readable = false;
      break;
    }
  }
  if (!readable || run.scenarios.empty())
    throw FileError("the record of the unfinished run, " + file.string() + ", cannot be read; use Run to start again");
  return run;
}

void WriteUnfinishedRun(const std::filesystem::path& folder, const std::string& title, const UnfinishedRun& run) {
  std::string text = "seed;" + std::to_string(run.seed) + "\r\n";
  for (const std::string& name : run.scenarios) text += "scenario;" + name + "\r\n";
  for (const std::string& name : run.finished) text += "finished;" + name + "\r\n";
  WriteFileReplacing(UnfinishedRunFile(folder, title).string(), text);
}

void ForgetUnfinishedRun(const std::filesystem::path& folder, const std::string& title) {
  std::error_code ignored;
  std::filesystem::remove(UnfinishedRunFile(folder, title), ignored);
}

std::vector<std::string> ScenariosToRun(const std::filesystem::path& folder, const std::string& title,
                                        const std::vector<std::string>& names, const std::string& mode) {
  std::optional<UnfinishedRun> kept;
  if (!mode.empty()) {
    try {
      kept = ReadUnfinishedRun(folder, title);
    } catch (const FileError&) {
      // The run itself says what is wrong with the record.
    }
  }
  // A stepwise run goes on only with its own scenarios; otherwise it starts again.
  if (mode == "META" && kept && kept->scenarios != names) kept.reset();
  std::vector<std::string> chosen;
  for (const std::string& name : names)
    if (!(kept && kept->done(name)) && (mode != "META" || chosen.empty())) chosen.push_back(name);
  return chosen;
}

}  // namespace tamsic
