#include "st/STSchemeEditor.h"

#include <algorithm>
#include <stdexcept>

#include "model/ScenarioManagement.h"
#include "st/basST.h"

namespace tamsic {

namespace {

constexpr char kOk[] = "OK";

std::string ItemLabel(int number) { return "Item " + std::to_string(number); }

}  // namespace

STSchemeEditor::STSchemeEditor(const ScenarioCollection& scenarios, STScheme scheme, Engine& engine)
    : scenarios_(scenarios), scheme_(std::move(scheme)), engine_(engine) {
  // A scheme read from a file carries one unused slot; the editor keeps exactly the items there are.
  scheme_.Items.resize(static_cast<std::size_t>(std::max<int>(scheme_.NumItems, 0)));
}

const STItem& STSchemeEditor::item(int number) const {
  if (number < 0 || number >= itemCount()) throw std::out_of_range("there is no ST item " + std::to_string(number));
  return scheme_.Items[static_cast<std::size_t>(number)];
}

STItem& STSchemeEditor::edited(int number) { return const_cast<STItem&>(item(number)); }

std::vector<std::size_t> STSchemeEditor::baselineChoices() const {
  std::vector<std::size_t> choices;
  for (std::size_t n = 1; n <= scenarios_.Count(); ++n)
    if (!IsSTScenario(scenarios_.Item(n))) choices.push_back(n);
  return choices;
}

std::vector<std::string> STSchemeEditor::variableChoices(int number) const {
  const int baseline = item(number).ScenarioIndex;
  if (baseline < 1 || static_cast<std::size_t>(baseline) > scenarios_.Count()) return {};
  return STVariableNames(scenarios_.Item(static_cast<std::size_t>(baseline)));
}

int STSchemeEditor::addItem(int baseline) {
  STItem made;
  made.ScenarioIndex = static_cast<std::int16_t>(baseline);
  made.Label = uniqueLabel(ItemLabel(itemCount() + 1));
  scheme_.Items.push_back(std::move(made));
  ++scheme_.NumItems;
  const int number = itemCount() - 1;
  addVariable(number);
  return number;
}

int STSchemeEditor::duplicateItem(int number) {
  STItem copy = item(number);
  copy.Label = uniqueLabel(copy.Label);
  scheme_.Items.push_back(std::move(copy));
  ++scheme_.NumItems;
  return itemCount() - 1;
}

void STSchemeEditor::addItems(const std::vector<STItem>& items) {
  for (STItem made : items) {
    made.Label = uniqueLabel(made.Label);
    scheme_.Items.push_back(std::move(made));
    ++scheme_.NumItems;
  }
}

void STSchemeEditor::removeItem(int number) {
  item(number);
  scheme_.Items.erase(scheme_.Items.begin() + number);
  --scheme_.NumItems;
}

void STSchemeEditor::setLabel(int number, std::string label) { edited(number).Label = std::move(label); }

void STSchemeEditor::setBaseline(int number, int baseline) {
  edited(number).ScenarioIndex = static_cast<std::int16_t>(baseline);
}

int STSchemeEditor::addVariable(int number) {
  STItem& changed = edited(number);
  for (const std::string& name : variableChoices(number))
    if (std::find(changed.Vars.begin(), changed.Vars.end(), name) == changed.Vars.end()) {
      changed.Vars.push_back(name);
      changed.Vals.push_back(DefaultSTValue(name));
      return static_cast<int>(changed.Vars.size()) - 1;
    }
  return -1;
}

void STSchemeEditor::removeVariable(int number, int variable) {
  STItem& changed = edited(number);
  const auto at = static_cast<std::size_t>(variable);
  if (variable < 0 || at >= changed.Vars.size()) return;
  changed.Vars.erase(changed.Vars.begin() + variable);
  changed.Vals.erase(changed.Vals.begin() + variable);
}

void STSchemeEditor::setVariable(int number, int variable, const std::string& name) {
  STItem& changed = edited(number);
  const auto at = static_cast<std::size_t>(variable);
  if (variable < 0 || at >= changed.Vars.size() || changed.Vars[at] == name) return;
  changed.Vars[at] = name;
  changed.Vals[at] = DefaultSTValue(name);
}

std::string STSchemeEditor::setValue(int number, int variable, const std::string& value) {
  STItem& changed = edited(number);
  const auto at = static_cast<std::size_t>(variable);
  if (variable < 0 || at >= changed.Vars.size()) return kOk;
  const int baseline = changed.ScenarioIndex;
  if (baseline < 1 || static_cast<std::size_t>(baseline) > scenarios_.Count())
    throw std::out_of_range("the item's baseline scenario is not in the project");
  std::string answer = CheckSTValue(changed.Vars[at], value, scenarios_.Item(static_cast<std::size_t>(baseline)),
                                    engine_);
  if (answer == kOk) changed.Vals[at] = value;
  return answer;
}

// Labels name the generated scenarios, so two items had better not share one.
std::string STSchemeEditor::uniqueLabel(const std::string& wanted) const {
  const auto taken = [this](const std::string& label) {
    return std::any_of(scheme_.Items.begin(), scheme_.Items.end(),
                       [&label](const STItem& other) { return other.Label == label; });
  };
  if (!taken(wanted)) return wanted;
  for (int n = 2;; ++n)
    if (const std::string candidate = wanted + " (" + std::to_string(n) + ")"; !taken(candidate)) return candidate;
}

}  // namespace tamsic
