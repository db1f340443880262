#include "files/ProjectOpen.h"

#include "files/Backups.h"
#include "files/ProjectFile.h"
#include "files/ProjectSignature.h"

namespace tamsic {

std::optional<OpenedProject> OpenProjectFile(const std::string& path, Messages& messages,
                                             bool makeBackups, char decimalSeparator) {
  auto version = IsTamsicProject(path, messages);
  if (!version) return std::nullopt;
  if (makeBackups) RotateBackups(path);
  return OpenedProject{LoadProject(path, *version, messages, decimalSeparator), *version};
}

}  // namespace tamsic
