#pragma once
// What a project window keeps besides the project itself: where the file is,
// whether it has been saved, and whether it changed since.
#include <string>

#include "files/ProjectDocument.h"
#include "model/Messages.h"

namespace tamsic {

class ProjectState {
 public:
  ProjectDocument document;
  std::string versionText;     // of the file as opened; empty for a new project
  std::string proposedFolder;  // where a never-saved project is offered to go

  // The project file (empty until saved or opened), and the folder and file
  // name derived from it.
  const std::string& FullPath() const { return fullPath_; }
  std::string WorkingFolder() const;
  std::string FileName() const;
  // The file name without its extension.
  std::string FileStem() const;
  void SetFullPath(std::string path) { fullPath_ = std::move(path); }

  // A project changes two ways: by edits that undo can take back to where
  // they stood when the project was saved or opened, and by changes that no
  // undo takes back (scenarios added, deleted or reordered, the title, the
  // project settings, the user names), which keep it changed until it is saved.
  bool Changed() const { return changed_ || !editsAsSaved_; }
  // A change that no undo takes back.
  void MarkChanged() { changed_ = true; }
  // Whether the undoable edits stand as they did when the project was saved or opened.
  void SetEditsAsSaved(bool asSaved) { editsAsSaved_ = asSaved; }
  void MarkUnchanged() {
    changed_ = false;
    editsAsSaved_ = true;
  }

 private:
  std::string fullPath_;
  bool changed_ = false;
  bool editsAsSaved_ = true;
};

// Where the engine writes a project's result files and the result views read
// them: the project's folder, or for a project never saved the folder
// proposed for it, else the current directory.
std::string ResultsFolder(const ProjectState& state);

// The title without blanks at either end, in UTF-8 (file titles are Windows-1252).
std::string TrimmedTitle(const ProjectDocument& document);

// The window caption: the trimmed title, or "Unnamed Tamsic Project" when it
// is empty, then " - " and the path, or " - not previously saved".
std::string ProjectCaption(const ProjectState& state, const IStringTable& strings);

}  // namespace tamsic
