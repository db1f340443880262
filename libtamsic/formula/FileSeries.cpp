#include "formula/FileSeries.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <fstream>
#include <sstream>

#include "model/TextSplit.h"

namespace tamsic::formula {

namespace {

// "nan" and "inf" read as numbers but are none a simulation can use.
std::optional<double> ReadNumber(std::string_view text) {
  double value = 0.0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (error != std::errc() || end != last || !std::isfinite(value)) return std::nullopt;
  return value;
}

bool LeavesTheFolder(const std::filesystem::path& name) {
  if (name.is_absolute() || name.has_root_name() || name.has_root_directory()) return true;
  return std::any_of(name.begin(), name.end(), [](const std::filesystem::path& part) { return part == ".."; });
}

}  // namespace

FileSeries::Loaded FileSeries::FromText(std::string_view text) {
  std::vector<double> values;
  std::vector<int> lines;
  int lineNumber = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    ++lineNumber;
    std::string_view rest = line;
    while (!Trim(rest).empty()) {
      const std::size_t cut = std::min(rest.find(';'), rest.size());
      const std::string_view field = Trim(rest.substr(0, cut));
      rest.remove_prefix(std::min(cut + 1, rest.size()));
      if (field.empty()) continue;
      const auto value = ReadNumber(field);
      if (!value) {
        std::string error(1, '"');
        error.append(field).append("\" on line ").append(std::to_string(lineNumber));
        return {std::nullopt, error + " is not a finite number"};
      }
      values.push_back(*value);
      lines.push_back(lineNumber);
    }
  }
  if (values.empty()) return {std::nullopt, "the file holds no values"};
  return {FileSeries(std::move(values), std::move(lines)), ""};
}

FileSeries::Loaded FileSeries::FromFile(const std::filesystem::path& folder, const std::string& name) {
  const std::filesystem::path relative(name);
  if (LeavesTheFolder(relative))
    return {std::nullopt, "the file " + name + " must be named relative to the project's folder and lie inside it"};
  const std::filesystem::path path = folder / relative;
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (error || !std::filesystem::exists(status)) return {std::nullopt, "cannot find the file " + name};
  if (!std::filesystem::is_regular_file(status)) return {std::nullopt, "the file " + name + " is not a regular file"};
  if (std::filesystem::file_size(path, error) > kMaxFileBytes || error)
    return {std::nullopt, "the file " + name + " is larger than " + std::to_string(kMaxFileBytes >> 20) + " MB"};
  std::ifstream in(path, std::ios::binary);
  if (!in) return {std::nullopt, "cannot read the file " + name};
  std::ostringstream content;
  content << in.rdbuf();
  Loaded loaded = FromText(content.str());
  if (!loaded.series) loaded.error = "the file " + name + ": " + loaded.error;
  else loaded.series->name_ = name;
  return loaded;
}

double FileSeries::valueForYear(int year) const {
  const auto index = static_cast<std::size_t>(std::max(year, 1) - 1);
  return values_[std::min(index, values_.size() - 1)];
}

std::optional<std::string> FileReferenceName(std::string_view text) {
  text = Trim(text);
  if (text.size() < 5) return std::nullopt;
  std::string head(text.substr(0, 5));
  std::transform(head.begin(), head.end(), head.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (head != "file=") return std::nullopt;
  return std::string(Trim(text.substr(5)));
}

}  // namespace tamsic::formula
