#pragma once
// The program's localised texts, read from the resource file strings.txt.
// An entry's identifier is language * 10000 + message number; callers ask by
// message number and the table adds the base of the current language.
#include <map>
#include <set>
#include <string>

#include "model/Messages.h"

namespace tamsic {

enum class Language { Portuguese = 0, English = 1, Spanish = 2, German = 3 };

class StringTable : public IStringTable {
 public:
  // Parses the file at the path; a missing file or a malformed line throws
  // FileError naming the file and the line.
  static StringTable fromFile(const std::string& path);
  // Parses the contents of a file; `origin` names it in error messages.
  static StringTable fromText(const std::string& contents, const std::string& origin);

  // The installed strings.txt: resources/ beside the running executable, or
  // else the copy in the source tree this program was built from.
  static std::string locate();

  std::string text(int number) const override;

  Language language() const { return language_; }
  void setLanguage(Language language) { language_ = language; }

  // The message numbers (not identifiers) present for one language.
  std::set<int> numbers(Language language) const;

 private:
  std::map<int, std::string> entries_;
  Language language_ = Language::English;
};

}  // namespace tamsic
