#include "functions/FormulaHistory.h"

#include <algorithm>

#include "app/GlobalSettings.h"

namespace tamsic {
namespace {

constexpr const char* kSection = "FunctionHistory";

std::string Key(std::size_t n) { return "Formula" + std::to_string(n); }

}  // namespace

FormulaHistory::FormulaHistory(ISettingsStore& store) : store_(store) {
  for (std::size_t n = 1; n <= kKept; ++n) {
    std::string formula = store_.GetSetting(kSettingsApplication, kSection, Key(n), "");
    if (!formula.empty()) entries_.push_back(std::move(formula));
  }
}

void FormulaHistory::Remember(const std::string& formula) {
  if (formula.empty()) return;
  std::erase(entries_, formula);
  entries_.insert(entries_.begin(), formula);
  if (entries_.size() > kKept) entries_.resize(kKept);
  for (std::size_t n = 1; n <= kKept; ++n)
    store_.SaveSetting(kSettingsApplication, kSection, Key(n), n <= entries_.size() ? entries_[n - 1] : "");
}

}  // namespace tamsic
