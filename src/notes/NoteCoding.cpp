#include "notes/NoteCoding.h"

#include <algorithm>

#include "files/TextCodec.h"

namespace tamsic {

namespace {

constexpr char kHex[] = "0123456789ABCDEF";

// The length of the UTF-8 character that starts with this byte; 1 for a stray byte.
std::size_t CharacterLength(unsigned char lead) {
  if (lead >= 0xF0 && lead < 0xF8) return 4;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xC0 && lead < 0xE0) return 2;
  return 1;
}

bool IsOneCharacter(std::string_view bytes) {
  const auto lead = static_cast<unsigned char>(bytes.front());
  if (lead >= 0x80 && CharacterLength(lead) == 1) return false;
  for (std::size_t k = 1; k < bytes.size(); ++k)
    if ((static_cast<unsigned char>(bytes[k]) & 0xC0) != 0x80) return false;
  return true;
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// Whether the file gives back this character (UTF-8) when it is written as its Windows-1252 byte.
bool FileKeeps(std::string_view character, bool atAnEnd) {
  const std::string byte = Utf8ToCp1252(character);
  if (byte.size() != 1 || Cp1252ToUtf8(byte) != character) return false;
  const auto c = static_cast<unsigned char>(byte.front());
  if (c < 0x20 || c == 0x7F) return false;
  if (std::string_view("%#\":;`").find(static_cast<char>(c)) != std::string_view::npos) return false;
  if (c == 0xFC || c == 0xFD) return false;
  return !(atAnEnd && c == ' ');
}

// The UTF-8 character that the escapes at the start of text stand for; empty when they stand for none.
std::string EscapedCharacter(std::string_view text) {
  std::string bytes;
  std::size_t length = 1;
  for (std::size_t at = 0; bytes.size() < length; at += 3) {
    if (at + 3 > text.size() || text[at] != '%') return {};
    const int high = HexValue(text[at + 1]);
    const int low = HexValue(text[at + 2]);
    if (high < 0 || low < 0) return {};
    bytes += static_cast<char>(high * 16 + low);
    if (bytes.size() == 1) length = CharacterLength(static_cast<unsigned char>(bytes.front()));
  }
  return IsOneCharacter(bytes) ? bytes : std::string();
}

}  // namespace

std::string EncodeNote(std::string_view utf8) {
  std::string out;
  for (std::size_t i = 0; i < utf8.size();) {
    const std::size_t length = std::min(CharacterLength(static_cast<unsigned char>(utf8[i])), utf8.size() - i);
    const std::string_view character = utf8.substr(i, length);
    if (FileKeeps(character, i == 0 || i + length == utf8.size())) {
      out += Utf8ToCp1252(character);
    } else {
      for (unsigned char byte : character) {
        out += '%';
        out += kHex[byte >> 4];
        out += kHex[byte & 0x0F];
      }
    }
    i += length;
  }
  // A cell reading "Empty" is read as empty.
  if (out == "Empty") return "%45mpty";
  return out;
}

std::string DecodeNote(std::string_view cell) {
  std::string out;
  for (std::size_t i = 0; i < cell.size();) {
    const std::string character = EscapedCharacter(cell.substr(i));
    if (character.empty()) {
      out += Cp1252ToUtf8(cell.substr(i, 1));
      ++i;
    } else {
      out += character;
      i += 3 * character.size();
    }
  }
  return out;
}

const std::string& NoteCell(const clsScenario& scenario, std::size_t page) {
  static const std::string none;
  const Grid& notes = scenario.Notes();
  return page < notes.rows() && notes.cols() > 0 ? notes.at(page, 0) : none;
}

bool SetNoteCell(clsScenario& scenario, std::size_t page, std::string cell) {
  if (NoteCell(scenario, page) == cell) return false;
  Grid notes = scenario.Notes();
  notes.resize(std::max(notes.rows(), clsScenario::kNotePages), std::max(notes.cols(), clsScenario::kNotesPerPage));
  notes.at(page, 0) = std::move(cell);
  scenario.SetNotes(std::move(notes));
  return true;
}

}  // namespace tamsic
