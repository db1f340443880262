#pragma once
// File-system operations of the core that must not lose data.
#include <string>
#include <string_view>

namespace tamsic {

bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);

// The text of the last system error (errno), for messages.
std::string LastSystemError();

// Writes the bytes beside the file and renames them over it once they are
// safely on disk; the earlier file keeps its permissions. Throws FileError
// naming the cause, and then the earlier file is untouched.
void WriteFileReplacing(const std::string& path, std::string_view bytes);

// Copies a file over another one, silently replacing it. Throws FileError.
void CopyFileOver(const std::string& from, const std::string& to);

}  // namespace tamsic
