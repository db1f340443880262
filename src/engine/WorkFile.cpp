#include "engine/WorkFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <optional>
#include <string>

#include "model/Errors.h"

namespace tamsic {

namespace {

std::optional<std::filesystem::path> TryCreateIn(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) return std::nullopt;
  std::string pattern = (folder / "tpjXXXXXX").string();
  const int fd = mkstemp(pattern.data());
  if (fd < 0) return std::nullopt;
  ::close(fd);
  return std::filesystem::path(pattern);
}

}  // namespace

std::filesystem::path UserTempFolder() {
  return std::filesystem::temp_directory_path() / ("tamsic-" + std::to_string(getuid()));
}

std::filesystem::path CreateWorkFile(const std::filesystem::path& applicationFolder) {
  if (auto file = TryCreateIn(applicationFolder / "Temp")) return *file;
  const auto folder = UserTempFolder();
  // Made by us with mode 0700, or refused when someone else made it first.
  if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
    throw FileError("Cannot create the folder " + folder.string() + ": " + std::strerror(errno));
  struct stat info{};
  if (lstat(folder.c_str(), &info) != 0 || !S_ISDIR(info.st_mode) || info.st_uid != getuid())
    throw FileError("The folder " + folder.string() + " does not belong to this user");
  if (auto file = TryCreateIn(folder)) return *file;
  throw FileError("Cannot create a work file in " + (applicationFolder / "Temp").string() +
                  " or " + folder.string());
}

}  // namespace tamsic
