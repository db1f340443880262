#pragma once
// Messages of a command-line run go to stderr. Questions get the cautious
// answer, since nobody is there to reply.
#include "model/Messages.h"

namespace tamsic {

class StderrMessageBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest& request) override;
  // Whether anything was shown: on a batch run every message means trouble.
  bool sawProblem() const { return sawProblem_; }

 private:
  bool sawProblem_ = false;
};

}  // namespace tamsic
