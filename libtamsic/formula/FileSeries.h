#pragma once
// The numbers of a "file=NAME" reference: one value per line (or several
// separated by ";"), the value for year Y being the Y-th one; years past the
// last value keep the last value. Only a regular file of at most
// kMaxFileBytes, named relative to the project's folder and inside it, is
// read: a pipe or a device could hang a run or fill the memory.
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tamsic::formula {

class FileSeries {
 public:
  struct Loaded;

  static constexpr std::uintmax_t kMaxFileBytes = 16 * 1024 * 1024;

  // Reads the numbers of a text; the error names the line of a bad value.
  static Loaded FromText(std::string_view text);
  // Reads the file `name` in `folder`; the errors name the file.
  static Loaded FromFile(const std::filesystem::path& folder, const std::string& name);

  // Year 1 is the first value; years before 1 use the first value too.
  double valueForYear(int year) const;
  std::size_t size() const { return values_.size(); }
  double value(std::size_t index) const { return values_[index]; }
  // The line of the file that holds the value, from 1.
  int line(std::size_t index) const { return lines_[index]; }
  // The file's name as the reference gives it; empty for a text.
  const std::string& name() const { return name_; }

 private:
  FileSeries(std::vector<double> values, std::vector<int> lines)
      : values_(std::move(values)), lines_(std::move(lines)) {}
  std::vector<double> values_;
  std::vector<int> lines_;
  std::string name_;
};

struct FileSeries::Loaded {
  std::optional<FileSeries> series;
  std::string error;
};

// The file name of a text such as "file=rates.txt" ("file" in any case,
// blanks around the name dropped), or nothing when it is no file reference.
std::optional<std::string> FileReferenceName(std::string_view text);

}  // namespace tamsic::formula
