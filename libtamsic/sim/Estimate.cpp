#include "sim/Estimate.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <optional>
#include <thread>

#include "model/TextNumbers.h"
#include "sim/MemoryNeed.h"
#include "sim/Pilot.h"
#include "sim/ProjectReader.h"
#include "sim/ReadModel.h"
#include "sim/RunMonitor.h"
#include "sim/SimError.h"
#include "sim/Simulate.h"

namespace tamsic::sim {

namespace {

// The pilot of the whole run takes about two seconds, or 3 % of the run
// when that is more, but never more than ten seconds.
constexpr double kPilotSeconds = 2.0;
constexpr double kPilotShare = 0.03;
constexpr double kMostPilotSeconds = 10.0;
// A tenth of a scenario's iterations gives a steady mean, once the pilot
// has run for a quarter of a second: a short run need not be run twice.
constexpr double kPilotIterationShare = 0.1;
constexpr double kSteadyPilotSeconds = 0.25;
// A study of hundreds of scenarios pilots this many of them, spread evenly
// over the list; each other scenario is scaled from the piloted one nearest
// to it in the list (see Scale).
constexpr std::size_t kPilotedScenarios = 12;

using Clock = std::chrono::steady_clock;

// What the estimate keeps of a scenario between its pilot and the totals.
struct Scenario {
  std::string name;
  int iterations = 0;
  int threads = 1;
  double setupSeconds = 0.0;  // reading the model and building its life tables
  double cost = 0.0;          // individual-years of an iteration by the projection
  MemoryNeed need;            // by the model
  std::optional<Pilot> pilot;  // of its own, or scaled from a piloted neighbour's
  double perThreadBytes = 0.0;
};

std::vector<bool> Sample(std::size_t count) {
  std::vector<bool> piloted(count, count <= kPilotedScenarios);
  if (count > kPilotedScenarios)
    for (std::size_t k = 0; k < kPilotedScenarios; ++k)
      piloted[static_cast<std::size_t>(std::lround(double(k) * double(count - 1) / double(kPilotedScenarios - 1)))] =
          true;
  return piloted;
}

double IndividualYears(const Model& model, const std::vector<LifeTable>& tables) {
  double sum = 0.0;
  for (const std::vector<double>& numbers : ProjectedNumbers(model, tables))
    for (std::size_t y = 1; y < numbers.size(); ++y) sum += numbers[y];
  return sum;
}

Scenario Prepare(const ProjectDocument& project, const std::string& name, const Options& options,
                 std::uint64_t seed, const MemoryRoom& room, const std::optional<PilotLimits>& limits) {
  const auto begin = Clock::now();
  const Model model = ReadModel(FindScenario(project, name), std::filesystem::current_path(), options);
  std::vector<LifeTable> tables;
  for (int p = 0; p < model.populations; ++p) tables.push_back(BuildLifeTable(model, p));
  Scenario s;
  s.name = name;
  s.iterations = model.iterations;
  s.threads = RunThreads(model);
  s.setupSeconds = std::chrono::duration<double>(Clock::now() - begin).count();
  // Every year of an iteration costs something, populations or not.
  s.cost = IndividualYears(model, tables) + model.years * model.populations;
  s.need = NeedFromModel(model, tables);
  s.perThreadBytes = s.need.perThread;
  // A scenario the run would refuse is not piloted: its first iteration alone might not fit.
  if (!limits || model.iterations <= 0 || s.need.peak(room.baseline) > room.available) return s;
  PilotLimits own = *limits;
  own.roomPerThread = (room.available - room.baseline - s.need.runWide) / s.threads;
  own.mostIterations = std::max(2 * s.threads, static_cast<int>(kPilotIterationShare * model.iterations));
  s.pilot = RunPilot(model, StartingPopulations(model, tables), seed, s.threads, own);
  if (s.pilot->cancelled) throw SimError("the estimate was cancelled");
  // The option W's room is set aside whether the living fill it or not.
  s.perThreadBytes = model.options.reserveIndividuals > 0 ? std::max(s.pilot->perThreadBytes, s.need.perThread)
                                                            : s.pilot->perThreadBytes;
  return s;
}

// A scenario not piloted takes its time per individual-year and its bytes
// per byte of the model's figure from the piloted scenario nearest to it in
// the list: the scenarios of a sensitivity study that derive from one
// baseline sit together, after it, and differ from it in a few inputs.
void Scale(std::vector<Scenario>& scenarios) {
  const auto piloted = [&](std::size_t j) { return scenarios[j].pilot && scenarios[j].pilot->iterations > 0; };
  for (std::size_t i = 0; i < scenarios.size(); ++i) {
    if (scenarios[i].pilot) continue;
    const auto distance = [&](std::size_t k) { return i > k ? i - k : k - i; };
    std::optional<std::size_t> nearest;
    for (std::size_t j = 0; j < scenarios.size(); ++j)
      if (piloted(j) && (!nearest || distance(j) < distance(*nearest))) nearest = j;
    if (!nearest) continue;
    const Scenario& known = scenarios[*nearest];
    Scenario& s = scenarios[i];
    const double time = s.cost / known.cost;
    s.pilot = Pilot{0, known.pilot->firstSeconds * time, known.pilot->laterSeconds * time, 0.0, false};
    s.perThreadBytes = known.need.perThread > 0 ? known.perThreadBytes / known.need.perThread * s.need.perThread
                                                : s.need.perThread;
  }
}

ScenarioEstimate Sum(const Scenario& s, const MemoryRoom& room) {
  ScenarioEstimate e{s.name, s.iterations, s.pilot ? s.pilot->iterations : 0};
  e.seconds = s.setupSeconds + (s.pilot ? s.pilot->seconds(s.iterations, s.threads) : 0.0);
  e.peakBytes = room.baseline + s.threads * s.perThreadBytes + s.need.runWide;
  e.checkedBytes = s.need.peak(room.baseline);
  e.fits = std::max(e.peakBytes, e.checkedBytes) <= room.available;
  return e;
}

std::string Field(const char* key, double value) {
  return std::string(" ") + key + "=" + NumberToText(value);
}

}  // namespace

RunEstimate EstimateRun(const ProjectDocument& project, const std::vector<std::string>& names,
                        const Options& options, std::uint64_t seed, const MemoryRoom& room) {
  // No iterations to count, and a cancel request left over from an earlier run must not stop the pilot.
  RunMonitor::get().start(0);
  const std::vector<bool> sample = Sample(names.size());
  const auto piloted = static_cast<double>(std::count(sample.begin(), sample.end(), true));
  PilotLimits limits;
  limits.leastSeconds = kPilotSeconds / piloted;
  limits.runShare = kPilotShare;
  limits.mostSeconds = kMostPilotSeconds / piloted;
  limits.steadySeconds = kSteadyPilotSeconds / piloted;
  std::vector<Scenario> scenarios;
  for (std::size_t i = 0; i < names.size(); ++i) {
    try {
      scenarios.push_back(
          Prepare(project, names[i], options, seed, room, sample[i] ? std::optional(limits) : std::nullopt));
    } catch (const SimError& fault) {
      if (RunMonitor::get().cancelled()) throw;
      throw SimError("scenario \"" + names[i] + "\": " + fault.what());
    }
  }
  Scale(scenarios);
  const int cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  RunEstimate estimate;
  estimate.threads = options.threads > 0 ? options.threads : cores;
  estimate.peakBytes = room.baseline;
  estimate.room = room;
  for (const Scenario& s : scenarios) {
    estimate.scenarios.push_back(Sum(s, room));
    estimate.seconds += estimate.scenarios.back().seconds;
    estimate.peakBytes = std::max(estimate.peakBytes, estimate.scenarios.back().peakBytes);
    estimate.piloted += estimate.scenarios.back().piloted;
  }
  return estimate;
}

std::string EstimateReply(const RunEstimate& e) {
  const auto bytes = [](double value) { return std::round(value); };
  const auto seconds = [](double value) { return std::round(value * 1000.0) / 1000.0; };
  std::string reply = "Message: estimate" + Field("threads", e.threads) + Field("seconds", seconds(e.seconds)) +
                      Field("peak", bytes(e.peakBytes)) + Field("available", bytes(e.room.available)) +
                      Field("baseline", bytes(e.room.baseline)) + Field("piloted", e.piloted);
  for (const ScenarioEstimate& s : e.scenarios)
    reply += " |" + Field("iterations", s.iterations) + Field("piloted", s.piloted) +
             Field("seconds", seconds(s.seconds)) + Field("peak", bytes(s.peakBytes)) +
             Field("checked", bytes(s.checkedBytes)) + Field("fits", s.fits ? 1 : 0) + " scenario=" + s.name;
  return reply;
}

}  // namespace tamsic::sim
