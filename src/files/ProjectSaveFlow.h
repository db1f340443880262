#pragma once
// Save, Save As and the question before a changed project is closed. The
// window supplies the file dialog; every question and failure goes through
// Messages, so the whole flow runs without a window in tests.
#include <optional>
#include <string>

#include "files/ProjectState.h"
#include "model/Messages.h"

namespace tamsic {

// The save-file dialog: starts in folder with proposedName, answers the chosen
// path or nothing when the user cancels.
class ISaveFileDialog {
 public:
  virtual ~ISaveFileDialog() = default;
  virtual std::optional<std::string> AskSavePath(const std::string& folder,
                                                 const std::string& proposedName) = 0;
};

enum class SaveResult { Saved, Cancelled, Failed };

// Writes to the project's own file. When the title no longer matches the file
// name, offers to save under the title instead. A project never saved, or
// whose folder has gone, is saved as by FunctionSaveAs.
SaveResult FunctionSave(ProjectState& state, Messages& messages, ISaveFileDialog& dialog);

// Asks for a file, offers to take its name as the title, and writes there.
SaveResult FunctionSaveAs(ProjectState& state, Messages& messages, ISaveFileDialog& dialog);

// What is closing a project: the user closing it alone, or the program ending.
enum class Closing { Project, Program };

// Whether a project may close: an unchanged one may; a changed one asks, in
// the words that fit what is closing and naming the project, whether to save
// it first, and stays open on Cancel or when the save fails.
bool MayCloseProject(ProjectState& state, Messages& messages, ISaveFileDialog& dialog, Closing closing);

}  // namespace tamsic
