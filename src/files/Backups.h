#pragma once
// Earlier versions of a project beside it: ".bak" the newest, ".bk2", ".bk3" the
// oldest, each suffix appended to the whole file name ("Trout.tpj.bak").
// Backups are made when a project is opened, never when it is saved, so
// ".bak" always holds the project as it was when it was last opened.
#include <string>

namespace tamsic {

// Shifts the backups one place (".bk2" over ".bk3", ".bak" over ".bk2") and
// copies the project file to ".bak". Throws FileError when a copy or a move fails.
void RotateBackups(const std::string& projectPath);

}  // namespace tamsic
