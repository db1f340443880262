#include "app/StringTable.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "model/Errors.h"

// File format (UTF-8): one entry per line, "identifier<TAB>text". Lines that
// are empty or start with '#' are ignored. In the text, "\n" is a line break,
// "\s" a blank and "\\" a backslash; a raw blank or tab at the end of a line
// is an error, so that an editor that strips trailing blanks cannot change a
// text.

namespace tamsic {

namespace {

constexpr int kLanguageBase = 10000;
constexpr long kMaxIdentifier = 65535;

std::string Where(const std::string& origin, int line) {
  return origin + ", line " + std::to_string(line) + ": ";
}

std::string Unescape(const std::string& raw, const std::string& where) {
  std::string text;
  text.reserve(raw.size());
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] != '\\') {
      text += raw[i];
      continue;
    }
    if (++i == raw.size()) throw FileError(where + "backslash at the end of the text");
    switch (raw[i]) {
      case 'n': text += '\n'; break;
      case 's': text += ' '; break;
      case '\\': text += '\\'; break;
      default: throw FileError(where + "unknown escape \\" + std::string(1, raw[i]));
    }
  }
  return text;
}

// Bytes in a UTF-8 sequence that starts with `lead`; 0 when no sequence can.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if ((lead >> 5) == 0x6) return 2;
  if ((lead >> 4) == 0xE) return 3;
  if ((lead >> 3) == 0x1E) return 4;
  return 0;
}

// Well-formed UTF-8: a file saved in a legacy code page fails here rather than
// showing garbled captions.
bool IsUtf8(const std::string& text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = SequenceLength(static_cast<unsigned char>(text[i]));
    if (length == 0 || i + length > text.size()) return false;
    for (std::size_t k = 1; k < length; ++k) {
      if ((static_cast<unsigned char>(text[i + k]) >> 6) != 0x2) return false;
    }
    i += length;
  }
  return true;
}

int ParseIdentifier(const std::string& digits, const std::string& where) {
  if (digits.empty() || digits.size() > 5 ||
      digits.find_first_not_of("0123456789") != std::string::npos) {
    throw FileError(where + "expected an identifier (0 to 65535) and a tab, found \"" +
                    digits + "\"");
  }
  const long value = std::stol(digits);
  if (value > kMaxIdentifier) {
    throw FileError(where + "identifier " + digits + " is above 65535");
  }
  return static_cast<int>(value);
}

}  // namespace

StringTable StringTable::fromFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw FileError("Cannot open the string table " + path);
  std::ostringstream contents;
  contents << in.rdbuf();
  return fromText(contents.str(), path);
}

StringTable StringTable::fromText(const std::string& contents, const std::string& origin) {
  StringTable table;
  std::istringstream in(contents);
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    if (number == 1 && line.rfind("\xEF\xBB\xBF", 0) == 0) line.erase(0, 3);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.find_first_not_of(" \t") == std::string::npos || line.front() == '#') continue;

    const std::string where = Where(origin, number);
    if (!IsUtf8(line)) throw FileError(where + "not valid UTF-8 (save the file as UTF-8)");
    const std::size_t tab = line.find('\t');
    if (tab == std::string::npos) throw FileError(where + "no tab between identifier and text");
    const int id = ParseIdentifier(line.substr(0, tab), where);
    if (line.back() == ' ' || line.back() == '\t') {
      throw FileError(where + "blank at the end of the line (write a trailing blank as \\s)");
    }
    if (!table.entries_.emplace(id, Unescape(line.substr(tab + 1), where)).second) {
      throw FileError(where + "identifier " + std::to_string(id) + " appears twice");
    }
  }
  return table;
}

std::string StringTable::locate() {
  std::error_code error;
  const auto exe = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) {
    const auto beside = exe.parent_path() / "resources" / "strings.txt";
    if (std::filesystem::exists(beside, error)) return beside.string();
  }
  return TAMSIC_STRINGS_SOURCE;
}

std::string StringTable::text(int number) const {
  if (number < 0 || number >= kLanguageBase) return {};
  const auto it = entries_.find(static_cast<int>(language_) * kLanguageBase + number);
  return it == entries_.end() ? std::string() : it->second;
}

std::set<int> StringTable::numbers(Language language) const {
  const int base = static_cast<int>(language) * kLanguageBase;
  std::set<int> result;
  for (auto it = entries_.lower_bound(base);
       it != entries_.end() && it->first < base + kLanguageBase; ++it) {
    result.insert(it->first - base);
  }
  return result;
}

}  // namespace tamsic
