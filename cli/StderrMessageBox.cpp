#include "StderrMessageBox.h"

#include <iostream>

namespace tamsic {

MsgAnswer StderrMessageBox::show(const MessageBoxRequest& request) {
  std::string text = request.text;
  for (auto at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at)) text.replace(at, 2, "\n");
  if (!sawProblem_) first_ = text;
  sawProblem_ = true;
  if (!silent_) std::cerr << (request.caption.empty() ? "tamsic" : request.caption) << ": " << text << '\n';
  switch (request.buttons) {
    case MsgButtons::Ok: return MsgAnswer::Ok;
    case MsgButtons::OkCancel:
    case MsgButtons::YesNoCancel: return MsgAnswer::Cancel;
    case MsgButtons::YesNo: return MsgAnswer::No;
  }
  return MsgAnswer::Ok;
}

}  // namespace tamsic
