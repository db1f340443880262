#pragma once
// Recognising a project file by its first line.
#include <optional>
#include <string>

#include "model/Messages.h"

namespace tamsic {

// The version text of a project file ("9.99"), or nothing when the file is not
// a project. A missing file is reported to the user ("The project does not exist").
std::optional<std::string> IsTamsicProject(const std::string& path, Messages& messages);

// The same test on a first line already read.
std::optional<std::string> SignatureVersion(const std::string& firstLine);

}  // namespace tamsic
