// Any bytes as a sensitivity-test section or as an imported rate matrix must
// end in a result or a reported failure, never in a crash.
#include <cstdint>
#include <string>

#include "SilentBox.h"
#include "app/EnglishMessages.h"
#include "files/STFile.h"
#include "files/clsSaveFile.h"
#include "model/Errors.h"
#include "pages/InputHelpers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  SilentBox box;
  tamsic::EnglishMessages strings;
  tamsic::Messages messages(box, strings);
  tamsic::clsSaveFile file(messages);
  file.OpenText("[ST Data]\r\n" + text);
  file.ReadFile();
  tamsic::STScheme scheme;
  try {
    tamsic::ReadSTScheme(scheme, file, size > 0 && data[0] % 2 ? 9.5 : 9.99, messages);
  } catch (const tamsic::TamsicError&) {
  }
  tamsic::Grid rates(4, 4);
  tamsic::ImportRateMatrix(rates, text, strings);
  return 0;
}
