#pragma once
// The save-file dialog of Save As, offering project files only.
#include "files/ProjectSaveFlow.h"

class QtSaveFileDialog : public tamsic::ISaveFileDialog {
 public:
  std::optional<std::string> AskSavePath(const std::string& folder,
                                         const std::string& proposedName) override;
};
