#pragma once
// A project as the new-project dialog creates it: titled by its name, with
// the user among its users and one scenario of believable values, or the
// scenarios of a template.
#include <string>

#include "files/ProjectDocument.h"

namespace tamsic {

// name and user are UTF-8 as typed; the document holds Windows-1252.
ProjectDocument NewProject(const std::string& name, const std::string& user);

// A new project made from a template project: its scenarios, notes, options
// and sensitivity scheme, under the new name and user. The report stays with
// the template; the new project's goes beside its own file.
ProjectDocument NewProject(ProjectDocument from, const std::string& name, const std::string& user);

}  // namespace tamsic
