// The exported functions. Each one answers through Answer(), which turns any
// failure into an "Error" reply so that nothing escapes across the C
// boundary.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>

#include "Codes.h"
#include "GraphValues.h"
#include "formula/FileSeries.h"
#include "formula/Formula.h"
#include "sim/CheckIn.h"
#include "sim/RunMonitor.h"
#include "sim/Runner.h"
#include "sim/SimError.h"
#include "sim/Team.h"
#include "sim/TeamRun.h"
#include "tamsic.h"

namespace {

using tamsic::SetReply;
using tamsic::TextFromCodes;


template <class Reply>
void Answer(TamsicVariant* result, Reply&& reply) noexcept {
  if (result == nullptr) return;
  try {
    SetReply(result, reply());
  } catch (const std::exception& failure) {
    try {
      SetReply(result, std::string("Error: internal failure: ") + failure.what());
    } catch (...) {
      SetReply(result, "Error: internal failure");
    }
  } catch (...) {
    SetReply(result, "Error: internal failure");
  }
}

// The processes this one shares its run with, from tamsicTeamJoin to
// tamsicTeamLeave. A team of several runs one study: its processes meet
// once, at the start of the run.
struct Membership {
  std::unique_ptr<tamsic::sim::Team> team;
  bool ran = false;
};

Membership& Joined() {
  static Membership membership;
  return membership;
}

std::string RunWithTeam(const std::string& path, const std::string& scenarios, const std::string& options) {
  Membership& joined = Joined();
  // A process alone may make many calls (an estimate, then its run).
  if (!joined.team || joined.team->size() == 1) return tamsic::sim::RunScenarios(path, scenarios, options);
  if (joined.ran) return "Error: the processes of an MPI job run one study together, and this one has run";
  joined.ran = true;
  return tamsic::sim::RunScenarios(path, scenarios, options, *joined.team);
}

std::string CheckFormula(const std::string& text) {
  if (const auto file = tamsic::formula::FileReferenceName(text)) {
    if (file->empty()) return "Error: file= needs the name of a file at character 6";
    return "Polish: file=" + *file;
  }
  const auto checked = tamsic::formula::Check(text);
  if (checked.error) return "Error: " + checked.error->describe();
  return "Polish: " + checked.polish;
}

}  // namespace

extern "C" {

void tamsicFreeVariant(TamsicVariant* result) {
  if (result == nullptr) return;
  std::free(result->codes);
  result->codes = nullptr;
  result->count = 0;
}

void tamsicsim(TamsicVariant* result, const int16_t* path, int32_t pathCount, int32_t, int32_t,
               const int16_t* scenarios, int32_t scenariosCount, const int16_t* options, int32_t optionsCount) {
  Answer(result, [&] {
    return RunWithTeam(TextFromCodes(path, pathCount), TextFromCodes(scenarios, scenariosCount),
                       TextFromCodes(options, optionsCount));
  });
}

void tcheckin(TamsicVariant* result, const int16_t* text, int32_t count, int32_t flag) {
  Answer(result, [&] { return tamsic::sim::CheckIn(TextFromCodes(text, count), flag); });
}

void agedist(TamsicVariant* result, int16_t size) {
  Answer(result, [&] { return tamsic::sim::AgeDistribution(size); });
}

void detGraphValues(TamsicVariant* result, const int16_t* text, int32_t count, int32_t years) {
  Answer(result, [&] { return tamsic::sim::DeterministicValues(TextFromCodes(text, count), years); });
}

void findpolyg(TamsicVariant* result, int16_t index, const double* values) {
  Answer(result, [&] {
    std::array<double, 4> given{};
    if (values != nullptr) std::copy(values, values + 4, given.begin());
    return tamsic::sim::MatesEquivalents(index, given);
  });
}

void testFormula(TamsicVariant* result, const int16_t* formula, int32_t count) {
  Answer(result, [&] { return CheckFormula(TextFromCodes(formula, count)); });
}

void formulaGraphValues(TamsicVariant* result, const int16_t* formula, int32_t count,
                        int32_t variable, int32_t from, int32_t to, int32_t points,
                        int32_t population, double increment) {
  Answer(result, [&] {
    return tamsic::GraphValues(TextFromCodes(formula, count),
                               {variable, from, to, points, population, increment});
  });
}

void tamsdllclose(TamsicVariant* result) {
  Answer(result, [] {
    tamsic::sim::ForgetCheckIn();
    return "Message: closed";
  });
}

void tamsicWindowClose(TamsicVariant* result) {
  Answer(result, [] { return "Message: closed"; });
}

void tamsicProgress(TamsicVariant* result) {
  Answer(result, [] {
    const auto& monitor = tamsic::sim::RunMonitor::get();
    return std::to_string(monitor.done()) + ";" + std::to_string(monitor.total());
  });
}

void tamsicCancel(TamsicVariant* result) {
  Answer(result, [] {
    tamsic::sim::RunMonitor::get().requestCancel();
    return "Message: cancel requested";
  });
}

void tamsicTeamJoin(TamsicVariant* result) {
  Answer(result, []() -> std::string {
    Membership& joined = Joined();
    try {
      if (!joined.team) joined.team = tamsic::sim::JoinTeam();
    } catch (const tamsic::sim::SimError& fault) {
      return std::string("Error: ") + fault.what();
    }
    return std::to_string(joined.team->rank()) + ";" + std::to_string(joined.team->size());
  });
}

void tamsicTeamLeave(TamsicVariant* result, const int16_t* reason, int32_t count) {
  Answer(result, [&] {
    Membership& joined = Joined();
    if (joined.team && !joined.ran) tamsic::sim::StandDown(*joined.team, TextFromCodes(reason, count));
    joined = Membership{};
    return "Message: left";
  });
}

}  // extern "C"
