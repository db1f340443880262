#include "engine/TextCodes.h"

namespace tamsic {

std::vector<std::int16_t> TextToCodes(const std::string& text) {
  if (text.empty()) return {0};
  std::vector<std::int16_t> codes;
  codes.reserve(text.size());
  for (const char c : text) codes.push_back(static_cast<std::int16_t>(static_cast<unsigned char>(c)));
  return codes;
}

std::string CodesToText(const TamsicVariant& reply) {
  std::string text;
  if (reply.codes == nullptr || reply.count <= 0) return text;
  text.reserve(static_cast<std::size_t>(reply.count));
  for (std::int32_t i = 0; i < reply.count; ++i) {
    const std::int16_t code = reply.codes[i];
    text += code < 0 || code > 255 ? '?' : static_cast<char>(code);
  }
  return text;
}

}  // namespace tamsic
