#pragma once
// The calls the front end makes to the simulation engine, texts in and reply
// texts out. LibraryEngine makes them through the loaded library; tests of the
// callers may stand in a fake.
#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tamsic {

// The range of a graph of a function; see formulaGraphValues in tamsic.h.
struct GraphRequest {
  std::int32_t variable = 0;
  std::int32_t from = 0;
  std::int32_t to = 100;
  std::int32_t points = 0;
  std::int32_t population = 0;
  double increment = 1.0;
};

class Engine {
 public:
  virtual ~Engine() = default;

  virtual std::string tamsicsim(const std::string& workFile, const std::string& bracedScenarios,
                                const std::string& options) = 0;
  virtual std::string tcheckin(const std::string& text, std::int32_t flag) = 0;
  virtual std::string agedist(std::int16_t size) = 0;
  virtual std::string detGraphValues(const std::string& text, std::int32_t years) = 0;
  virtual std::string findpolyg(std::int16_t index, const std::array<double, 4>& values) = 0;
  virtual std::string testFormula(const std::string& formula) = 0;
  virtual std::string formulaGraphValues(const std::string& formula,
                                         const GraphRequest& range) = 0;
  // The progress "done;total" of the run in progress, or nothing when the
  // engine cannot tell.
  virtual std::optional<std::string> progress() = 0;
  // Asks the run in progress to stop; false when the engine cannot.
  virtual bool cancel() = 0;
  // At exit: tamsdllclose, then tamsicWindowClose; replies are ignored.
  virtual void close() = 0;
};

// Throws EngineUnavailable from any call when the library cannot be loaded.
class LibraryEngine : public Engine {
 public:
  std::string tamsicsim(const std::string& workFile, const std::string& bracedScenarios,
                        const std::string& options) override;
  std::string tcheckin(const std::string& text, std::int32_t flag) override;
  std::string agedist(std::int16_t size) override;
  std::string detGraphValues(const std::string& text, std::int32_t years) override;
  std::string findpolyg(std::int16_t index, const std::array<double, 4>& values) override;
  std::string testFormula(const std::string& formula) override;
  std::string formulaGraphValues(const std::string& formula, const GraphRequest& range) override;
  std::optional<std::string> progress() override;
  bool cancel() override;
  void close() override;

  // The processes that a launcher started together with this one, joined
  // to share the next run (tamsicTeamJoin): "RANK;SIZE", "0;1" alone or
  // when the library has no teams, or "Error: ...".
  std::string joinTeam();
  // After the run; `reason` says why when this process did not take part in it.
  void leaveTeam(const std::string& reason);
};

}  // namespace tamsic
