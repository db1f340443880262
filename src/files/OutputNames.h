#pragma once
// The names of the engine's result files: P_S.inp, .det, .out, .run and .dat
// for scenario S of project P, and the project summary P.sum. The engine
// writes its files by these names and the front end finds them by the same.
#include <string>
#include <string_view>

namespace tamsic {

// A title or a name as part of a file name in the project's folder: trimmed,
// with "_" for every path separator, control character and character that
// file systems refuse, and for each dot that begins "..", so that no title
// or name can reach outside the folder.
std::string FileNamePart(std::string_view text);

// P_S + extension ("_S.dat"), and P.sum, as plain names without a folder.
std::string ScenarioFileName(const std::string& project, const std::string& scenario, std::string_view extension);
std::string SummaryFileName(const std::string& project);

}  // namespace tamsic
