#include "files/clsSaveFile.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "files/AtomicFile.h"
#include "files/TextCodec.h"
#include "model/Errors.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

constexpr std::string_view kCrLf = "\r\n";
constexpr char kBackQuote = '`';
constexpr char kOldColon = static_cast<char>(252);
constexpr char kOldSemicolon = static_cast<char>(253);

std::string KeyOf(std::string_view line) {
  const auto equals = line.find('=');
  return equals == std::string_view::npos ? std::string() : std::string(Trim(line.substr(0, equals)));
}

std::string ValueOf(std::string_view line) {
  const auto equals = line.find('=');
  std::string_view value = equals == std::string_view::npos ? line : line.substr(equals + 1);
  value = value.substr(0, value.find('#'));
  return clsSaveFile::ProcessInput(value);
}

std::string SectionName(std::string_view header) {
  if (!header.empty() && header.front() == '[') header.remove_prefix(1);
  if (!header.empty() && header.back() == ']') header.remove_suffix(1);
  return std::string(Trim(header));
}

std::string IndexKey(std::string_view section, std::string_view key) {
  std::string joined(section);
  joined += '\0';
  joined += key;
  return joined;
}

// The first position at or after `from` in an ascending list, or npos.
std::size_t FirstFrom(const std::vector<std::size_t>& positions, std::size_t from) {
  const auto it = std::lower_bound(positions.begin(), positions.end(), from);
  return it == positions.end() ? std::string::npos : *it;
}

template <typename Map>
const std::vector<std::size_t>* Lookup(const Map& map, const std::string& key) {
  const auto it = map.find(key);
  return it == map.end() ? nullptr : &it->second;
}

}  // namespace

clsSaveFile::clsSaveFile(Messages& messages, char decimalSeparator)
    : messages_(messages), decimalSeparator_(decimalSeparator) {}

bool clsSaveFile::OpenFile(const std::string& path, int mode, int flag) {
  path_ = path;
  mode_ = mode;
  flag_ = flag;
  input_.clear();
  output_.clear();
  position_ = 0;
  if (mode == ModeWrite) {
    open_ = true;
    return true;
  }
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    if (!FileExists(path)) return false;
    throw FileError("Cannot read " + Cp1252ToUtf8(path) + ": " + LastSystemError());
  }
  std::ostringstream bytes;
  bytes << file.rdbuf();
  if (file.bad()) throw FileError("Cannot read " + Cp1252ToUtf8(path) + ": " + LastSystemError());
  input_ = std::move(bytes).str();
  input_.erase(0, input_.size() - WithoutByteOrderMark(input_).size());
  open_ = true;
  return true;
}

void clsSaveFile::OpenText(std::string text) {
  path_.clear();
  mode_ = ModeRead;
  input_ = std::move(text);
  input_.erase(0, input_.size() - WithoutByteOrderMark(input_).size());
  position_ = 0;
  open_ = true;
}

void clsSaveFile::CloseFile() {
  if (!open_) return;
  open_ = false;
  if (mode_ == ModeWrite) WriteFileReplacing(path_, output_);
}

std::string_view clsSaveFile::ReadPhysicalLine() {
  const auto end = input_.find('\n', position_);
  const std::size_t stop = end == std::string::npos ? input_.size() : end;
  std::string_view line(input_.data() + position_, stop - position_);
  position_ = end == std::string::npos ? input_.size() : end + 1;
  return line;
}

std::string clsSaveFile::ReadLine() {
  while (!AtEndOfFile()) {
    lineStart_ = position_;
    const std::string_view line = Trim(ReadPhysicalLine());
    if (!line.empty() && line.front() != '#') return std::string(line);
  }
  return {};
}

std::string clsSaveFile::GotoNextSection() {
  while (!AtEndOfFile()) {
    const std::string line = ReadLine();
    if (!line.empty() && line.front() == '[') return SectionName(line);
  }
  return {};
}

std::string clsSaveFile::GotoSection(std::string_view name) {
  ResetPosition();
  while (!AtEndOfFile()) {
    const std::string line = ReadLine();
    if (!line.empty() && line.front() == '[' && SectionName(line) == name) return line;
  }
  return {};
}

