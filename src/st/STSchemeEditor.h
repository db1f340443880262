#pragma once
// The edits the ST window makes to a scheme, on its own copy: items added,
// duplicated and removed, their label, baseline, variables and values. A
// value is only stored when the value check accepts it, so that the scheme
// the window hands back never holds a value that generation would refuse.
#include <string>
#include <vector>

#include "engine/Engine.h"
#include "model/ScenarioCollection.h"
#include "st/STScheme.h"

namespace tamsic {

class STSchemeEditor {
 public:
  STSchemeEditor(const ScenarioCollection& scenarios, STScheme scheme, Engine& engine);

  const STScheme& scheme() const { return scheme_; }
  int itemCount() const { return scheme_.NumItems; }
  const STItem& item(int number) const;

  // The scenarios an item may start from, by their numbers: all but the sensitivity-test ones.
  std::vector<std::size_t> baselineChoices() const;
  // The variables the item's baseline offers, in the order of the variable list.
  std::vector<std::string> variableChoices(int item) const;

  // Each answers the number of the item it made.
  int addItem(int baseline);
  int duplicateItem(int item);
  void addItems(const std::vector<STItem>& items);
  void removeItem(int item);

  void setLabel(int item, std::string label);
  // The variables stay; any that the new baseline lacks are named by the scheme's check before generating.
  void setBaseline(int item, int baseline);

  // Adds the first variable of the list that the item does not vary yet, with its default value;
  // answers its number, or -1 when the item varies them all.
  int addVariable(int item);
  void removeVariable(int item, int variable);
  // A new variable starts with its default value.
  void setVariable(int item, int variable, const std::string& name);
  // Stores the value when the check answers "OK"; answers the check's answer either way.
  std::string setValue(int item, int variable, const std::string& value);

 private:
  STItem& edited(int number);
  std::string uniqueLabel(const std::string& wanted) const;

  const ScenarioCollection& scenarios_;
  STScheme scheme_;
  Engine& engine_;
};

}  // namespace tamsic
