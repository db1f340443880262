#include "st/STAnalysis.h"

#include <algorithm>
#include <filesystem>

#include "engine/EngineLibrary.h"
#include "engine/OutputFiles.h"
#include "files/TextCodec.h"
#include "model/Errors.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "results/ResultVariables.h"
#include "st/STAnalysisValues.h"
#include "st/basST.h"

namespace tamsic {

namespace {

std::string NameOf(const clsScenario& scenario) { return Cp1252ToUtf8(Trim(scenario.Text(F("txtSceneName")))); }

// Scenario files are named in the project file's encoding; the user reads UTF-8.
std::string Shown(const std::filesystem::path& file) {
  return (file.parent_path() / Cp1252ToUtf8(file.filename().string())).string();
}

struct Loaded {
  std::optional<YearlyData> data;
  STMissing missing = STMissing::None;
  std::string detail;
};

Loaded Load(const ProjectState& state, const clsScenario& scenario) {
  const auto file = ScenarioOutputFile(ResultsFolder(state), state.document.title,
                                       scenario.Text(F("txtSceneName")), ScenarioOutput::YearlyData);
  if (!std::filesystem::exists(file)) return {std::nullopt, STMissing::NotRun, Shown(file)};
  try {
    return {LoadYearlyData(file, scenario), STMissing::None, {}};
  } catch (const FileError& error) {
    std::string why = error.what();
    if (const auto at = why.find(file.string()); at != std::string::npos)
      why.replace(at, file.string().size(), Shown(file));
    return {std::nullopt, STMissing::Unreadable, why};
  }
}

// Works out values through the engine until it turns out to be missing;
// then only number texts have numbers, and the reason is kept.
class ValueReader {
 public:
  ValueReader(Engine& engine, std::string& fault) : engine_(engine), fault_(fault) {}

  std::optional<double> operator()(std::string_view value, std::optional<std::string_view> baseline) {
    if (fault_.empty()) {
      try {
        return STValueNumber(value, baseline, engine_);
      } catch (const EngineUnavailable& error) {
        fault_ = error.what();
      }
    }
    return ExactNumber(Trim(value));
  }

 private:
  Engine& engine_;
  std::string& fault_;
};

std::optional<double> BaselineNumber(const clsScenario& baseline, const std::string& variable, ValueReader& read) {
  const auto text = STBaselineValue(baseline, variable);
  return text ? read(*text, std::nullopt) : std::nullopt;
}

std::vector<PopulationEntry> Populations(const clsScenario& scenario, const IStringTable& strings) {
  auto entries = PopulationEntries(scenario, strings);
  std::erase_if(entries, [](const PopulationEntry& entry) {
    return entry.choice.kind == PopulationChoice::Kind::Within;
  });
  return entries;
}

// An item's values, and the results of the ST scenario at `position` (0: none).
STItemResults ReadItem(const ProjectState& state, const STItem& item, std::size_t number, std::size_t position,
                       ValueReader& read) {
  const ScenarioCollection& scenarios = state.document.scenarios;
  STItemResults results;
  results.item = number;
  results.label = Cp1252ToUtf8(item.Label);
  if (item.ScenarioIndex >= 1 && static_cast<std::size_t>(item.ScenarioIndex) <= scenarios.Count())
    results.baseline = static_cast<std::size_t>(item.ScenarioIndex);
  for (std::size_t j = 0; j < item.Vars.size() && j < item.Vals.size(); ++j) {
    std::optional<std::string> baseline;
    if (results.baseline != 0) baseline = STBaselineValue(scenarios.Item(results.baseline), item.Vars[j]);
    results.values.push_back({item.Vars[j], item.Vals[j], read(item.Vals[j], baseline)});
  }
  if (position == 0 || !Trim(scenarios.Item(position).Text(F("txtSceneName"))).starts_with("ST.")) {
    results.missing = STMissing::NoScenario;
    return results;
  }
  const clsScenario& scenario = scenarios.Item(position);
  results.scenario = position;
  results.scenarioName = NameOf(scenario);
  Loaded loaded = Load(state, scenario);
  results.data = std::move(loaded.data);
  results.missing = loaded.missing;
  results.detail = std::move(loaded.detail);
  return results;
}

}  // namespace

STAnalysisData ReadSTResults(const ProjectState& state, const STScheme& scheme, Engine& engine,
                             const IStringTable& strings) {
  STAnalysisData analysis;
  ValueReader read(engine, analysis.engineFault);
  const ScenarioCollection& scenarios = state.document.scenarios;
  const std::size_t count = scenarios.Count();
  const std::size_t items = std::min<std::size_t>(std::max<int>(0, scheme.NumItems), scheme.Items.size());

  for (std::size_t i = 0; i < items; ++i) {
    const std::size_t position = count >= items ? count + 1 + i - items : 0;
    STItemResults item = ReadItem(state, scheme.Items[i], i, position, read);
    for (const STVariedValue& value : item.values)
      if (std::find(analysis.variables.begin(), analysis.variables.end(), value.variable) == analysis.variables.end())
        analysis.variables.push_back(value.variable);
    if (item.scenario != 0) {
      const YearlyDataShape shape = ShapeOf(scenarios.Item(item.scenario));
      analysis.years = std::max(analysis.years, shape.years);
      analysis.userVariables = std::max(analysis.userVariables, shape.userVariables);
    }
    analysis.items.push_back(std::move(item));
  }

  for (const STItemResults& item : analysis.items) {
    if (item.baseline == 0 || analysis.baselines.contains(item.baseline)) continue;
    const clsScenario& scenario = scenarios.Item(item.baseline);
    STBaselineResults& baseline = analysis.baselines[item.baseline];
    baseline.name = NameOf(scenario);
    baseline.data = Load(state, scenario).data;
    for (const std::string& variable : analysis.variables)
      baseline.numbers[variable] = BaselineNumber(scenario, variable, read);
  }

  if (!analysis.items.empty()) {
    const STItemResults& first = analysis.items.front();
    const std::size_t shown = first.scenario != 0 ? first.scenario : first.baseline;
    if (shown != 0) analysis.populations = Populations(scenarios.Item(shown), strings);
  }
  return analysis;
}

std::optional<double> STResult(const YearlyData& data, const STResultChoice& choice) {
  const YearlyDataShape& shape = data.shape();
  if (choice.year < 0 || choice.year > shape.years) return std::nullopt;
  const auto blocks = ChosenBlocks(choice.population, shape);
  if (blocks.size() != 1) return std::nullopt;
  const int modifier = ModifiersApply(choice.variable) ? choice.modifier : kMean;
  const int number = ChoiceNumber(choice.variable, modifier);
  return number == 0 ? std::nullopt : data.Value(blocks.front(), choice.year, number);
}

std::optional<double> STInputNumber(const STAnalysisData& analysis, const STItemResults& item,
                                    const std::string& variable) {
  for (const STVariedValue& value : item.values)
    if (value.variable == variable) return value.number;
  const auto baseline = analysis.baselines.find(item.baseline);
  if (baseline == analysis.baselines.end()) return std::nullopt;
  const auto number = baseline->second.numbers.find(variable);
  return number == baseline->second.numbers.end() ? std::nullopt : number->second;
}

}  // namespace tamsic
