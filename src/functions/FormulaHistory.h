#pragma once
// The formulas last graphed in the function editor, newest first, kept for
// the user across sessions so that a function tried once can be picked again.
#include <string>
#include <vector>

#include "app/SettingsStore.h"

namespace tamsic {

class FormulaHistory {
 public:
  static constexpr std::size_t kKept = 10;

  explicit FormulaHistory(ISettingsStore& store);

  const std::vector<std::string>& Entries() const { return entries_; }
  // Moves the formula to the top (an equal one is not kept twice), drops the
  // oldest beyond kKept, and writes the list back.
  void Remember(const std::string& formula);

 private:
  ISettingsStore& store_;
  std::vector<std::string> entries_;
};

}  // namespace tamsic
