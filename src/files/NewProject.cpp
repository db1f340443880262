#include "files/NewProject.h"

#include "files/TextCodec.h"
#include "model/NewScenario.h"

namespace tamsic {

ProjectDocument NewProject(const std::string& name, const std::string& user) {
  ProjectDocument project;
  project.title = Utf8ToCp1252(name);
  if (!user.empty()) project.users.push_back(Utf8ToCp1252(user));
  project.scenarios.Add(NewScenarioDefaults());
  return project;
}

}  // namespace tamsic
