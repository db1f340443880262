#include "files/ProjectSignature.h"

#include <fstream>
#include <sstream>

#include "files/AtomicFile.h"
#include "files/TextCodec.h"

namespace tamsic {

std::optional<std::string> SignatureVersion(const std::string& firstLine) {
  std::istringstream words(firstLine);
  std::string word;
  if (!(words >> word) || !(words >> word)) return std::nullopt;
  if (word.compare(0, 5, "TPSIG") != 0) return std::nullopt;
  // The version is the four characters that end at the eleventh of the line.
  return firstLine.size() >= 11 ? firstLine.substr(7, 4) : firstLine.substr(std::min<std::size_t>(7, firstLine.size()));
}

std::optional<std::string> IsTamsicProject(const std::string& path, Messages& messages) {
  if (!FileExists(path)) {
    messages.show(messages.text(msg::kProjectDoesNotExist), msg::kWarning, MsgIcon::Critical);
    return std::nullopt;
  }
  std::ifstream file(path, std::ios::binary);
  std::string firstLine;
  std::getline(file, firstLine);
  if (!firstLine.empty() && firstLine.back() == '\r') firstLine.pop_back();
  return SignatureVersion(std::string(WithoutByteOrderMark(firstLine)));
}

}  // namespace tamsic
