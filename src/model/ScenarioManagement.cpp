#include "model/ScenarioManagement.h"

#include <algorithm>
#include <cctype>

namespace tamsic {

namespace {

const std::string& NameOf(const clsScenario& scenario) { return scenario.Text(F("txtSceneName")); }

bool SameIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
  });
}

void Swap(ScenarioCollection& scenarios, std::size_t a, std::size_t b) {
  std::swap(scenarios.Item(a), scenarios.Item(b));
}

}  // namespace

bool IsSTScenario(const clsScenario& scenario) { return NameOf(scenario).rfind("ST.", 0) == 0; }

std::size_t AddScenarioCopies(ScenarioCollection& scenarios, std::size_t templateNumber, int count) {
  const clsScenario model = scenarios.Item(templateNumber);
  const std::size_t first = scenarios.Count() + 1;
  for (int i = 1; i <= count; ++i) {
    clsScenario copy = model;
    copy.SetText(F("txtSceneName"), NameOf(model) + " - Copy " + std::to_string(i));
    scenarios.Add(std::move(copy));
  }
  return first;
}

std::size_t ProposedTemplate(const ScenarioCollection& scenarios, std::size_t current) {
  if (current >= 1 && current <= scenarios.Count() && !IsSTScenario(scenarios.Item(current))) return current;
  for (std::size_t n = scenarios.Count(); n >= 1; --n)
    if (!IsSTScenario(scenarios.Item(n))) return n;
  return 1;
}

std::optional<std::size_t> DeleteScenario(ScenarioCollection& scenarios, std::size_t current,
                                          Messages& messages) {
  if (IsSTScenario(scenarios.Item(current))) {
    messages.show({messages.text(msg::kCannotDeleteST), "", MsgIcon::Exclamation, MsgButtons::Ok});
    return std::nullopt;
  }
  const MsgAnswer answer = messages.show(messages.text(msg::kConfirmDeleteScenario), msg::kConfirmation,
                                         MsgIcon::Exclamation, MsgButtons::YesNo);
  if (answer != MsgAnswer::Yes) return std::nullopt;
  scenarios.Remove(current);
  // The scenario that moved into the deleted one's place, or the new last one.
  return std::min(current, scenarios.Count());
}

std::optional<int> ScenarioNameProblem(const ScenarioCollection& scenarios, std::size_t number,
                                       std::string_view name) {
  if (name.find_first_of("*?\\/") != std::string_view::npos) return msg::kNameCharacters;
  for (std::size_t n = 1; n <= scenarios.Count(); ++n)
    if (n != number && SameIgnoringCase(NameOf(scenarios.Item(n)), name)) return msg::kNameNotUnique;
  return std::nullopt;
}

std::size_t MoveScenarioUp(ScenarioCollection& scenarios, std::size_t number) {
  if (number <= 1) return number;
  Swap(scenarios, number, number - 1);
  return number - 1;
}

std::size_t MoveScenarioDown(ScenarioCollection& scenarios, std::size_t number) {
  if (number >= scenarios.Count()) return number;
  Swap(scenarios, number, number + 1);
  return number + 1;
}

}  // namespace tamsic
