#include "files/ProjectSaveFlow.h"

#include <filesystem>

#include "files/AtomicFile.h"
#include "files/ProjectFile.h"
#include "files/TextCodec.h"
#include "model/Errors.h"

namespace tamsic {

namespace {

// The file is replaced only once the new one is complete, so a failure leaves
// the earlier file and the window's unsaved state as they were.
SaveResult Write(ProjectState& state, const std::string& path, Messages& messages) {
  try {
    SaveProject(state.document, path, messages);
  } catch (const FileError& error) {
    messages.show(error.what(), msg::kError, MsgIcon::Critical);
    return SaveResult::Failed;
  }
  state.SetFullPath(path);
  state.MarkUnchanged();
  return SaveResult::Saved;
}

}  // namespace

SaveResult FunctionSave(ProjectState& state, Messages& messages, ISaveFileDialog& dialog) {
  if (state.FullPath().empty()) return FunctionSaveAs(state, messages, dialog);
  std::string path = state.FullPath();
  const std::string title = TrimmedTitle(state.document);
  if (!title.empty() && title != state.FileStem() &&
      messages.show(messages.text(msg::kProjectNameMismatch), msg::kConfirmation,
                    MsgIcon::Question, MsgButtons::YesNo) == MsgAnswer::Yes)
    path = (std::filesystem::path(state.WorkingFolder()) / (title + ".tpj")).string();
  if (!FolderExists(state.WorkingFolder())) return FunctionSaveAs(state, messages, dialog);
  return Write(state, path, messages);
}

SaveResult FunctionSaveAs(ProjectState& state, Messages& messages, ISaveFileDialog& dialog) {
  const std::string folder = state.FullPath().empty() ? state.proposedFolder : state.WorkingFolder();
  const auto path = dialog.AskSavePath(folder, TrimmedTitle(state.document));
  if (!path) return SaveResult::Cancelled;
  const std::string stem = std::filesystem::path(*path).stem().string();
  if (stem != TrimmedTitle(state.document)) {
    switch (messages.show(messages.text(msg::kChangeProjectName), msg::kConfirmation,
                          MsgIcon::Question, MsgButtons::YesNoCancel)) {
      case MsgAnswer::Cancel:
        return SaveResult::Cancelled;
      case MsgAnswer::Yes:
        state.document.title = Utf8ToCp1252(stem);
        break;
      default:
        break;
    }
  }
  return Write(state, *path, messages);
}

bool MayCloseProject(ProjectState& state, Messages& messages, ISaveFileDialog& dialog, Closing closing) {
  if (!state.Changed()) return true;
  const int question = closing == Closing::Program ? msg::kSaveBeforeQuitting : msg::kSaveBeforeClosing;
  // Several projects may ask in turn as the program ends: each says which it is.
  const std::string text = messages.text(question) + "\n\n" + Cp1252ToUtf8(state.document.title);
  switch (messages.show(text, msg::kConfirmation, MsgIcon::Question, MsgButtons::YesNoCancel)) {
    case MsgAnswer::Yes:
      return FunctionSave(state, messages, dialog) == SaveResult::Saved;
    case MsgAnswer::No:
      return true;
    default:
      return false;
  }
}

}  // namespace tamsic
