#include "notes/ReportFile.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "files/AtomicFile.h"
#include "files/ProjectFile.h"
#include "files/TextCodec.h"
#include "model/Errors.h"

namespace tamsic {

std::string ReportPath(const ProjectState& state) {
  if (!state.document.reportLocation.empty()) return state.document.reportLocation;
  if (!state.FullPath().empty()) return DefaultReportLocation(state.FullPath());
  std::string name = TrimmedTitle(state.document);
  if (name.empty()) name = "Project";
  return DefaultReportLocation((std::filesystem::path(ResultsFolder(state)) / (name + ".tpj")).string());
}

bool IsRtf(std::string_view bytes) { return WithoutByteOrderMark(bytes).starts_with("{\\rtf"); }

std::string ReadReportFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  if (in) bytes << in.rdbuf();
  if (!in || in.bad()) throw FileError("Cannot read " + path + ": " + LastSystemError());
  return std::move(bytes).str();
}

}  // namespace tamsic
