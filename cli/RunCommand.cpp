// The run goes through the same binding as the desktop program: the project
// is saved to a work file, the project's folder becomes the current
// directory (where the engine writes its files), and basSimulation::Run
// calls tamsicsim in the loaded library. A second thread draws the progress
// bar from tamsicProgress and turns Ctrl+C (and SIGTERM, SIGHUP) into
// tamsicCancel, so the engine stops within a simulated year and the finished
// scenarios keep their files. Started by mpirun or srun, every process does
// all this as one of a team (RunTeam.h); only rank 0 prints.
#include "RunCommand.h"

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <mutex>
#include <thread>

#include "EstimateStep.h"
#include "RunTeam.h"
#include "engine/Engine.h"
#include "engine/EmptyStart.h"
#include "engine/SpecialOptionsFlags.h"
#include "engine/WorkFile.h"
#include "engine/basSimulation.h"
#include "files/ProjectFile.h"
#include "files/ProjectOpen.h"
#include "files/TextCodec.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

std::atomic<bool> interrupted{false};

extern "C" void OnInterrupt(int) { interrupted = true; }

struct WorkFileRemoval {
  std::filesystem::path file;
  ~WorkFileRemoval() {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
  }
};

class NoCursor : public IBusyCursor {
 public:
  void setBusy(bool) override {}
};

std::filesystem::path ProgramFolder() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::filesystem::current_path() : self.parent_path();
}

// "[#########.......]  120/500 iterations, 0:42 left"; false when there is no run to show.
bool DrawProgress(const std::string& reply, std::chrono::steady_clock::time_point start) {
  const auto cut = reply.find(';');
  if (cut == std::string::npos) return false;
  const long done = std::stol(reply.substr(0, cut));
  const long total = std::stol(reply.substr(cut + 1));
  if (total <= 0) return false;
  const int width = 30;
  const int filled = static_cast<int>(width * done / total);
  const double elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  const long left = done > 0 ? static_cast<long>(elapsed * (total - done) / done) : 0;
  std::cerr << "\r[" << std::string(static_cast<std::size_t>(filled), '#')
            << std::string(static_cast<std::size_t>(width - filled), '.') << "] " << done << "/" << total
            << " iterations, " << left / 60 << ":" << (left % 60 < 10 ? "0" : "") << left % 60 << " left "
            << std::flush;
  return true;
}

// Watches the run until `finished`: progress every quarter second (when it draws), cancel on Ctrl+C.
class Watcher {
 public:
  Watcher(Engine& engine, bool draws) : engine_(engine), draws_(draws), thread_([this] { watch(); }) {}
  ~Watcher() {
    {
      std::lock_guard lock(mutex_);
      finished_ = true;
    }
    wake_.notify_all();
    thread_.join();
    if (drew_) std::cerr << "\n";
  }

 private:
  void watch() {
    const auto start = std::chrono::steady_clock::now();
    bool cancelled = false;
    std::unique_lock lock(mutex_);
    while (!wake_.wait_for(lock, std::chrono::milliseconds(250), [this] { return finished_; })) {
      if (interrupted && !cancelled) cancelled = engine_.cancel();
      if (!draws_) continue;
      if (const auto progress = engine_.progress()) drew_ = DrawProgress(*progress, start) || drew_;
    }
  }

  Engine& engine_;
  const bool draws_;
  std::mutex mutex_;
  std::condition_variable wake_;
  bool finished_ = false;
  bool drew_ = false;
  std::thread thread_;
};

std::string ScenarioList(const ProjectDocument& project, const RunArguments& arguments, Messages& messages) {
  std::string list;
  if (arguments.scenarios.empty())
    for (std::size_t n = 1; n <= project.scenarios.Count(); ++n)
      list += project.scenarios.Item(n).Text(F("txtSceneName")) + ", ";
  for (const std::string& name : arguments.scenarios) {
    if (project.scenarios.Find(Utf8ToCp1252(name)) == 0) {
      messages.show("There is no scenario \"" + name + "\" in " + arguments.project, msg::kError, MsgIcon::Critical);
      return {};
    }
    list += Utf8ToCp1252(name) + ", ";
  }
  return list;
}

std::string EngineOptions(const ProjectDocument& project, const RunArguments& arguments) {
  std::string options = Flags(project.specialOptions);
  const auto append = [&](const std::string& code) { options += (options.empty() ? "" : ";") + code; };
  if (arguments.seed) append("SEED" + std::to_string(*arguments.seed));
  if (arguments.threads > 0) append("THREADS" + std::to_string(arguments.threads));
  return options;
}

void PrintSummary(const std::string& reply) {
  // The head may hold a bracket of its own ("(1 scenario finished before kept)"), so the field list is found by name.
  const auto fields = reply.find(" (scenario;");
  const auto colon = reply.find("): ", fields);
  if (fields == std::string::npos || colon == std::string::npos) {
    std::cout << Cp1252ToUtf8(reply) << "\n";
    return;
  }
  std::cout << Cp1252ToUtf8(reply.substr(0, fields)) << "\n";
  std::cout << reply.substr(fields + 2, colon - fields - 2) << "\n";
  std::string lines = reply.substr(colon + 3);
  for (std::size_t at = lines.find(" | "); at != std::string::npos; at = lines.find(" | ")) lines.replace(at, 3, "\n");
  std::cout << Cp1252ToUtf8(lines) << "\n";
}

