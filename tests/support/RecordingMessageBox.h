#pragma once
// A message box for tests: records every message and answers as told. Tests
// that expect no message check that nothing was recorded.
#include <string>
#include <vector>

#include "app/EnglishMessages.h"
#include "model/Messages.h"

namespace tamsic::test {

class RecordingMessageBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest& request) override {
    shown.push_back(request);
    return answer;
  }
  std::vector<MessageBoxRequest> shown;
  MsgAnswer answer = MsgAnswer::Ok;
};

// Messages wired to a recorder and the English texts.
struct MessageRecorder {
  RecordingMessageBox box;
  EnglishMessages strings;
  Messages messages{box, strings};
};

}  // namespace tamsic::test
