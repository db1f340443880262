#pragma once
// A project as the new-project dialog creates it: titled by its name, with
// the user among its users and one scenario of believable values.
#include <string>

#include "files/ProjectDocument.h"

namespace tamsic {

// name and user are UTF-8 as typed; the document holds Windows-1252.
ProjectDocument NewProject(const std::string& name, const std::string& user);

}  // namespace tamsic
