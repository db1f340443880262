#include "files/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <vector>

#include "files/TextCodec.h"
#include "model/Errors.h"

namespace tamsic {

namespace {

// Closes the descriptor and removes the half-written file unless told the write succeeded.
class TempFile {
 public:
  explicit TempFile(std::string pathTemplate) : path_(std::move(pathTemplate)) {
    std::vector<char> buffer(path_.begin(), path_.end());
    buffer.push_back('\0');
    fd_ = ::mkstemp(buffer.data());
    path_ = buffer.data();
  }
  ~TempFile() {
    if (fd_ >= 0) ::close(fd_);
    if (!kept_) ::unlink(path_.c_str());
  }
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;

  int fd() const { return fd_; }
  const std::string& path() const { return path_; }
  bool close() {
    const int fd = fd_;
    fd_ = -1;
    return ::close(fd) == 0;
  }
  void keep() { kept_ = true; }

 private:
  std::string path_;
  int fd_ = -1;
  bool kept_ = false;
};

[[noreturn]] void Fail(const std::string& what, const std::string& path) {
  throw FileError(what + " " + Cp1252ToUtf8(path) + ": " + LastSystemError());
}

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// A write killed half-way leaves its temporary file behind, which nothing
// else would ever remove. Older than a minute, none can still be in use.
void RemoveStaleTemporaries(const std::string& path) {
  const std::filesystem::path target(path);
  const std::string prefix = target.filename().string() + ".~";
  const auto folder = target.has_parent_path() ? target.parent_path() : std::filesystem::path(".");
  const auto cutoff = std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1);
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    const std::string name = entry.path().filename().string();
    if (name.size() != prefix.size() + 6 || !name.starts_with(prefix) || !entry.is_regular_file(error)) continue;
    if (entry.last_write_time(error) < cutoff && !error) std::filesystem::remove(entry.path(), error);
  }
}

}  // namespace

bool FileExists(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool FolderExists(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

std::string LastSystemError() { return std::strerror(errno); }

void WriteFileReplacing(const std::string& path, std::string_view bytes) {
  TempFile temp(path + ".~XXXXXX");
  if (temp.fd() < 0) Fail("Cannot write", path);
  struct stat existing {};
  if (::stat(path.c_str(), &existing) == 0) ::fchmod(temp.fd(), existing.st_mode & 07777);
  else ::fchmod(temp.fd(), 0666 & ~[] { const mode_t m = ::umask(0); ::umask(m); return m; }());
  if (!WriteAll(temp.fd(), bytes) || ::fsync(temp.fd()) != 0 || !temp.close())
    Fail("Cannot write", path);
  if (::rename(temp.path().c_str(), path.c_str()) != 0) Fail("Cannot replace", path);
  temp.keep();
  RemoveStaleTemporaries(path);
}

void CopyFileOver(const std::string& from, const std::string& to) {
  std::error_code error;
  std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
  if (error)
    throw FileError("Cannot copy " + Cp1252ToUtf8(from) + " to " + Cp1252ToUtf8(to) + ": " +
                    error.message());
}

}  // namespace tamsic
