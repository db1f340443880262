#pragma once
// The engine's result files, found by name in the project's working folder:
// P_S.inp, .det, .out, .run and .dat for scenario S of project P, and the
// project summary P.sum. P is the project's title and S the scenario's name,
// both trimmed and made safe as file name parts; the engine names its files
// by the same rule. The front end never writes them, except for pruning a
// scenario's line from the summary.
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tamsic {

enum class ScenarioOutput { InputReport, DeterministicReport, OutputReport, RunTable, YearlyData };

// A title or a name as part of a file name in the project's folder: trimmed,
// with "_" for every path separator, control character and character that
// file systems refuse, and for each dot that begins "..", so that no title
// or name can reach outside the folder.
std::string FileNamePart(std::string_view text);

// P_S + extension ("_S.dat"), and P.sum, as plain names without a folder.
std::string ScenarioFileName(const std::string& project, const std::string& scenario, std::string_view extension);
std::string SummaryFileName(const std::string& project);

// Names hold the title and scenario in the project file's own encoding, which is
// how the engine spells them on disk.
std::filesystem::path ScenarioOutputFile(const std::filesystem::path& folder, const std::string& project,
                                         const std::string& scenario, ScenarioOutput kind);
std::filesystem::path SummaryFile(const std::filesystem::path& folder, const std::string& project);

// Removes every line of the summary whose first field, trimmed, is the
// scenario's trimmed name (case counts), through the ".sub" scratch copy.
// Nothing happens when there is no summary. Throws FileError.
void PruneSummary(const std::filesystem::path& folder, const std::string& project, const std::string& scenario);

// A ".sum" or ".run" file cut into records: "$" lines and blank lines are
// skipped, the rest split at ";" with each field trimmed. `columns` is the
// widest record's field count. The first "$" line names the columns.
struct TableFile {
  std::vector<std::string> headings;
  std::vector<std::vector<std::string>> rows;
  std::size_t columns = 0;
};

// Throws FileError when the file cannot be read.
TableFile ReadTableFile(const std::filesystem::path& file);
TableFile ReadTableText(std::string_view text);

}  // namespace tamsic
