#pragma once
// The save-file dialog of Save As, offering project files only.
#include "files/ProjectSaveFlow.h"
#include "model/Messages.h"

class QtSaveFileDialog : public tamsic::ISaveFileDialog {
 public:
  explicit QtSaveFileDialog(const tamsic::IStringTable& strings) : strings_(strings) {}
  std::optional<std::string> AskSavePath(const std::string& folder,
                                         const std::string& proposedName) override;

 private:
  const tamsic::IStringTable& strings_;
};
