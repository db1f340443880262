#pragma once
// The work file: the temporary copy of the project that the engine reads. It
// is made in the folder "Temp" under the application's folder; when that
// folder cannot be written (an installation in a system folder), in a folder
// of the user's own under the system's temporary folder.
#include <chrono>
#include <filesystem>

namespace tamsic {

// A new, empty file with a fresh name, ready for the project to be saved
// into. Throws FileError when neither folder can take it.
std::filesystem::path CreateWorkFile(const std::filesystem::path& applicationFolder);

// Deletes the work files in both folders last written more than `age` ago:
// a failed run keeps its copy for a look, but not for ever. Other files in the
// folders are not the program's and stay. Answers how many went.
int RemoveOldWorkFiles(const std::filesystem::path& applicationFolder, std::chrono::hours age);

// The per-user fallback folder: "tamsic-" and the user id under the system's
// temporary folder, readable by the user alone.
std::filesystem::path UserTempFolder();

}  // namespace tamsic
