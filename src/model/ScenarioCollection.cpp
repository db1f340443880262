#include "model/ScenarioCollection.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <string>

namespace tamsic {

namespace {

bool SameIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
  });
}

}  // namespace

std::size_t ScenarioCollection::checked(std::size_t number, std::size_t limit) const {
  if (number < 1 || number > limit)
    throw std::out_of_range("scenario number " + std::to_string(number) + " outside 1.." +
                            std::to_string(limit));
  return number - 1;
}

clsScenario& ScenarioCollection::Item(std::size_t number) { return items_[checked(number, Count())]; }
const clsScenario& ScenarioCollection::Item(std::size_t number) const {
  return items_[checked(number, Count())];
}

std::size_t ScenarioCollection::Add(clsScenario scenario) {
  items_.push_back(std::move(scenario));
  return items_.size();
}

void ScenarioCollection::Insert(std::size_t number, clsScenario scenario) {
  items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(checked(number, Count() + 1)),
                std::move(scenario));
}

void ScenarioCollection::Remove(std::size_t number) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(checked(number, Count())));
}

std::size_t ScenarioCollection::Find(std::string_view name, std::size_t after) const {
  for (std::size_t i = after; i < items_.size(); ++i)
    if (SameIgnoringCase(items_[i].Text(F("txtSceneName")), name)) return i + 1;
  return 0;
}

}  // namespace tamsic
