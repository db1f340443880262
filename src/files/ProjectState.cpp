#include "files/ProjectState.h"

#include <filesystem>

#include "files/TextCodec.h"
#include "model/TextSplit.h"

namespace tamsic {

std::string ProjectState::WorkingFolder() const {
  return std::filesystem::path(fullPath_).parent_path().string();
}

std::string ProjectState::FileName() const {
  return std::filesystem::path(fullPath_).filename().string();
}

std::string ProjectState::FileStem() const {
  return std::filesystem::path(fullPath_).stem().string();
}

std::string ResultsFolder(const ProjectState& state) {
  if (!state.FullPath().empty()) return state.WorkingFolder();
  if (!state.proposedFolder.empty()) return state.proposedFolder;
  return std::filesystem::current_path().string();
}

std::string TrimmedTitle(const ProjectDocument& document) {
  const std::string title = Cp1252ToUtf8(document.title);
  return std::string(Trim(title));
}

std::string ProjectCaption(const ProjectState& state, const IStringTable& strings) {
  std::string title = TrimmedTitle(state.document);
  if (title.empty()) title = strings.text(1426);
  if (state.FullPath().empty()) return title + strings.text(1427);
  return title + " - " + state.FullPath();
}

}  // namespace tamsic
