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

ProjectDocument NewProject(ProjectDocument from, const std::string& name, const std::string& user) {
  ProjectDocument blank = NewProject(name, user);
  from.title = std::move(blank.title);
  from.users = std::move(blank.users);
  from.reportLocation.clear();
  return from;
}

}  // namespace tamsic
