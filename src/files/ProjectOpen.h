#pragma once
// Opening a project file as the program does: recognise it by its signature,
// keep its earlier versions as backups, then read it.
#include <optional>
#include <string>

#include "files/ProjectDocument.h"
#include "model/Messages.h"

namespace tamsic {

struct OpenedProject {
  ProjectDocument document;
  std::string versionText;  // from the signature line, e.g. "9.99"
};

// Nothing when the file is missing (reported) or not a project. Load failures
// are reported to the user and then thrown as by LoadProject.
std::optional<OpenedProject> OpenProjectFile(const std::string& path, Messages& messages,
                                             bool makeBackups, char decimalSeparator = '.');

}  // namespace tamsic
