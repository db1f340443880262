#pragma once
// Typed failures of the core. Each carries the number and source by which the
// user-facing layer recognises it, besides the readable description.
#include <stdexcept>
#include <string>

namespace tamsic {

class TamsicError : public std::runtime_error {
 public:
  TamsicError(int number, std::string source, const std::string& description)
      : std::runtime_error(description), number_(number), source_(std::move(source)) {}
  int number() const { return number_; }
  const std::string& source() const { return source_; }

 private:
  int number_;
  std::string source_;
};

// A file could not be read or written; the description names the file and the cause.
class FileError : public TamsicError {
 public:
  explicit FileError(const std::string& description) : TamsicError(0, "File", description) {}
};

// Raised by the sectioned-file reader when a requested section is not there.
inline constexpr int kErrMissingSection = 1000;

}  // namespace tamsic
