// Every input that holds numbers, with a value just inside and just outside
// each of its bounds: the input pages' check and the engine's reader accept
// the same values and refuse the others in the same words.
#include <gtest/gtest.h>

#include <filesystem>

#include "model/GridLayouts.h"
#include "model/NewScenario.h"
#include "model/ScenarioShape.h"
#include "model/TextNumbers.h"
#include "pages/InputChecks.h"
#include "sim/CellReader.h"
#include "sim/ReadModel.h"
#include "support/FakeEngine.h"
#include "support/RecordingMessageBox.h"

namespace tamsic::test {
namespace {

// Two populations, so that the dispersal matrix has cells off its diagonal,
// and a state variable of each kind.
clsScenario Base() {
  clsScenario s = NewScenarioDefaults();
  s.SetText(F("txtNumPop"), "2");
  const LayoutCounts counts = CountsOf(s);
  for (std::size_t i = 0; i < kFieldCount; ++i)
    if (Describe(Field{i}).kind == FieldKind::Grid && Field{i} != F("Notes"))
      s.SetGrid(Field{i}, DefaultGrid(Field{i}, counts));
  return s;
}

struct Probe {
  std::string text;
  bool inside;
};

// Just inside and just outside each bound, and a fraction where whole numbers
// are wanted; a yes/no cell takes 0 and 1 only.
std::vector<Probe> Probes(const ValueRule& rule) {
  if (rule.kind == ValueKind::Switch) return {{"0", true}, {"1", true}, {"2", false}, {"yes", false}};
  const bool whole = rule.kind == ValueKind::Whole || rule.kind == ValueKind::WholeRate;
  const double step = whole ? 1 : 0.01;
  std::vector<Probe> probes{{NumberToText(rule.low), true},
                            {NumberToText(rule.high), true},
                            {NumberToText(rule.low - step), false},
                            {NumberToText(rule.high + step), false},
                            {"twelve", false}};
  if (whole) probes.push_back({NumberToText(rule.low + 0.5), false});
  return probes;
}

bool Numeric(const ValueRule& rule) { return rule.kind != ValueKind::Text && rule.high > rule.low; }

// What the engine says of the scenario: nothing when it is read, else its refusal.
std::string EngineVerdict(const clsScenario& scenario) {
  try {
    sim::ReadModel(scenario, std::filesystem::current_path(), {});
    return {};
  } catch (const sim::InputError& refusal) {
    return refusal.what();
  } catch (const sim::SimError&) {
    return {};  // a fault of several inputs together, such as percentages that do not add up to 100
  }
}

class InputAgreement : public ::testing::Test {
 protected:
  // The engine's verdict must match the page's: silent acceptance, or the same words.
  void Expect(const std::string& what, const Probe& probe, bool pageRefused, const clsScenario& scenario) {
    const std::string engine = EngineVerdict(scenario);
    const std::string page = pageRefused ? recorder.box.shown.back().text : std::string();
    EXPECT_EQ(pageRefused, !probe.inside) << what << " = " << probe.text << ": " << page;
    EXPECT_EQ(engine.empty(), !pageRefused) << what << " = " << probe.text << ": " << engine;
    // The four integer messages of the reproductive system keep their own words.
    const bool ownWords = page.starts_with("Age of") || page.starts_with("Maximum");
    if (pageRefused && !engine.empty() && !ownWords) {
      EXPECT_NE(page.find(engine), std::string::npos) << "the page: " << page << "; the engine: " << engine;
    }
  }

  MessageRecorder recorder;
  FakeEngine engine;
};

TEST_F(InputAgreement, EveryTextBox) {
  int probed = 0;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const FieldDescriptor& d = Describe(field);
    if (d.kind != FieldKind::Text || !Numeric(d.input.rule)) continue;
    for (const Probe& probe : Probes(d.input.rule)) {
      clsScenario scenario = Base();
      scenario.SetText(field, probe.text);
      RelayoutScenario(scenario);
      const bool refused =
          TestTextBoxFunctions(field, probe.text, std::string(d.key), recorder.messages, engine);
      Expect(std::string(d.key), probe, refused, scenario);
      ++probed;
    }
  }
  EXPECT_GT(probed, 100);
}

TEST_F(InputAgreement, EveryLineOfEveryGrid) {
  const clsScenario base = Base();
  int probed = 0;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    if (Describe(field).kind != FieldKind::Grid) continue;
    const Grid& table = base.GetGrid(field);
    // The first cell of each line: the first population's, where there are populations.
    std::vector<const GridLine*> seen;
    for (std::size_t r = 0; r < table.rows(); ++r)
      for (std::size_t c = 0; c < table.cols(); ++c) {
        const GridLine* line = LineOf(field, r, c);
        if (!line || !Numeric(line->rule) || std::find(seen.begin(), seen.end(), line) != seen.end()) continue;
        seen.push_back(line);
        for (const Probe& probe : Probes(line->rule)) {
          clsScenario scenario = base;
          Grid edited = table;
          edited.at(r, c) = probe.text;
          scenario.SetGrid(field, edited);
          const bool refused = TestGridCell(field, table, r, c, probe.text, recorder.messages, engine);
          Expect(CellPlace(field, table, r, c).Text(), probe, refused, scenario);
          ++probed;
        }
      }
  }
  EXPECT_GT(probed, 150);
}

}  // namespace
}  // namespace tamsic::test
