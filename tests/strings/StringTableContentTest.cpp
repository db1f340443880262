// The shipped string table: four complete language sets with the same
// numbering, and the English texts that the program's behaviour depends on.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "app/EnglishMessages.h"
#include "app/StringTable.h"
#include "st/STAnswers.h"

namespace tamsic {
namespace {

// The shipped table with the language set, one copy per language.
const StringTable& In(Language language) {
  static const auto tables = [] {
    const StringTable shipped = StringTable::fromFile(StringTable::locate());
    std::vector<StringTable> all(4, shipped);
    for (int code = 0; code < 4; ++code) all[code].setLanguage(static_cast<Language>(code));
    return all;
  }();
  return tables[static_cast<int>(language)];
}

std::string English(int number) { return In(Language::English).text(number); }

TEST(ShippedStrings, AreFoundBesideTheExecutable) {
  const std::filesystem::path found = StringTable::locate();
  EXPECT_EQ(found.parent_path().filename(), "resources");
  EXPECT_NE(found.string(), TAMSIC_SOURCE_DIR "/src/resources/strings.txt")
      << "the build should have copied the table beside the test";
}

// Every translation holds the English numbers, is not a copy of the English,
// and keeps the blanks at the ends of pieces such as " to " that are joined
// with numbers and names, or the joined caption runs words together.
TEST(ShippedStrings, TranslationsMatchTheEnglishNumbersAndBlanks) {
  const auto english = In(Language::English).numbers(Language::English);
  EXPECT_GE(english.size(), 600u);
  EXPECT_LE(english.size(), 1500u);
  for (const Language language : {Language::Portuguese, Language::Spanish, Language::German}) {
    const StringTable& table = In(language);
    ASSERT_EQ(table.numbers(language), english) << "language " << static_cast<int>(language);
    int same = 0;
    for (const int number : english) {
      const std::string text = table.text(number), original = English(number);
      same += text == original;
      EXPECT_EQ(original.front() == ' ', text.front() == ' ') << number << ": \"" << text << '"';
      EXPECT_EQ(original.back() == ' ', text.back() == ' ') << number << ": \"" << text << '"';
    }
    // Names, formulas and words like "OK" legitimately stay as they are.
    EXPECT_LT(same * 8, static_cast<int>(english.size())) << "language " << static_cast<int>(language);
  }
}

// The built-in English is what the command line, the engine and the tests
// say; the table must say the same.
TEST(ShippedStrings, MessageBoxTextsAgreeWithTheBuiltInEnglish) {
  const EnglishMessages builtIn;
  for (int number = 9101; number <= 9199; ++number) EXPECT_EQ(English(number), builtIn.text(number)) << number;
  EXPECT_EQ(English(9126), "") << "9126 has never been a message";
}

// The sensitivity-test checks answer in built-in English, which the table
// must hold word for word to translate them.
TEST(ShippedStrings, SensitivityTestAnswersAgreeWithTheChecks) {
  for (const sttext::Text& text : sttext::kAll) EXPECT_EQ(English(text.number), text.english) << text.number;
  EXPECT_EQ(LocalizedSTAnswer("A function cannot be assigned to MaxAgeRepro.", In(Language::German)),
            "Dieser Variablen kann keine Funktion zugewiesen werden: MaxAgeRepro.");
  EXPECT_EQ(LocalizedSTAnswer("SexRatio: There is an error in the function '=B*(2': Error: ) expected",
                              In(Language::Portuguese)),
            "SexRatio: A função '=B*(2' contém um erro: Error: ) expected");
}

// Pieces that are joined with numbers and names, where a lost or doubled
// blank would show.
TEST(ShippedStrings, JoinedPiecesKeepTheirSpacing) {
  EXPECT_EQ(English(608) + "1" + English(609) + "2", "Mortality From Age 1 to 2");
  EXPECT_EQ(English(610) + "x" + English(611), "SD in x Mortality Due to EV");
  EXPECT_EQ(English(612) + "3", "Annual Mortality After Age 3");
  EXPECT_EQ(English(2018), "Allocate memory for a maximum population size of  ");
  EXPECT_EQ(English(2003), "Obtain supplements from harvests (translocate via the last population) with ");
}

}  // namespace
}  // namespace tamsic
