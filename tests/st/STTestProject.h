#pragma once
// Sensitivity tests made by hand for the analysis tests: the koala example
// shortened to five years, ST scenarios copied from its baseline with an
// item describing each, and yearly data files in the engine's layout whose
// values the test chooses.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "engine/OutputFiles.h"
#include "files/ProjectFile.h"
#include "files/ProjectState.h"
#include "support/RecordingMessageBox.h"

namespace sttest {

inline constexpr int kYears = 5;
inline constexpr int kBlocks = 4;   // three populations and the metapopulation
inline constexpr int kFields = 31;  // no user variables

// The value of a field in the engine's yearly data.
using Values = std::function<double(int block, int year, int field)>;

// Every field tells where it stands; field 0 is the year.
inline double Where(int block, int year, int field) {
  return field == 0 ? year : 1000.0 * block + 100.0 * year + field + 0.25;
}

// The koala project in `folder` (its results go there), without its ST items.
inline tamsic::ProjectState KoalaProject(const std::filesystem::path& folder) {
  tamsic::test::MessageRecorder recorder;
  tamsic::ProjectState state;
  state.document = tamsic::LoadProject(TAMSIC_SOURCE_DIR "/examples/Koalas.tpj", "9.99", recorder.messages);
  state.document.stScheme = {};
  state.SetFullPath((folder / "Koalas.tpj").string());
  auto& scenarios = state.document.scenarios;
  for (std::size_t n = 1; n <= scenarios.Count(); ++n)
    scenarios.Item(n).SetText(tamsic::F("txtNumYear"), std::to_string(kYears));
  return state;
}

// Appends an ST scenario copied from the baseline (scenario 1) and the item
// that describes it. The analysis reads the item's values and the
// scenario's results, so the copy's inputs stay the baseline's.
inline void AddItem(tamsic::ProjectState& state, const std::string& label,
                    std::vector<std::pair<std::string, std::string>> varied) {
  auto& document = state.document;
  tamsic::clsScenario scenario = document.scenarios.Item(1);
  scenario.SetText(tamsic::F("txtSceneName"), "ST." + std::to_string(document.stScheme.NumItems + 1));
  document.scenarios.Add(std::move(scenario));
  tamsic::STItem item;
  item.ScenarioIndex = 1;
  item.Label = label;
  for (auto& [variable, value] : varied) {
    item.Vars.push_back(variable);
    item.Vals.push_back(value);
  }
  document.stScheme.Items.push_back(std::move(item));
  ++document.stScheme.NumItems;
}

inline std::filesystem::path DatFile(const tamsic::ProjectState& state, const std::string& scenario) {
  return tamsic::ScenarioOutputFile(tamsic::ResultsFolder(state), state.document.title, scenario,
                                    tamsic::ScenarioOutput::YearlyData);
}

// The engine's layout: three "$" lines, the scenario's name, then the blocks' lines.
inline void WriteDat(const tamsic::ProjectState& state, const std::string& scenario, const Values& value = Where) {
  std::string text = "$ heading\r\n$ columns\r\n$ Iterations 10\r\n" + scenario + "\r\n";
  for (int b = 0; b < kBlocks; ++b)
    for (int y = 0; y <= kYears; ++y) {
      for (int f = 0; f < kFields; ++f) {
        char number[32];
        std::snprintf(number, sizeof number, "%.10g", value(b, y, f));
        if (f > 0) text += ';';
        text += number;
      }
      text += "\r\n";
    }
  std::ofstream(DatFile(state, scenario), std::ios::binary) << text;
}

}  // namespace sttest
