#include "engine/OutputFiles.h"

#include <fstream>
#include <sstream>
#include <utility>

#include "files/OutputNames.h"
#include "model/Errors.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

const char* Extension(ScenarioOutput kind) {
  switch (kind) {
    case ScenarioOutput::InputReport: return ".inp";
    case ScenarioOutput::DeterministicReport: return ".det";
    case ScenarioOutput::OutputReport: return ".out";
    case ScenarioOutput::RunTable: return ".run";
    case ScenarioOutput::YearlyData: return ".dat";
  }
  return "";
}

std::string Lined(std::string line) {
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

}  // namespace

std::filesystem::path ScenarioOutputFile(const std::filesystem::path& folder, const std::string& project,
                                         const std::string& scenario, ScenarioOutput kind) {
  return folder / ScenarioFileName(project, scenario, Extension(kind));
}

std::filesystem::path SummaryFile(const std::filesystem::path& folder, const std::string& project) {
  return folder / SummaryFileName(project);
}

void PruneSummary(const std::filesystem::path& folder, const std::string& project, const std::string& scenario) {
  const auto summary = SummaryFile(folder, project);
  if (!std::filesystem::exists(summary)) return;
  auto scratch = summary;
  scratch.replace_extension(".sub");
  std::error_code error;
  std::filesystem::permissions(summary, std::filesystem::perms::owner_write, std::filesystem::perm_options::add, error);
  std::filesystem::copy_file(summary, scratch, std::filesystem::copy_options::overwrite_existing, error);
  if (error) throw FileError("Cannot copy " + summary.string() + " to " + scratch.string() + ": " + error.message());
  std::ifstream in(scratch, std::ios::binary);
  std::ofstream out(summary, std::ios::binary | std::ios::trunc);
  if (!in || !out) throw FileError("Cannot rewrite " + summary.string());
  const std::string_view name = Trim(scenario);
  for (std::string line; std::getline(in, line);) {
    const std::string text = Lined(line);
    if (text.empty() || Trim(Split(text, ';').front()) == name) continue;
    out << line << '\n';
  }
  out.close();
  in.close();
  if (!out) throw FileError("Cannot write " + summary.string());
  std::filesystem::remove(scratch, error);
}

TableFile ReadTableFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw FileError("Cannot read " + file.string());
  std::ostringstream content;
  content << in.rdbuf();
  return ReadTableText(content.str());
}

TableFile ReadTableText(std::string_view whole) {
  TableFile table;
  bool named = false;
  for (std::string_view line : Split(whole, '\n')) {
    const std::string text = Lined(std::string(line));
    if (text.starts_with('$') && !std::exchange(named, true))
      for (std::string_view field : Split(std::string_view(text).substr(1), ';')) table.headings.emplace_back(Trim(field));
    if (text.starts_with('$') || Trim(text).empty()) continue;
    std::vector<std::string> fields;
    for (std::string_view field : Split(text, ';')) fields.emplace_back(Trim(field));
    table.columns = std::max(table.columns, fields.size());
    table.rows.push_back(std::move(fields));
  }
  return table;
}

}  // namespace tamsic
