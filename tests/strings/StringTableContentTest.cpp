// The shipped string table: four complete language sets with the same
// numbering, and the English texts that the program's behaviour depends on.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "app/EnglishMessages.h"
#include "app/StringTable.h"
#include "st/STAnswers.h"

namespace tamsic {
namespace {

constexpr Language kLanguages[] = {Language::Portuguese, Language::English, Language::Spanish,
                                   Language::German};

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

const StringTable& Shipped() { return In(Language::English); }

std::string English(int number) { return Shipped().text(number); }

TEST(ShippedStrings, AreFoundBesideTheExecutable) {
  const std::filesystem::path found = StringTable::locate();
  EXPECT_EQ(found.parent_path().filename(), "resources");
  EXPECT_NE(found.string(), TAMSIC_SOURCE_DIR "/src/resources/strings.txt")
      << "the build should have copied the table beside the test";
}

TEST(ShippedStrings, EveryLanguageHasTheSameNumbers) {
  const auto english = Shipped().numbers(Language::English);
  EXPECT_GE(english.size(), 600u);
  EXPECT_LE(english.size(), 1500u);
  for (const Language language : kLanguages) {
    EXPECT_EQ(Shipped().numbers(language), english) << "language " << static_cast<int>(language);
  }
}

TEST(ShippedStrings, TranslationsAreNotCopiesOfTheEnglish) {
  for (const Language language : {Language::Portuguese, Language::Spanish, Language::German}) {
    const StringTable& translated = In(language);
    int same = 0;
    const auto numbers = Shipped().numbers(language);
    for (const int number : numbers) {
      if (translated.text(number) == English(number)) ++same;
    }
    // Names, formulas and words like "OK" legitimately stay as they are.
    EXPECT_LT(same * 8, static_cast<int>(numbers.size()))
        << "language " << static_cast<int>(language);
  }
}

// The built-in English is what the command line, the engine and the tests
// say; the table must say the same.
TEST(ShippedStrings, MessageBoxTextsAgreeWithTheBuiltInEnglish) {
  const EnglishMessages builtIn;
  for (int number = 9101; number <= 9199; ++number) EXPECT_EQ(English(number), builtIn.text(number)) << number;
  EXPECT_EQ(English(9126), "") << "9126 has never been a message";
  EXPECT_NE(English(9171), "");
  EXPECT_EQ(English(9112) + "x.out" + English(9113) + "Baseline",
            "The file 'x.out' does not exist.  You probably have not run 'Baseline");
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

// Pieces such as " to " are joined with numbers and names: a translation must
// keep the blanks at the ends, or the joined caption runs words together.
TEST(ShippedStrings, TranslationsKeepTheBlanksAtTheEnds) {
  for (const Language language : {Language::Portuguese, Language::Spanish, Language::German}) {
    const StringTable& table = In(language);
    for (const int number : table.numbers(language)) {
      const std::string english = English(number);
      const std::string text = table.text(number);
      EXPECT_EQ(english.front() == ' ', text.front() == ' ') << number << ": \"" << text << '"';
      EXPECT_EQ(english.back() == ' ', text.back() == ' ') << number << ": \"" << text << '"';
    }
  }
}

}  // namespace
}  // namespace tamsic
