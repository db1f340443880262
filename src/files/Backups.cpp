#include "files/Backups.h"

#include "files/AtomicFile.h"

namespace tamsic {

void RotateBackups(const std::string& projectPath) {
  const std::string bak = projectPath + ".bak";
  const std::string bk2 = projectPath + ".bk2";
  const std::string bk3 = projectPath + ".bk3";
  if (FileExists(bk2)) CopyFileOver(bk2, bk3);
  if (FileExists(bak)) CopyFileOver(bak, bk2);
  CopyFileOver(projectPath, bak);
}

}  // namespace tamsic
