// The shipped string table: four complete language sets with the same
// numbering, and the English texts that the program's behaviour depends on.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "app/EnglishMessages.h"
#include "app/StringTable.h"

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
  EXPECT_LE(english.size(), 750u);
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

TEST(ShippedStrings, EveryWindowBlockIsPresent) {
  const int firstEntries[] = {0,    100,  200,  300,  400,  500,  600,  700,  800,  900,
                              1000, 1100, 1200, 1300, 1400, 1500, 1600, 1700, 1800, 1900,
                              2000, 3000, 4001, 5000, 6000, 7000, 8000, 8100, 8200, 8300,
                              8400, 8500, 8600, 9000, 9100};
  for (const int number : firstEntries) EXPECT_NE(English(number), "") << number;
}

TEST(ShippedStrings, MessageBoxTextsAgreeWithTheBuiltInEnglish) {
  const EnglishMessages builtIn;
  for (int number = 9101; number <= 9149; ++number) {
    if (number == 9126) {
      EXPECT_EQ(English(number), "") << "9126 has never been a message";
      EXPECT_EQ(builtIn.text(number), "");
      continue;
    }
    EXPECT_NE(English(number), "") << number;
    EXPECT_EQ(English(number), builtIn.text(number)) << number;
  }
  EXPECT_EQ(English(9112) + "x.out" + English(9113) + "Baseline",
            "The file 'x.out' does not exist.  You probably have not run 'Baseline");
}

TEST(ShippedStrings, GermanMessage9110IsGerman) {
  EXPECT_EQ(In(Language::German).text(9110), "Simulation konnte nicht ausgeführt werden");
}

