#pragma once
// Messages of a command-line run go to stderr. Questions get the cautious
// answer, since nobody is there to reply.
#include <string>

#include "model/Messages.h"

namespace tamsic {

class StderrMessageBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest& request) override;
  // Whether anything was shown: on a batch run every message means trouble.
  bool sawProblem() const { return sawProblem_; }
  // From now on keeps messages instead of printing them (a process of an MPI job other than rank 0).
  void silence() { silent_ = true; }
  // The first message, printed or not.
  const std::string& firstMessage() const { return first_; }

 private:
  bool sawProblem_ = false;
  bool silent_ = false;
  std::string first_;
};

}  // namespace tamsic
