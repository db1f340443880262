#pragma once
// The file of the project report. No maintained library reads or writes Rich
// Text on this system, so the report is kept as HTML with its pictures inside
// (one file), under the name the project file gives it; a file that really is
// Rich Text, written by another program, is recognised so that it is never
// replaced unasked.
#include <string>
#include <string_view>

#include "files/ProjectState.h"

namespace tamsic {

// The report's file: the location the project names, else "<project>_report.rtf"
// beside the project file; a project never saved takes its title for the name,
// in the folder proposed for it.
std::string ReportPath(const ProjectState& state);

// Whether the bytes begin as a Rich Text document does ("{\rtf").
bool IsRtf(std::string_view bytes);

// The whole file. Throws FileError naming the file and the cause.
std::string ReadReportFile(const std::string& path);

}  // namespace tamsic
