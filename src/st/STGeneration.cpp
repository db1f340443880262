#include "st/STGeneration.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_set>

#include "model/ScenarioManagement.h"
#include "model/TextSplit.h"
#include "st/STAnswers.h"
#include "st/basST.h"

namespace tamsic {

namespace {

// Labels are free text; names end up in file names, in the project file and
// in the engine's comma-separated run list.
constexpr std::string_view kUnfit = "*?\\/#\",;:{}";
constexpr std::size_t kLongestLabel = 60;

std::size_t ItemCount(const STScheme& scheme) {
  const auto items = static_cast<std::size_t>(std::max<int>(scheme.NumItems, 0));
  if (items > scheme.Items.size()) throw std::invalid_argument("the scheme holds fewer items than it counts");
  return items;
}

// The baseline's number when it is a scenario that generation keeps.
bool UsableBaseline(const ScenarioCollection& scenarios, int number) {
  return number >= 1 && static_cast<std::size_t>(number) <= scenarios.Count() &&
         !IsSTScenario(scenarios.Item(static_cast<std::size_t>(number)));
}

void CheckVariables(const STItem& item, int i, const clsScenario& baseline, Engine& engine,
                    std::vector<STProblem>& problems) {
  const std::vector<std::string> names = STVariableNames(baseline);
  const std::unordered_set<std::string> known(names.begin(), names.end());
  for (std::size_t j = 0; j < item.Vars.size(); ++j) {
    const std::string& name = item.Vars[j];
    if (!known.contains(name)) {
      problems.push_back({i, std::string(sttext::kNotAVariable.english) + name});
      continue;
    }
    const std::string answer = CheckSTValue(name, j < item.Vals.size() ? item.Vals[j] : "", baseline, engine);
    if (answer != "OK") problems.push_back({i, name + ": " + answer});
  }
}

std::string UniqueName(const ScenarioCollection& scenarios, const std::string& name) {
  std::string candidate = name;
  for (int n = 2; ScenarioNameProblem(scenarios, 0, candidate); ++n) candidate = name + " (" + std::to_string(n) + ")";
  return candidate;
}

}  // namespace

std::vector<STProblem> CheckSTScheme(const ScenarioCollection& scenarios, const STScheme& scheme, Engine& engine) {
  std::vector<STProblem> problems;
  const std::size_t items = ItemCount(scheme);
  for (std::size_t index = 0; index < items; ++index) {
    const STItem& item = scheme.Items[index];
    const int i = static_cast<int>(index);
    const int number = item.ScenarioIndex;
    if (number < 1 || static_cast<std::size_t>(number) > scenarios.Count())
      problems.push_back({i, std::string(sttext::kNoBaseline.english) + std::to_string(number)});
    else if (IsSTScenario(scenarios.Item(static_cast<std::size_t>(number))))
      problems.push_back({i, std::string(sttext::kBaselineIsST.english) +
                                 scenarios.Item(static_cast<std::size_t>(number)).Text(F("txtSceneName"))});
    if (item.Vars.empty()) problems.push_back({i, std::string(sttext::kNoVariables.english)});
    if (UsableBaseline(scenarios, number))
      CheckVariables(item, i, scenarios.Item(static_cast<std::size_t>(number)), engine, problems);
  }
  return problems;
}

std::size_t GenerateSTScenarios(ScenarioCollection& scenarios, const STScheme& scheme) {
  const std::size_t items = ItemCount(scheme);
  for (std::size_t i = 0; i < items; ++i)
    if (!UsableBaseline(scenarios, scheme.Items[i].ScenarioIndex))
      throw std::invalid_argument("item " + std::to_string(i) + " has no baseline scenario to copy");
  for (std::size_t n = CountTrailingSTScenarios(scenarios); n > 0; --n) scenarios.Remove(scenarios.Count());
  const std::size_t first = scenarios.Count() + 1;
  for (std::size_t i = 0; i < items; ++i) {
    const STItem& item = scheme.Items[i];
    clsScenario copy = scenarios.Item(static_cast<std::size_t>(item.ScenarioIndex));
    copy.SetText(F("txtSceneName"), UniqueName(scenarios, STScenarioName(item.Label, static_cast<int>(i))));
    scenarios.Add(std::move(copy));
  }
  ApplySTScheme(scenarios, scheme);
  return first;
}

std::size_t CountTrailingSTScenarios(const ScenarioCollection& scenarios) {
  std::size_t count = 0;
  while (count < scenarios.Count() && IsSTScenario(scenarios.Item(scenarios.Count() - count))) ++count;
  return count;
}

std::string STScenarioName(const std::string& label, int item) {
  std::string name(Trim(label).substr(0, kLongestLabel));
  for (char& c : name)
    if (kUnfit.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < ' ') c = '_';
  name = std::string(Trim(name));
  return "ST." + (name.empty() ? "Item " + std::to_string(item) : name);
}

}  // namespace tamsic
