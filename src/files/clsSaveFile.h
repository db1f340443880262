#pragma once
// Reads and writes the sectioned text files a project is kept in: "[section]"
// headers, key=value entries, "#" comments, 8-bit text with CR LF line ends.
//
// Reading loads the whole file into an entry cache at once and answers every
// look-up from it. The look-up cursor only moves forward and is never reset:
// each look-up lands on an entry of the requested section that lies after the
// previous match, so sections must be read in file order. That is what keeps a
// whole load linear in the file's size; a reader that must go back to an
// earlier section uses a new object.
//
// Writing collects the text and replaces the file only when it is complete,
// so a failing disk never leaves half a project behind.
//
// Some conversions are deliberately lossy and stay so for the sake of the
// files already out there: a "#" always starts a comment, and ";" or ":"
// inside a cell come back as ":" (see EncodeCell and DecodeCell).
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/Grid.h"
#include "model/Messages.h"

namespace tamsic {

class clsSaveFile {
 public:
  enum Mode { ModeRead = 0, ModeWrite = 1 };

  // decimalSeparator: the separator the user's system uses for numbers, for
  // look-ups that ask for localised decimals.
  explicit clsSaveFile(Messages& messages, char decimalSeparator = '.');

  // Read: answers false, opening nothing, when no file exists at the path.
  // Write: nothing touches the disk until CloseFile. Throws FileError when an
  // existing file cannot be read.
  bool OpenFile(const std::string& path, int mode, int flag = 0);
  // Read mode on text already in memory.
  void OpenText(std::string text);
  // Write mode: puts the text in place of the file; throws FileError naming
  // the cause, leaving any earlier file as it was.
  void CloseFile();

  // --- reading ---
  void ResetPosition() { position_ = 0; }
  void ReadFile();
  std::string GotoSection(std::string_view name);
  std::string GotoNextSection();
  // Moves the cursor past the next section of that name ahead of it; false
  // when there is none (the cursor stays).
  bool FindSectionInCache(std::string_view section);
  std::string GetEntryCache(std::string_view key, std::string_view section, bool decode = false,
                            bool localise = false);
  // Parses a grid string into target; leaves target untouched when the text
  // is not in braces, and keeps the rows read so far when a row is ragged.
  void FillArray(std::string_view text, Grid& target);
  std::size_t CacheSize() const { return cache_.size(); }

  // --- writing ---
  // A dump of bare values, one a line, without headers, keys or comments.
  void SimplifiedDump(bool on) { simplifiedDump_ = on; }
  void SaveEntry(std::string_view key, std::string_view value, std::string_view comment = {},
                 bool formatted = true);
  void StartSection(std::string_view name, bool blankLineBefore);
  void WriteComment(std::string_view text);
  void SkipLines(int count);
  std::string GridBufferToString(const Grid& grid) const;
  const std::string& WrittenText() const { return output_; }

  // --- value encodings, usable without a file ---
  static std::string StripChars(std::string_view text, char first, char last);
  static std::string PutChars(std::string_view text, char c);
  static std::string ProcessInput(std::string_view text);
  static std::string ProcessOutput(std::string_view text);
  static std::string LinearizeText(std::string_view text);
  static std::string EncodeCell(std::string_view text);
  static std::string DecodeCell(std::string_view text);
  // An array addressed from 1: rows x cols cells, or one row when oneDimensional.
  static std::string ArrayToString(const std::vector<std::vector<std::string>>& rows,
                                   bool oneDimensional);
  static std::string ListboxToString(const std::vector<std::string>& items);
  static std::vector<std::string> StringToListbox(std::string_view text);

  static constexpr std::size_t kCommentColumn = 50;

 private:
  struct CacheEntry {
    std::string section;
    std::string key;
    std::string value;
  };

  bool AtEndOfFile() const { return position_ >= input_.size(); }
  std::string_view ReadPhysicalLine();
  std::string ReadLine();
  void CacheSection(const std::string& section);
  std::string Localise(std::string value) const;
  void Write(std::string_view text) { output_.append(text); }

  Messages& messages_;
  char decimalSeparator_;
  std::string path_;
  int mode_ = ModeRead;
  int flag_ = 0;
  bool open_ = false;
  bool simplifiedDump_ = false;

  std::string input_;
  std::size_t position_ = 0;
  std::size_t lineStart_ = 0;  // where the line ReadLine answered last begins
  std::string output_;

  std::vector<CacheEntry> cache_;
  // Positions of the entries of each section, and of each section and key, in
  // cache order, so that a look-up never scans the cache entry by entry.
  std::unordered_map<std::string, std::vector<std::size_t>> sectionEntries_;
  std::unordered_map<std::string, std::vector<std::size_t>> keyEntries_;
  std::size_t cursor_ = 0;  // one past the last section match: 0 is before the first entry
};

}  // namespace tamsic
