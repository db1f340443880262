#pragma once
// The message box the core's messages appear in: a QMessageBox with the
// request's icon and buttons, titled with the program's name when the request
// has no caption.
#include "model/Messages.h"

class QtMessageBox : public tamsic::IMessageBox {
 public:
  explicit QtMessageBox(const tamsic::IStringTable& strings) : strings_(strings) {}
  tamsic::MsgAnswer show(const tamsic::MessageBoxRequest& request) override;

 private:
  const tamsic::IStringTable& strings_;
};