void clsSaveFile::ReadFile() {
  if (mode_ != ModeRead) return;
  ResetPosition();
  while (!AtEndOfFile()) {
    const std::string section = GotoNextSection();
    if (section.empty()) break;
    CacheSection(section);
  }
}

void clsSaveFile::CacheSection(const std::string& section) {
  while (!AtEndOfFile()) {
    const std::string line = ReadLine();
    if (line.empty()) continue;
    if (line.front() == '[') {
      // Step back so that the next GotoNextSection sees this header.
      position_ = lineStart_;
      return;
    }
    const std::size_t at = cache_.size();
    cache_.push_back({section, KeyOf(line), ValueOf(line)});
    sectionEntries_[section].push_back(at);
    keyEntries_[IndexKey(section, cache_.back().key)].push_back(at);
  }
}

bool clsSaveFile::FindSectionInCache(std::string_view section) {
  const auto* positions = Lookup(sectionEntries_, std::string(section));
  if (!positions) return false;
  const std::size_t found = FirstFrom(*positions, cursor_);
  if (found == std::string::npos) return false;
  cursor_ = found + 1;
  return true;
}

std::string clsSaveFile::GetEntryCache(std::string_view key, std::string_view section, bool decode,
                                       bool localise) {
  if (!FindSectionInCache(section)) {
    const std::string text = messages_.text(msg::kUnableToFindSection) + Cp1252ToUtf8(section);
    messages_.show(text, msg::kError, MsgIcon::Critical);
    throw TamsicError(kErrMissingSection, "GetEntryCache",
                      "Unable to find section " + Cp1252ToUtf8(section));
  }
  const auto* positions = Lookup(keyEntries_, IndexKey(section, key));
  const std::size_t found = positions ? FirstFrom(*positions, cursor_ - 1) : std::string::npos;
  if (found == std::string::npos) return {};
  std::string value = cache_[found].value;
  if (decode) value = DecodeCell(value);
  if (localise) value = Localise(std::move(value));
  return value;
}

std::string clsSaveFile::Localise(std::string value) const {
  const char from = decimalSeparator_ == ',' ? '.' : ',';
  std::replace(value.begin(), value.end(), from, decimalSeparator_ == ',' ? ',' : '.');
  return value;
}

void clsSaveFile::FillArray(std::string_view text, Grid& target) {
  if (text.empty() || text.front() != '{' || text.back() != '}') return;
  text = text.substr(1, text.size() - 2);
  if (text.empty()) {
    target = Grid();
    return;
  }
  const auto rows = Split(text, ':');
  auto cellCount = [](std::string_view row) { return std::count(row.begin(), row.end(), ';') + 1; };
  const auto columns = static_cast<std::size_t>(cellCount(rows.front()));
  // Rows up to the first ragged one are kept. Counting them first keeps a
  // damaged file from sizing a table far larger than the text it came from.
  std::size_t whole = 0;
  while (whole < rows.size() && static_cast<std::size_t>(cellCount(rows[whole])) == columns) ++whole;
  target = Grid(whole, columns);
  for (std::size_t r = 0; r < whole; ++r) {
    const auto cells = Split(rows[r], ';');
    for (std::size_t c = 0; c < columns; ++c) target.at(r, c) = DecodeCell(ProcessInput(cells[c]));
  }
  if (whole < rows.size())
    messages_.show(messages_.text(msg::kProblemWithData) + "\r\n\r\n" +
                       messages_.text(msg::kModifiedManually),
                   msg::kWarning, MsgIcon::Critical);
}

void clsSaveFile::SaveEntry(std::string_view key, std::string_view value, std::string_view comment,
                            bool formatted) {
  if (simplifiedDump_) {
    Write(formatted ? ProcessOutput(value) : std::string(value));
    Write(kCrLf);
    return;
  }
  const std::string linear = LinearizeText(value);
  const std::string_view trimmedKey = Trim(key);
  if (trimmedKey.empty()) return;
  std::string line(trimmedKey);
  line += '=';
  line += formatted ? EncodeCell(ProcessOutput(linear)) : std::string(Trim(linear));
  const std::string_view trimmedComment = Trim(comment);
  if (!trimmedComment.empty()) {
    if (line.size() < kCommentColumn) {
      line.resize(kCommentColumn, ' ');
      line += "# ";
    } else {
      line += " # ";
    }
    line += trimmedComment;
  }
  Write(line);
  Write(kCrLf);
}

