#include "sim/Runner.h"

#include <filesystem>
#include <optional>
#include <random>

#include "files/OutputNames.h"
#include "files/UnfinishedRun.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "report/ExtraFiles.h"
#include "report/GeneticFiles.h"
#include "report/Outcome.h"
#include "sim/Estimate.h"
#include "sim/MemoryNeed.h"
#include "sim/ProjectReader.h"
#include "sim/ReadModel.h"
#include "sim/RunDate.h"
#include "sim/RunMonitor.h"
#include "sim/SimError.h"
#include "sim/Simulate.h"
#include "sim/TeamRun.h"

namespace tamsic::sim {

namespace {

std::vector<std::string> ScenarioNames(std::string list) {
  list = std::string(Trim(list));
  if (!list.empty() && list.front() == '{') list.erase(0, 1);
  if (!list.empty() && list.back() == '}') list.pop_back();
  std::vector<std::string> names;
  std::size_t start = 0;
  while (start <= list.size()) {
    const std::size_t end = std::min(list.find(',', start), list.size());
    const std::string name(Trim(std::string_view(list).substr(start, end - start)));
    if (!name.empty()) names.push_back(name);
    start = end + 1;
  }
  return names;
}

// A scenario's files are written under temporary names and moved into place
// together once all are complete, so that a failure (a full disk) leaves the
// files of an earlier run as they were, never half of them new.
void WriteResultFiles(const report::Outcome& outcome, const std::string& title) {
  const std::string& name = outcome.model.name;
  const std::string dat = report::ScenarioFile(title, name, ".dat");
  const std::string run = report::ScenarioFile(title, name, ".run");
  const std::string out = report::ScenarioFile(title, name, ".out");
  const std::string sum = SummaryFileName(title);
  const auto part = [](const std::string& file) { return file + ".part"; };
  try {
    report::WriteYearlyData(outcome, part(dat));
    report::WriteRunTable(outcome, part(run));
    report::WriteOutputReport(outcome, part(out));
    report::UpdateSummary(outcome, sum, part(sum));
  } catch (...) {
    std::error_code ignored;
    for (const std::string* file : {&dat, &run, &out, &sum}) std::filesystem::remove(part(*file), ignored);
    throw;
  }
  for (const std::string* file : {&dat, &run, &out, &sum}) {
    std::error_code error;
    std::filesystem::rename(part(*file), *file, error);
    if (error) throw SimError("cannot replace the file " + *file + ": " + error.message());
  }
}

struct Finished {
  std::string line;  // the scenario's summary line
  bool cancelled = false;
};

Finished RunOne(const ProjectDocument& project, const clsScenario& scenario, const Options& options,
                std::uint64_t seed, Crew& crew) {
  const Model model = ReadModel(scenario, std::filesystem::current_path(), options);
  std::vector<LifeTable> tables;
  for (int p = 0; p < model.populations; ++p) tables.push_back(BuildLifeTable(model, p));
  CheckMemory(model, NeedFromModel(model, tables), MeasureMemoryRoom());
  const std::string date = RunDate();
  const Crew::Part part = crew.next(model.iterations);
  const std::string& title = project.title;
  report::ExtraFiles extra(model, title);
  std::optional<report::GeneticFiles> genetic;
  auto discard = [&] {
    extra.discard();
    if (genetic) genetic->discard();
  };
  std::optional<Results> results;
  try {
    genetic.emplace(model, title);
    results = Simulate(model, StartingPopulations(model, tables), seed, options.threads,
                       [&](int iteration, const IterationRecord& record) {
                         extra.add(iteration, record);
                         genetic->add(iteration, record);
                       },
                       part.share, part.remote);
  } catch (...) {
    discard();
    throw;
  }
  if (!results) {
    discard();
    return {"", true};
  }
  try {
    extra.close();
    genetic->close();
  } catch (...) {
    discard();
    throw;
  }
  const report::Outcome outcome{model, *results, tables, seed, date};
  WriteResultFiles(outcome, title);
  return {report::SummaryLine(outcome), false};
}

std::int64_t TotalIterations(const ProjectDocument& project, const std::vector<std::string>& names) {
  std::int64_t total = 0;
  for (const std::string& name : names) {
    const std::size_t number = project.scenarios.Find(name);
    if (number > 0) total += std::max(0, LeadingInt(project.scenarios.Item(number).Text(F("txtNumIter"))));
  }
  return total;
}

std::uint64_t DrawnSeed() { return std::random_device{}() ^ (std::uint64_t(std::random_device{}()) << 32); }

std::string Plural(std::size_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

constexpr char kSummaryFields[] =
    " (scenario;years;iterations;Det.r;Stoch.r;SD(r);P(extinct);N[extant];SD;N[all];SD;GeneDiv;SD;Inbreeding;"
    "#Alleles;MedianTE;MeanTE): ";

// What the run takes up: a normal run starts afresh; a resumed run goes on
// with the unfinished run's seed and skips what it finished; a stepwise run
// goes on with its own unfinished run of the same scenarios, or starts one.
UnfinishedRun TakeUp(const std::string& title, const std::vector<std::string>& names, const Options& options) {
  const std::optional<UnfinishedRun> kept = options.runMode.empty() ? std::nullopt : ReadUnfinishedRun(".", title);
  if (options.runMode == "+" && !kept)
    throw SimError("there is no unfinished run of this project to resume; use Run");
  if (options.runMode == "+" || (kept && kept->scenarios == names)) {
    UnfinishedRun run = *kept;
    run.scenarios = names;
    if (options.seed) run.seed = *options.seed;
    return run;
  }
  return {options.seed ? *options.seed : DrawnSeed(), names, {}};
}

struct Setup {
  ProjectDocument project;
  std::vector<std::string> names;
  Options options;
};

Setup SetUp(const std::string& workFile, const std::string& bracedList, const std::string& optionText) {
  Setup setup{ReadWorkFile(workFile), ScenarioNames(bracedList), ParseOptions(optionText)};
  if (setup.names.empty()) throw SimError("no scenario was named to run");
  return setup;
}

// Every process of the team reads the project; rank 0 alone takes up the
// run (its record beside the files, a seed drawn) and tells the others.
std::string Run(const std::string& workFile, const std::string& bracedList, const std::string& optionText,
                Team& team) {
  std::optional<Setup> setup;
  std::optional<UnfinishedRun> taken;
  std::vector<std::string> now;
  std::string problem;
  try {
    setup.emplace(SetUp(workFile, bracedList, optionText));
    if (team.rank() == 0) {
      taken = TakeUp(setup->project.title, setup->names, setup->options);
      now = ScenariosToRun(".", setup->project.title, setup->names, setup->options.runMode);
    }
  } catch (const std::exception& fault) {
    problem = fault.what();
  }
  // The pilot is one process's own: its figures are for that process and its threads.
  if (setup && setup->options.estimate) {
    if (team.size() > 1) throw SimError("the estimate is made by one process alone; run it outside the MPI job");
    if (!problem.empty()) throw SimError(problem);
    return EstimateReply(EstimateRun(setup->project, now, setup->options, taken->seed, MeasureMemoryRoom()));
  }
  const RunPlan plan = Muster(team, problem, {taken ? taken->seed : 0, now});
  if (team.rank() != 0) {
    Help(setup->project, plan, setup->options, team);
    return "Message: rank " + std::to_string(team.rank()) + " ran its share";
  }
  Crew crew(team);
  const ProjectDocument& project = setup->project;
  const std::vector<std::string>& names = setup->names;
  const Options& options = setup->options;
  const std::string& title = project.title;
  UnfinishedRun& run = *taken;
  const bool stepwise = options.runMode == "META";
  WriteUnfinishedRun(".", title, run);
  RunMonitor::get().start(TotalIterations(project, now));
  std::string summary;
  for (const std::string& name : now) {
    const clsScenario& scenario = FindScenario(project, name);
    Finished finished;
    try {
      finished = RunOne(project, scenario, options, run.seed, crew);
    } catch (const SimError& fault) {
      throw SimError("scenario \"" + name + "\": " + fault.what());
    }
    if (finished.cancelled)
      return "Error: the run was cancelled during scenario \"" + name + "\"" +
             (summary.empty() ? std::string() : "; finished before it: " + summary);
    summary += (summary.empty() ? "" : " | ") + finished.line;
    run.finished.push_back(name);
    WriteUnfinishedRun(".", title, run);
  }
  if (!run.next()) ForgetUnfinishedRun(".", title);
  const std::string seed = " with seed " + std::to_string(run.seed);
  if (stepwise)
    return "Message: step " + std::to_string(run.finished.size()) + " of " + std::to_string(names.size()) +
           (now.empty() ? ": every scenario was already run" + seed
                        : ", scenario run" + seed + kSummaryFields + summary);
  const std::size_t kept = names.size() - now.size();
  return "Message: " + Plural(now.size(), "scenario") + " run" + seed +
         (kept > 0 ? " (" + Plural(kept, "scenario") + " finished before kept)" : "") + kSummaryFields + summary;
}

}  // namespace

std::string RunScenarios(const std::string& workFile, const std::string& bracedList, const std::string& options) {
  SoloTeam alone;
  return RunScenarios(workFile, bracedList, options, alone);
}

std::string RunScenarios(const std::string& workFile, const std::string& bracedList, const std::string& options,
                         Team& team) {
  std::string reply;
  try {
    reply = Run(workFile, bracedList, options, team);
  } catch (const std::exception& fault) {
    reply = std::string("Error: ") + fault.what();
  }
  RunMonitor::get().finish();
  return reply;
}

}  // namespace tamsic::sim
