#pragma once
// The English message-box texts, built into the core so that the command line
// and the tests speak without the program's resource file; the words of the
// value checks are the engine's own (EnglishInputWords).
#include "model/Messages.h"

namespace tamsic {

class EnglishMessages : public IStringTable {
 public:
  std::string text(int number) const override;
};

}  // namespace tamsic
