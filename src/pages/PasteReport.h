#pragma once
// What the checks of a paste say, kept cell by cell and told at once: a paste
// of many cells shows one message naming its cells, not one message box per
// cell. It stands in for the message box while the checks of the cells run.
#include <string>
#include <vector>

#include "model/Messages.h"

namespace tamsic {

class PasteReport : public IMessageBox {
 public:
  // The cell whose check runs next, named as the user sees it, and its text.
  void Start(std::string cell, std::string text);
  // The check of the current cell refused its text, which is not stored.
  void Refused();
  // Keeps what a check tells. The checks of a cell tell and ask nothing that
  // needs an answer, so every message is answered Ok.
  MsgAnswer show(const MessageBoxRequest& request) override;

  // The refused cells, then the cells stored with a remark, each with its
  // text and what its check said; the first ones only when there are many.
  // Empty when no check said anything.
  std::string Text(const IStringTable& strings) const;

 private:
  struct Entry {
    std::string cell;
    std::string text;
    std::vector<std::string> said;
    bool refused = false;
  };
  std::vector<Entry> entries_;
};

}  // namespace tamsic
