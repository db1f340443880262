// Every message number the programs ask for must exist in every language.
// The sources are scanned, so a number added to the code without its texts
// fails here rather than showing an empty message box.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "app/StringTable.h"

namespace tamsic {
namespace {

namespace fs = std::filesystem;

std::string ReadAll(const fs::path& path) {
  std::ifstream in(path);
  return {std::istreambuf_iterator<char>(in), {}};
}

// The named constants of namespace msg in Messages.h.
std::map<std::string, int> NamedMessages() {
  const std::string header = ReadAll(fs::path(TAMSIC_SOURCE_DIR) / "src/model/Messages.h");
  const auto start = header.find("namespace msg");
  const auto end = header.find("}  // namespace msg");
  const std::string block = header.substr(start, end - start);
  const std::regex constant(R"(constexpr\s+int\s+(k\w+)\s*=\s*(\d+)\s*;)");
  std::map<std::string, int> named;
  for (std::sregex_iterator it(block.begin(), block.end(), constant), last; it != last; ++it)
    named[(*it)[1]] = std::stoi((*it)[2]);
  return named;
}

// Message numbers used in the sources: msg:: constants, and literal numbers
// looked up in an object named for strings, messages or a table (so that a
// widget's item->text(0) is not taken for a message number).
std::map<int, std::string> UsedNumbers(const std::map<std::string, int>& named) {
  const std::regex byName(R"(msg::(k\w+))");
  const std::regex literal(
      R"(\w*(?:[Ss]trings?|[Mm]essages?|[Tt]able)\w*\s*(?:\.|->)\s*text\s*\(\s*(\d{1,4})\s*\))");
  const std::regex literalCaption(R"(\bshow\([^;]*?,\s*(\d{1,4})\s*,\s*MsgIcon::)");
  std::map<int, std::string> used;
  for (const auto& value : named) used[value.second] = "src/model/Messages.h";
  for (const char* root : {"src", "cli"}) {
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(TAMSIC_SOURCE_DIR) / root)) {
      if (const auto extension = entry.path().extension(); extension != ".cpp" && extension != ".h") continue;
      const std::string source = ReadAll(entry.path());
      const std::string where = entry.path().lexically_relative(TAMSIC_SOURCE_DIR).string();
      for (std::sregex_iterator it(source.begin(), source.end(), byName), last; it != last; ++it) {
        const auto found = named.find((*it)[1]);
        if (found == named.end()) ADD_FAILURE() << where << " uses unknown msg::" << (*it)[1];
        else used.emplace(found->second, where);
      }
      for (const auto* pattern : {&literal, &literalCaption})
        for (std::sregex_iterator it(source.begin(), source.end(), *pattern), last; it != last; ++it)
          used.emplace(std::stoi((*it)[1]), where);
    }
  }
  return used;
}

TEST(MessageNumbersUsed, ExistInEveryLanguage) {
  const auto named = NamedMessages();
  ASSERT_TRUE(named.count("kUnableToRunSimulation")) << "the scan of Messages.h found nothing";
  const auto used = UsedNumbers(named);
  StringTable table = StringTable::fromFile(StringTable::locate());
  for (const Language language : {Language::Portuguese, Language::English, Language::Spanish, Language::German}) {
    const auto present = table.numbers(language);
    for (const auto& [number, where] : used) {
      EXPECT_TRUE(present.count(number))
          << "message " << number << " used in " << where << " is missing in language "
          << static_cast<int>(language);
    }
  }
}

}  // namespace
}  // namespace tamsic
