#include "files/ProjectOpen.h"

#include "files/Backups.h"
#include "files/ProjectFile.h"
#include "files/ProjectSignature.h"

namespace tamsic {

std::optional<OpenedProject> OpenProjectFile(const std::string& path, Messages& messages,
                                             bool makeBackups, char decimalSeparator) {
  auto version = IsTamsicProject(path, messages);
  if (!version) return std::nullopt;
  // Only a file that loads becomes a backup: a damaged one must not push good ones out.
  OpenedProject opened{LoadProject(path, *version, messages, decimalSeparator), *version};
  if (makeBackups) RotateBackups(path);
  return opened;
}

}  // namespace tamsic
