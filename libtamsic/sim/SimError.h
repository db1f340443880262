#pragma once
// A fault in a scenario's inputs or in a function met during a run. The text
// names the input (and population, year, value where they apply); the run
// adds the scenario's name before it becomes an "Error" reply.
#include <stdexcept>
#include <string>

namespace tamsic::sim {

class SimError : public std::runtime_error {
 public:
  explicit SimError(const std::string& what) : std::runtime_error(what) {}
};

}  // namespace tamsic::sim
