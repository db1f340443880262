#pragma once
// Messages for fuzz targets: every one is answered and none is shown.
#include "model/Messages.h"

class SilentBox : public tamsic::IMessageBox {
 public:
  tamsic::MsgAnswer show(const tamsic::MessageBoxRequest&) override { return tamsic::MsgAnswer::Ok; }
};
