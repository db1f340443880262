// Any bytes given to the project reader must end in a project or a reported
// failure, never in a crash.
#include <cstdint>
#include <string>

#include "SilentBox.h"
#include "app/EnglishMessages.h"
#include "files/ProjectFile.h"
#include "model/Errors.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  SilentBox box;
  tamsic::EnglishMessages strings;
  tamsic::Messages messages(box, strings);
  tamsic::clsSaveFile file(messages);
  file.OpenText(std::string(reinterpret_cast<const char*>(data), size));
  try {
    tamsic::ReadProject(file, "9.5", messages);
  } catch (const tamsic::TamsicError&) {
  }
  return 0;
}
