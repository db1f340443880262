#pragma once
// A text file that a scenario names for its genetic inputs (a studbook,
// allele frequencies), cut into lines of fields. Fields are separated by
// blanks, tabs, commas or semicolons (so that a spreadsheet's export reads
// too); lines that are empty or begin with "#" are left out. The name is
// absolute or relative to the project's working folder.
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tamsic::sim {

struct InputLine {
  int number = 0;  // in the file, from 1
  std::vector<std::string> fields;
};

struct InputFile {
  std::string name;  // as the scenario gives it
  std::vector<InputLine> lines;

  // Throws SimError "the file NAME, line N: cause".
  [[noreturn]] void fail(int line, const std::string& cause) const;
  // Throws SimError "the file NAME: cause".
  [[noreturn]] void fail(const std::string& cause) const;
};

// Throws SimError naming the file when it cannot be read.
InputFile ReadInputFile(const std::filesystem::path& folder, const std::string& name);

// The lines of a text, as ReadInputFile cuts them.
std::vector<InputLine> CutLines(std::string_view text);

}  // namespace tamsic::sim
