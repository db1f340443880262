#include "Codes.h"

#include <cstdlib>

namespace tamsic {

std::string TextFromCodes(const int16_t* codes, int32_t count) {
  if (codes == nullptr || count <= 0 || (count == 1 && codes[0] == 0)) return {};
  std::string text;
  text.reserve(static_cast<std::size_t>(count));
  for (int32_t i = 0; i < count; ++i) {
    const int16_t code = codes[i];
    text += code > 255 ? '?' : static_cast<char>(static_cast<unsigned char>(code));
  }
  return text;
}

void SetReply(TamsicVariant* result, std::string_view text) noexcept {
  result->codes = nullptr;
  result->count = 0;
  if (text.empty()) return;
  auto* codes = static_cast<int16_t*>(std::malloc(text.size() * sizeof(int16_t)));
  if (codes == nullptr) return;
  for (std::size_t i = 0; i < text.size(); ++i)
    codes[i] = static_cast<int16_t>(static_cast<unsigned char>(text[i]));
  result->codes = codes;
  result->count = static_cast<int32_t>(text.size());
}

}  // namespace tamsic
