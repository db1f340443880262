#pragma once
// The engine's result files, found in the project's working folder by the
// names files/OutputNames.h gives them. The front end never writes them,
// except for pruning a scenario's line from the summary.
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tamsic {

enum class ScenarioOutput { InputReport, DeterministicReport, OutputReport, RunTable, YearlyData };

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
