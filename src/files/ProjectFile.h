#pragma once
// The layout of a project file: the signature line, the general information,
// the report location, the sensitivity-test scheme, then fifteen sections per
// scenario, always in this order. The reader asks for sections and keys in
// exactly the order the writer writes them, because the sectioned-file
// reader's cursor only moves forward.
#include <string>
#include <string_view>
#include <vector>

#include "files/ProjectDocument.h"
#include "files/clsSaveFile.h"
#include "model/Messages.h"

namespace tamsic {

inline constexpr std::string_view kFileVersion = "9.99";
// The first line of every project file; the opening recognises projects by it.
inline constexpr std::string_view kSignatureLine =
    "# TPSIG9.99    Do not remove or modify this line, otherwise this file will not be "
    "recognized as a tamsic project file";

struct SaveOptions {
  bool simplifiedDump = false;  // bare values, one per line: a dump, not a loadable project
};

// Writes the whole project to path, replacing the file only once the new one is
// complete. Throws FileError naming the cause; the earlier file is then intact.
void SaveProject(const ProjectDocument& project, const std::string& path, Messages& messages,
                 SaveOptions options = {});
void SaveScenario(clsSaveFile& file, const clsScenario& scenario, std::size_t number);

// Reads a project file. versionText is the version the signature line gave
// (older files renumber some sensitivity-test variables). A missing section
// shows its message and then throws TamsicError 1000; damaged grids show a
// message and the load goes on.
ProjectDocument LoadProject(const std::string& path, std::string_view versionText, Messages& messages,
                            char decimalSeparator = '.');
// The same on a reader already opened (a file or text in memory).
ProjectDocument ReadProject(clsSaveFile& file, std::string_view versionText, Messages& messages);
clsScenario LoadScenario(clsSaveFile& file, std::size_t number);

// What the welcome dialog shows of a project without loading it.
struct ProjectHeader {
  std::string title;
  std::string notes;
  std::vector<std::string> users;
};
// Throws FileError when the file cannot be read, TamsicError when it has no
// general section (after the reader's message).
ProjectHeader GetTamsicHeader(const std::string& path, Messages& messages);

// Where the report lives when the project file does not say otherwise:
// beside the project file, named after it.
std::string DefaultReportLocation(const std::string& projectPath);

// The name of one of a scenario's sections, e.g. "3 Mortality".
std::string ScenarioSectionName(std::size_t number, ScenarioSection section);

}  // namespace tamsic
