#pragma once
// The project's scenarios in order, addressed from 1: a scenario's position is
// its number in the project file and in sensitivity-test items.
#include <cstddef>
#include <string_view>
#include <vector>

#include "model/clsScenario.h"

namespace tamsic {

class ScenarioCollection {
 public:
  std::size_t Count() const { return items_.size(); }
  clsScenario& Item(std::size_t number);
  const clsScenario& Item(std::size_t number) const;

  // Appends and answers the new scenario's number.
  std::size_t Add(clsScenario scenario);
  void Insert(std::size_t number, clsScenario scenario);
  void Remove(std::size_t number);

  // The number of the first scenario after number `after` with that name,
  // compared without regard to case; 0 when none.
  std::size_t Find(std::string_view name, std::size_t after = 0) const;

  bool operator==(const ScenarioCollection&) const = default;

 private:
  std::size_t checked(std::size_t number, std::size_t limit) const;
  std::vector<clsScenario> items_;
};

}  // namespace tamsic
