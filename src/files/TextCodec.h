#pragma once
// Project files and the engine speak Windows-1252 bytes; messages and the
// string table are UTF-8. These convert at the few places where the two meet.
#include <string>
#include <string_view>

namespace tamsic {

std::string Cp1252ToUtf8(std::string_view bytes);
// Characters that Windows-1252 cannot hold become "?".
std::string Utf8ToCp1252(std::string_view utf8);

// Editors that save as UTF-8 may put a byte order mark before the first line;
// read as Windows-1252 it would become part of the signature or of a key.
inline std::string_view WithoutByteOrderMark(std::string_view text) {
  return text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text;
}

}  // namespace tamsic