// Texts that are joined with numbers or names, or that users know by heart.
const std::vector<std::pair<int, std::string>> kExactEnglish = {
    {0, "Scenario Settings"},
    {100, "Species Description"},
    {200, "Labels and State Vars."},
    {300, "Dispersal"},
    {400, "Reproductive System"},
    {500, "Reproductive Rates"},
    {600, "Mortality Rates"},
    {700, "Catastrophes"},
    {800, "Mate Monopolization"},
    {900, "Initial Population Size"},
    {1000, "Carrying Capacity"},
    {1100, "Harvest"},
    {1200, "Supplementation"},
    {1300, "Genetic Management"},
    {301, "Enter a multiplier if you wish to shift all off-diagonal rates in the table up or down"},
    {305, "Enter a value to be placed into all off-diagonal cells of the dispersal matrix"},
    {306, "Click here to insert the value into all off-diagonal cells of the dispersal matrix"},
    {308, "Click here to apply the multiplier to all off-diagonal values in the rate matrix"},
    {319, "Import Rate Matrix"},
    {320, "Export Rate Matrix"},
    {321, "Apply Multiplier of"},
    {322, "Fill Matrix with"},
    {425, "% Breeding at Low Density, P(0)"},
    {426, "% Breeding at Carrying Capacity, P(K)"},
    {427, "Allee Parameter, A"},
    {428, "Steepness Parameter, B"},
    {520, "Distribution of offspring per brood"},
    {605, "Copy from Females"},
    {608, "Mortality From Age "},
    {609, " to "},
    {610, "SD in "},
    {611, " Mortality Due to EV"},
    {612, "Annual Mortality After Age "},
    {613, "SD in Mortality After Age "},
    {709, "Global/Local"},
    {710, "Frequency %"},
    {715, "Enter optional labels for each catastrophe"},
    {1114, "Population Harvested?"},
    {1115, "First Year of Harvest"},
    {1116, "Last Year of Harvest"},
    {1117, "Interval Between Harvests"},
    {1118, "Optional Criterion for Harvest"},
    {1324, "This section"},
    {1325, "All sections"},
    {1400, "---- Toolbars and Tabs ---"},
    {1401, "Create a new project"},
    {1402, "Open an existing project"},
    {1403, "Save the current project"},
    {1404, "Cut"},
    {1405, "Copy"},
    {1406, "Paste"},
    {1407, "Print Report"},
    {1408, "Get Help"},
    {1409, "What is this?"},
    {1410, "Input Notes"},
    {1411, "Function editor"},
    {1412, "Run Simulation"},
    {1500, "Function Preview"},
    {1600, "Tamsic Help"},
    {1618, "to subsequent populations."},
    {1619, "Copy Input Values from"},
    {1700, "Project Settings"},
    {1800, "Text Output"},
    {1900, "Graphs and Tables"},
    {2000, "Special Options"},
    {2001, "Show symbols on graphs of simulation runs"},
    {2002, "Do not show graphs during iterations"},
    {2003, "Obtain supplements from harvests (translocate via the last population) with "},
    {2004, "percent survival during translocation"},
    {2005, "Do not include last population in metapopulation tally"},
    {2006, "Prevent individuals from dispersing into saturated populations"},
    {2007, "Define extinction as a decline in population size"},
    {2008, "Produce a file with the census each year of the first nn iterations"},
    {2009, "Produce a file of all living individuals at the end of each iteration"},
    {2013, "Additional, undocumented codes:"},
    {2014, "Help"},
    {2015, "OK"},
    {2016, "Cancel"},
    {2018, "Allocate memory for a maximum population size of  "},
    {2019, "rather than having Tamsic try to calculate the maximum possible N"},
    {2020, "Produce a file of all individuals created in each iteration"},
    {4001, "Function >"},
    {4003, "Show this dialog when pressing '=' in data entry"},
    {4004, "Show Polish Notation"},
    {4005, "Update Graph"},
    {4006, "From"},
    {4007, "To"},
    {4008, "Increment"},
    {4011, "Variables detected in the formula"},
    {5000, "Basic project data"},
    {6000, "New Scenario"},
    {6001, "Which scenario do you want to use as the template?"},
    {6003, "Create"},
    {6004, "scenarios based on the template selected above"},
    {7000, "Project Notes"},
    {8000, "--frmScenarios--"},
    {8100, "Global Program Settings"},
    {8200, "--frmSimRun--"},
    {8300, "Specify"},
    {8400, "--frmSplash--"},
    {8600, "--frmSTSetup--"},
    {9000, "--mdiMain--"},
    {9001, "Tamsic"},
    {9003, "New Project ..."},
    {9004, "Open Project ..."},
    {9005, "Close Project"},
    {9006, "Save"},
    {9007, "Save As"},
    {9008, "Tamsic Properties ..."},
    {9009, "Print"},
    {9010, "Exit"},
    {9012, "Run Simulation"},
    {9013, "Set Language"},
    {9014, "English"},
    {9015, "Spanish"},
    {9016, "Portuguese"},
    {9017, "German"},
    {9019, "Cascade"},
    {9020, "Tile Horizontally"},
    {9021, "Tile Vertically"},
    {9022, "Arrange Icons"},
    {9024, "Contents"},
    {9025, "Context Sensitive ..."},
    {9026, "About Tamsic for Windows ..."},
    {9100, "--Message Boxes--"},
};

TEST(ShippedStrings, FixedEnglishTextsAreExact) {
  for (const auto& [number, text] : kExactEnglish) EXPECT_EQ(English(number), text) << number;
}

// Hints that state a limit carry it word for word inside a longer explanation.
TEST(ShippedStrings, LimitHintsQuoteTheLimit) {
  const std::vector<std::pair<int, std::string>> limits = {
      {3, "max=2000"},
      {7, "1-50"},
      {102, "mammalian median = 3.14"},
      {103, "max # Lethal equivalents x Percent due to lethals = 10"},
      {203, "max = 10"},
      {233, "max = 10"},
      {237, "max = 10"},
      {903, "max size with any later increments=30000"},
      {1003, "Maximum K is 30000"},
      {1004, "Be careful! If SD > K/3, then in sporadic years K could hit 0 and cause immediate "
             "extinction"},
  };
  for (const auto& [number, limit] : limits) {
    EXPECT_NE(English(number).find(limit), std::string::npos) << number << ": " << English(number);
  }
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
