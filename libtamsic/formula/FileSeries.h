#pragma once
// The numbers of a "file=NAME" reference: one value per line (or several
// separated by ";"), the value for year Y being the Y-th one; years past the
// last value keep the last value.
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tamsic::formula {

class FileSeries {
 public:
  struct Loaded;

  // Reads the numbers of a text; the error names the line of a bad value.
  static Loaded FromText(std::string_view text);
  static Loaded FromFile(const std::filesystem::path& path);

  // Year 1 is the first value; years before 1 use the first value too.
  double valueForYear(int year) const;
  std::size_t size() const { return values_.size(); }

 private:
  explicit FileSeries(std::vector<double> values) : values_(std::move(values)) {}
  std::vector<double> values_;
};

struct FileSeries::Loaded {
  std::optional<FileSeries> series;
  std::string error;
};

// The file name of a text such as "file=rates.txt" ("file" in any case,
// blanks around the name dropped), or nothing when it is no file reference.
std::optional<std::string> FileReferenceName(std::string_view text);

}  // namespace tamsic::formula
