#pragma once
// An engine for tests and benchmarks of the front end: formula tests are
// answered by a rule the test chooses and remembered, a run is remembered and
// answered with `runReply`, graph values with `graphReply`; everything else with nothing.
#include <functional>
#include <string>
#include <vector>

#include "engine/Engine.h"
#include "engine/EngineLibrary.h"

namespace tamsic::test {

class FakeEngine : public Engine {
 public:
  std::string tamsicsim(const std::string& workFile, const std::string& bracedScenarios,
                        const std::string& flags) override {
    if (unavailable) throw EngineUnavailable("libtamsic.so: cannot open shared object file");
    runs.push_back({workFile, bracedScenarios, flags});
    return runReply;
  }
  std::string tcheckin(const std::string&, std::int32_t) override { return {}; }
  std::string agedist(std::int16_t) override { return {}; }
  std::string detGraphValues(const std::string&, std::int32_t) override { return {}; }
  std::string findpolyg(std::int16_t, const std::array<double, 4>&) override { return {}; }
  std::string testFormula(const std::string& formula) override {
    if (unavailable) throw EngineUnavailable("libtamsic.so: cannot open shared object file");
    formulas.push_back(formula);
    return judge(formula);
  }
  std::string formulaGraphValues(const std::string&, const GraphRequest&) override { return graphReply; }
  std::optional<std::string> progress() override { return std::nullopt; }
  bool cancel() override { return false; }
  void close() override {}

  // The reply to a formula test; every formula passes unless a test says otherwise.
  std::function<std::string(const std::string&)> judge = [](const std::string&) { return std::string("Polish: "); };
  // As when the engine library cannot be loaded.
  bool unavailable = false;
  std::vector<std::string> formulas;
  struct Run {
    std::string workFile, scenarios, options;
  };
  std::vector<Run> runs;
  std::string runReply = "Message: done";
  std::string graphReply = "0";
};

}  // namespace tamsic::test
