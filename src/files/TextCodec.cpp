#include "files/TextCodec.h"

#include <array>
#include <cstdint>

namespace tamsic {

namespace {

// Code points of bytes 0x80..0x9F; 0 marks the five bytes the code page leaves undefined.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t CodePoint(unsigned char byte) {
  if (byte < 0x80 || byte > 0x9F) return byte;
  const char32_t mapped = kHighControls[byte - 0x80];
  return mapped ? mapped : byte;
}

void AppendUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

char ToCp1252(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
  if (cp >= 0x80 && cp <= 0x9F && kHighControls[cp - 0x80] == 0) return static_cast<char>(cp);
  for (std::size_t i = 0; i < kHighControls.size(); ++i)
    if (kHighControls[i] == cp) return static_cast<char>(0x80 + i);
  return '?';
}

}  // namespace

std::string Cp1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (unsigned char byte : bytes) AppendUtf8(out, CodePoint(byte));
  return out;
}

std::string Utf8ToCp1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const int length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    char32_t cp = length == 1 ? lead : lead & (0x3F >> (length - 1));
    bool valid = i + length <= utf8.size() && (length > 1 || lead < 0x80);
    for (int k = 1; valid && k < length; ++k) {
      const auto next = static_cast<unsigned char>(utf8[i + k]);
      valid = (next & 0xC0) == 0x80;
      cp = (cp << 6) | (next & 0x3F);
    }
    out += valid ? ToCp1252(cp) : '?';
    i += valid ? length : 1;
  }
  return out;
}

}  // namespace tamsic
