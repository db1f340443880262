#include "sim/InputFile.h"

#include <fstream>
#include <sstream>

#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

// A studbook or a frequency table is far smaller; a larger file is a wrong choice.
constexpr std::uintmax_t kMaxBytes = 16 * 1024 * 1024;

std::vector<std::string> Fields(std::string_view line) {
  constexpr std::string_view kSeparators = " \t\r,;";
  std::vector<std::string> fields;
  for (std::size_t start = line.find_first_not_of(kSeparators); start != std::string_view::npos;) {
    const std::size_t end = std::min(line.find_first_of(kSeparators, start), line.size());
    fields.emplace_back(line.substr(start, end - start));
    start = line.find_first_not_of(kSeparators, end);
  }
  return fields;
}

}  // namespace

void InputFile::fail(int line, const std::string& cause) const {
  throw SimError("the file " + name + ", line " + std::to_string(line) + ": " + cause);
}

void InputFile::fail(const std::string& cause) const { throw SimError("the file " + name + ": " + cause); }

std::vector<InputLine> CutLines(std::string_view text) {
  std::vector<InputLine> lines;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::vector<std::string> fields = Fields(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!fields.empty() && fields.front().front() != '#') lines.push_back({number, std::move(fields)});
  }
  return lines;
}

InputFile ReadInputFile(const std::filesystem::path& folder, const std::string& name) {
  InputFile file{name, {}};
  const std::filesystem::path path = folder / std::filesystem::path(name);
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (error || !std::filesystem::exists(status)) throw SimError("cannot find the file " + name);
  if (!std::filesystem::is_regular_file(status)) file.fail("it is not a regular file");
  if (std::filesystem::file_size(path, error) > kMaxBytes || error)
    file.fail("it is larger than " + std::to_string(kMaxBytes >> 20) + " MB");
  std::ifstream in(path, std::ios::binary);
  if (!in) throw SimError("cannot read the file " + name);
  std::ostringstream content;
  content << in.rdbuf();
  file.lines = CutLines(content.str());
  return file;
}

}  // namespace tamsic::sim