// The run goes ahead, as a batch run must; the warning says why those populations are extinct at once.
void WarnOfEmptyStarts(const ProjectDocument& project, const RunArguments& arguments) {
  for (std::size_t n = 1; n <= project.scenarios.Count(); ++n) {
    const clsScenario& scenario = project.scenarios.Item(n);
    const std::string name(Trim(scenario.Text(F("txtSceneName"))));
    const auto& chosen = arguments.scenarios;
    if (!chosen.empty() && std::find(chosen.begin(), chosen.end(), name) == chosen.end()) continue;
    const std::vector<std::string> empty = PopulationsStartingEmpty(scenario);
    if (empty.empty()) continue;
    std::string list = empty.front();
    for (std::size_t p = 1; p < empty.size(); ++p) list += ", " + empty[p];
    std::cerr << "Warning: in scenario \"" << Cp1252ToUtf8(name) << "\" these populations start with no individuals, "
              << "so they are extinct from the first year: " << Cp1252ToUtf8(list) << "\n";
  }
}

}  // namespace

std::optional<OpenedProject> OpenForReading(const std::string& path, Messages& messages, StderrMessageBox& box) {
  auto opened = OpenProjectFile(path, messages, false);
  if (!opened && !box.sawProblem())
    messages.show(Cp1252ToUtf8(path) + " is not a Tamsic project file", msg::kError, MsgIcon::Critical);
  if (box.sawProblem()) return std::nullopt;
  return opened;
}

namespace {

int RunAsMember(const RunArguments& arguments, Messages& messages, StderrMessageBox& box, LibraryEngine& engine,
                const RunTeam& team) {
  const auto opened = OpenForReading(arguments.project, messages, box);
  if (!opened) return 1;
  if (opened->document.scenarios.Count() == 0) {
    messages.show(arguments.project + " holds no scenario to run", msg::kError, MsgIcon::Critical);
    return 1;
  }
  const std::string list = ScenarioList(opened->document, arguments, messages);
  if (list.empty()) return 1;
  if (team.leads()) WarnOfEmptyStarts(opened->document, arguments);
  const std::filesystem::path projectFolder = std::filesystem::absolute(arguments.project).parent_path();
  // Each process of a team saves a work file of its own, under a fresh name.
  basSimulation::RunRequest request{CreateWorkFile(ProgramFolder()), list, EngineOptions(opened->document, arguments),
                                    arguments.resume ? "+" : ""};
  // The desktop program keeps the work copy of a failed run for a look; here
  // the reply is printed and the project file is at hand, so none is kept.
  const WorkFileRemoval removal{request.workFile};
  SaveProject(opened->document, request.workFile.string(), messages);
  std::filesystem::current_path(projectFolder);
  NoCursor cursor;
  // Ctrl+C, a kill and a closed terminal all stop the engine the same way,
  // so that no extra file is left half written.
  for (int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, OnInterrupt);
  std::optional<int> ended;
  // The pilot's figures are one process's; the processes of an MPI job go without.
  const EstimateUse estimate =
      arguments.estimate == EstimateUse::BeforeRun && !team.alone() ? EstimateUse::Skip : arguments.estimate;
  if (estimate != EstimateUse::Skip) {
    Watcher watcher(engine, team.leads());
    ended = TellEstimate(engine, request, estimate);
  }
  std::optional<std::string> reply;
  if (!ended && !interrupted) {
    Watcher watcher(engine, team.leads());
    reply = basSimulation::Run(engine, cursor, messages, request);
  }
  for (int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, SIG_DFL);
  if (ended) return *ended;
  if (interrupted && !reply) {
    std::cerr << "The run was cancelled before it started\n";
    return 1;
  }
  if (!reply) return 1;
  if (!reply->starts_with("Message")) {
    if (team.leads()) std::cerr << Cp1252ToUtf8(*reply) << "\n";
    return 1;
  }
  if (team.leads()) PrintSummary(*reply);
  return 0;
}

}  // namespace

int RunProject(const RunArguments& arguments, Messages& messages, StderrMessageBox& box) {
  LibraryEngine engine;
  RunTeam team(engine, box);
  if (!team.error().empty()) {
    std::cerr << Cp1252ToUtf8(team.error()) << "\n";
    return 1;
  }
  int code = 1;
  try {
    code = RunAsMember(arguments, messages, box, engine, team);
  } catch (const std::exception& error) {
    team.stoppedBy(error.what());
    if (!team.leads()) return 1;
    throw;
  }
  if (box.sawProblem()) team.stoppedBy(arguments.project + ": " + box.firstMessage());
  return code;
}

}  // namespace tamsic
