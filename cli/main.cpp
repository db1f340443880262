// tamsic-cli: works with project files without the desktop program.
//   tamsic-cli info FILE.tpj        what the project holds
//   tamsic-cli resave IN.tpj OUT.tpj  load a project and save it again
//   tamsic-cli run FILE.tpj [--scenario NAME]... [--seed N] [--threads N] [--no-estimate]
//                                   simulate scenarios (all when none is named),
//                                   after an estimate of time and memory
//   tamsic-cli estimate FILE.tpj [--scenario NAME]... [--seed N] [--threads N] [--reply]
//                                   only the estimate
//   tamsic-cli st FILE.tpj [--out OUT.tpj]
//                                   generate the sensitivity-test scenarios
// Every failure ends with the program's message on stderr and exit code 1;
// a command line that cannot be understood ends with exit code 2.
#include <CLI/CLI.hpp>

#include <iostream>

#include "RunCommand.h"
#include "STCommand.h"
#include "StderrMessageBox.h"
#include "app/EnglishMessages.h"
#include "files/ProjectFile.h"
#include "files/ProjectOpen.h"
#include "files/TextCodec.h"
#include "model/Errors.h"

namespace tamsic {
namespace {

constexpr int kUsageError = 2;

struct Session {
  StderrMessageBox box;
  EnglishMessages strings;
  Messages messages{box, strings};
};

std::optional<OpenedProject> Open(const std::string& path, Session& session) {
  return OpenForReading(path, session.messages, session.box);
}

void PrintInfo(const OpenedProject& opened) {
  const ProjectDocument& project = opened.document;
  std::cout << "Title: " << Cp1252ToUtf8(project.title) << "\n"
            << "Version: " << opened.versionText << "\n"
            << "Scenarios: " << project.scenarios.Count() << "\n";
  for (std::size_t n = 1; n <= project.scenarios.Count(); ++n) {
    const clsScenario& s = project.scenarios.Item(n);
    std::cout << "  " << n << ". " << Cp1252ToUtf8(s.Text(F("txtSceneName")))
              << "  populations " << Cp1252ToUtf8(s.Text(F("txtNumPop")))
              << ", years " << Cp1252ToUtf8(s.Text(F("txtNumYear")))
              << ", iterations " << Cp1252ToUtf8(s.Text(F("txtNumIter"))) << "\n";
  }
  const STScheme& scheme = project.stScheme;
  std::cout << "ST items: " << scheme.NumItems << "\n";
  for (int i = 0; i < scheme.NumItems && i < static_cast<int>(scheme.Items.size()); ++i) {
    const STItem& item = scheme.Items[i];
    std::cout << "  " << i << ". " << Cp1252ToUtf8(item.Label) << " (baseline scenario "
              << item.ScenarioIndex << "):";
    for (std::size_t j = 0; j < item.Vars.size(); ++j)
      std::cout << (j ? ", " : " ") << Cp1252ToUtf8(item.Vars[j]) << " = "
                << Cp1252ToUtf8(j < item.Vals.size() ? item.Vals[j] : std::string());
    std::cout << "\n";
  }
}

int Info(const std::string& path) {
  Session session;
  const auto opened = Open(path, session);
  if (!opened) return 1;
  PrintInfo(*opened);
  return 0;
}

int Resave(const std::string& in, const std::string& out) {
  Session session;
  const auto opened = Open(in, session);
  if (!opened) return 1;
  SaveProject(opened->document, out, session.messages);
  return 0;
}

int Run(int argc, char** argv) {
  CLI::App app{"Tamsic: population viability analysis, batch tools"};
  app.require_subcommand(1);
  std::string file, in, out;
  auto* info = app.add_subcommand("info", "Show the title, scenarios and sensitivity-test items of a project");
  info->add_option("FILE", file, "Project file (.tpj)")->required();
  auto* resave = app.add_subcommand("resave", "Load a project and save it again under another name");
  resave->add_option("IN", in, "Project file to read")->required();
  resave->add_option("OUT", out, "Project file to write")->required();
  RunArguments run;
  std::uint64_t seed = 0;
  auto* simulate = app.add_subcommand("run", "Simulate scenarios of a project; result files go beside the project");
  simulate->add_option("FILE", run.project, "Project file (.tpj)")->required();
  simulate->add_option("--scenario", run.scenarios, "Scenario to run (repeatable; default: all)");
  auto* seedOption = simulate->add_option("--seed", seed, "Random seed, for repeatable results");
  simulate->add_option("--threads", run.threads, "Threads to use (default: every core)")->check(CLI::NonNegativeNumber);
  simulate->add_flag("--resume", run.resume,
                     "Go on with a run that was interrupted or failed: its seed, and only the scenarios it did not "
                     "finish");
  bool noEstimate = false;
  simulate->add_flag("--no-estimate", noEstimate, "Run without first estimating the run's time and memory");
  auto* estimate = app.add_subcommand("estimate", "Estimate the time and peak memory of a run from a short pilot, "
                                                  "without running it");
  estimate->add_option("FILE", run.project, "Project file (.tpj)")->required();
  estimate->add_option("--scenario", run.scenarios, "Scenario to estimate (repeatable; default: all)");
  auto* estimateSeed = estimate->add_option("--seed", seed, "Random seed of the run");
  estimate->add_option("--threads", run.threads, "Threads the run would use (default: every core)")
      ->check(CLI::NonNegativeNumber);
  bool reply = false;
  estimate->add_flag("--reply", reply, "Print the engine's reply as it stands: key=value fields, for scripts");
  STArguments st;
  auto* generate = app.add_subcommand("st", "Check the sensitivity-test scheme and write the project with its "
                                            "ST scenarios generated, one per item");
  generate->add_option("FILE", st.project, "Project file (.tpj)")->required();
  generate->add_option("--out", st.out, "Project file to write (default: FILE, its earlier version kept as a backup)");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    // Help asked for is no failure; anything else is a usage error.
    const int printed = app.exit(error);
    return printed == 0 ? 0 : kUsageError;
  }
  if (*info) return Info(file);
  if (*generate) {
    Session session;
    return GenerateSTCommand(st, session.messages, session.box);
  }
  if (*simulate || *estimate) {
    if (*seedOption || *estimateSeed) run.seed = seed;
    if (noEstimate) run.estimate = EstimateUse::Skip;
    if (*estimate) run.estimate = reply ? EstimateUse::OnlyReply : EstimateUse::Only;
    Session session;
    return RunProject(run, session.messages, session.box);
  }
  return Resave(in, out);
}

}  // namespace
}  // namespace tamsic

int main(int argc, char** argv) {
  try {
    return tamsic::Run(argc, argv);
  } catch (const tamsic::TamsicError& error) {
    if (error.number() != tamsic::kErrMissingSection) std::cerr << "Error: " << error.what() << "\n";
    return 1;
  } catch (const std::exception& error) {
    std::cerr << "Error: " << error.what() << "\n";
    return 1;
  }
}
