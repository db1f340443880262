#include "files/Backups.h"

#include <filesystem>

#include "files/AtomicFile.h"
#include "files/TextCodec.h"
#include "model/Errors.h"

namespace tamsic {

namespace {

void RenameOver(const std::string& from, const std::string& to) {
  std::error_code error;
  std::filesystem::rename(from, to, error);
  if (error)
    throw FileError("Cannot rename " + Cp1252ToUtf8(from) + " to " + Cp1252ToUtf8(to) + ": " + error.message());
}

}  // namespace

// The new copy is complete before anything moves, and each move is a rename,
// so a program killed half-way leaves whole files: never a truncated backup.
void RotateBackups(const std::string& projectPath) {
  const std::string bak = projectPath + ".bak";
  const std::string bk2 = projectPath + ".bk2";
  const std::string bk3 = projectPath + ".bk3";
  const std::string fresh = projectPath + ".bak.new";
  CopyFileOver(projectPath, fresh);
  if (FileExists(bk2)) RenameOver(bk2, bk3);
  if (FileExists(bak)) RenameOver(bak, bk2);
  RenameOver(fresh, bak);
}

}  // namespace tamsic