void clsSaveFile::StartSection(std::string_view name, bool blankLineBefore) {
  if (simplifiedDump_) return;
  if (blankLineBefore) Write(kCrLf);
  Write("[");
  Write(name);
  Write("]");
  Write(kCrLf);
}

void clsSaveFile::WriteComment(std::string_view text) {
  if (simplifiedDump_) return;
  Write("# ");
  Write(text);
  Write(kCrLf);
}

void clsSaveFile::SkipLines(int count) {
  for (int i = 0; i < count; ++i) Write(kCrLf);
}

std::string clsSaveFile::GridBufferToString(const Grid& grid) const {
  std::string out;
  if (simplifiedDump_) {
    for (std::size_t r = 0; r < grid.rows(); ++r)
      for (std::size_t c = 0; c < grid.cols(); ++c) {
        if (!out.empty()) out += kCrLf;
        out += ProcessOutput(grid.at(r, c));
      }
    return out;
  }
  out += '{';
  for (std::size_t r = 0; r < grid.rows(); ++r) {
    if (r > 0) out += ": ";
    for (std::size_t c = 0; c < grid.cols(); ++c) {
      if (c > 0) out += ';';
      out += EncodeCell(ProcessOutput(grid.at(r, c)));
    }
  }
  out += '}';
  return out;
}

std::string clsSaveFile::StripChars(std::string_view text, char first, char last) {
  if (text.size() >= 2 && text.front() == first && text.back() == last)
    return std::string(text.substr(1, text.size() - 2));
  return std::string(text);
}

std::string clsSaveFile::PutChars(std::string_view text, char c) {
  std::string out(1, c);
  out += text;
  out += c;
  return out;
}

std::string clsSaveFile::ProcessInput(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  if (trimmed == "Empty") return {};
  return StripChars(trimmed, '"', '"');
}

std::string clsSaveFile::ProcessOutput(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  if (trimmed.empty()) return "Empty";
  return PutChars(trimmed, '"');
}

std::string clsSaveFile::LinearizeText(std::string_view text) {
  std::string out(text);
  std::replace(out.begin(), out.end(), '\n', ' ');
  std::replace(out.begin(), out.end(), '\r', ' ');
  return out;
}

std::string clsSaveFile::EncodeCell(std::string_view text) {
  std::string out(text);
  for (char& c : out)
    if (c == ':' || c == ';') c = kBackQuote;
  return out;
}

// The file keeps no difference between ":" and ";". In a function (a text
// that begins with "=") the only use of either is between arguments, where
// the user types ";", so that is what a function reads back.
std::string clsSaveFile::DecodeCell(std::string_view text) {
  std::string out(text);
  if (out.find_first_of("`\xFC\xFD") == std::string::npos) return out;
  const char separator = out.starts_with('=') ? ';' : ':';
  for (char& c : out) {
    if (c == kOldColon || c == kBackQuote) c = separator;
    else if (c == kOldSemicolon) c = ';';
  }
  return out;
}

std::string clsSaveFile::ArrayToString(const std::vector<std::vector<std::string>>& rows,
                                       bool oneDimensional) {
  std::string out = "{";
  const std::size_t rowCount = oneDimensional ? std::min<std::size_t>(rows.size(), 1) : rows.size();
  for (std::size_t r = 0; r < rowCount; ++r) {
    if (r > 0) out += ": ";
    for (std::size_t c = 0; c < rows[r].size(); ++c) {
      if (c > 0) out += "; ";
      out += EncodeCell(ProcessOutput(rows[r][c]));
    }
  }
  out += '}';
  return out;
}

std::string clsSaveFile::ListboxToString(const std::vector<std::string>& items) {
  std::string out = "{";
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) out += ", ";
    out += ProcessOutput(items[i]);
  }
  out += '}';
  return out;
}

std::vector<std::string> clsSaveFile::StringToListbox(std::string_view text) {
  const std::string inner = StripChars(Trim(text), '{', '}');
  std::vector<std::string> items;
  if (Trim(inner).empty()) return items;
  for (std::string_view piece : Split(inner, ',')) items.push_back(ProcessInput(piece));
  return items;
}

}  // namespace tamsic
