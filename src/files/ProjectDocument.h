#pragma once
// Everything a project window owns and the project file holds.
#include <array>
#include <string>
#include <vector>

#include "model/ScenarioCollection.h"
#include "st/STScheme.h"

namespace tamsic {

// The engine switches of a project, as the project file stores them.
struct SpecialOptions {
  std::array<int, 10> checked{};  // SpecialOptions0 .. SpecialOptions9, check states
  std::string option1Text;        // percent survival of translocated individuals
  std::string option6Text;        // number of iterations with a census file
  std::string option8Text;        // maximum population size to allocate for
  std::string undocumented;       // further codes typed by the user
  bool operator==(const SpecialOptions&) const = default;
};

struct ProjectDocument {
  std::string title;
  std::string notes;
  std::vector<std::string> users;
  SpecialOptions specialOptions;
  std::string reportLocation;  // empty: the default beside the project file
  ScenarioCollection scenarios;
  STScheme stScheme;
  bool operator==(const ProjectDocument&) const = default;
};

}  // namespace tamsic
