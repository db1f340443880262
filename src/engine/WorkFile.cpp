#include "engine/WorkFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "model/Errors.h"

namespace tamsic {

namespace {

constexpr std::string_view kPrefix = "tpj";
constexpr std::size_t kNameLength = 9;  // the prefix and mkstemp's six characters

std::optional<std::filesystem::path> TryCreateIn(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) return std::nullopt;
  std::string pattern = (folder / (std::string(kPrefix) + "XXXXXX")).string();
  const int fd = mkstemp(pattern.data());
  if (fd < 0) return std::nullopt;
  ::close(fd);
  return std::filesystem::path(pattern);
}

int RemoveOldIn(const std::filesystem::path& folder, std::filesystem::file_time_type before) {
  int removed = 0;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    const std::string name = entry.path().filename().string();
    if (name.size() != kNameLength || !name.starts_with(kPrefix) || !entry.is_regular_file(error)) continue;
    const auto written = entry.last_write_time(error);
    if (!error && written < before && std::filesystem::remove(entry.path(), error)) ++removed;
  }
  return removed;
}

}  // namespace

int RemoveOldWorkFiles(const std::filesystem::path& applicationFolder, std::chrono::hours age) {
  const auto before = std::filesystem::file_time_type::clock::now() - age;
  return RemoveOldIn(applicationFolder / "Temp", before) + RemoveOldIn(UserTempFolder(), before);
}

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
