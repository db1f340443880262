#pragma once
// The work file: the temporary copy of the project that the engine reads. It
// is made in the folder "Temp" under the application's folder; when that
// folder cannot be written (an installation in a system folder), in a folder
// of the user's own under the system's temporary folder.
#include <filesystem>

namespace tamsic {

// A new, empty file with a fresh name, ready for the project to be saved
// into. Throws FileError when neither folder can take it.
std::filesystem::path CreateWorkFile(const std::filesystem::path& applicationFolder);

// The per-user fallback folder: "tamsic-" and the user id under the system's
// temporary folder, readable by the user alone.
std::filesystem::path UserTempFolder();

}  // namespace tamsic
