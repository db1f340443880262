#include <gtest/gtest.h>

#include "app/StringTable.h"
#include "model/GridLayouts.h"
#include "model/NewScenario.h"
#include "pages/InputChecks.h"
#include "support/FakeEngine.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

class InputChecksTest : public ::testing::Test {
 protected:
  // The first population's cell of the row (or of the column, for grids of one column per population).
  bool Grid(const char* member, std::size_t line, std::string_view text) {
    const Field grid = *FieldByMember(member);
    const std::size_t first = 1;
    const auto [row, col] = PopulationsInColumns(grid) ? std::pair(line, first) : std::pair(first, line);
    return TestGridCell(grid, scenario.GetGrid(grid), row, col, text, recorder.messages, engine);
  }
  bool Box(const char* member, std::string_view text) {
    return TestTextBoxFunctions(*FieldByMember(member), text, "Box", recorder.messages, engine);
  }
  clsScenario scenario = NewScenarioDefaults();
  std::vector<MessageBoxRequest>& shown() { return recorder.box.shown; }
  test::MessageRecorder recorder;
  test::FakeEngine engine;
};

// The bounds of every cell are tried against the engine in InputAgreement;
// here what only the pages do: the percent question, and cells that are not numbers.
TEST_F(InputChecksTest, PercentQuestionAndCellsOfOtherKinds) {
  EXPECT_FALSE(Grid("gridMortFemales", 1, "1"));
  EXPECT_TRUE(shown().empty());
  EXPECT_FALSE(Grid("gridMortFemales", 1, "0.5")) << "questioned, then accepted";
  ASSERT_EQ(shown().size(), 1u);
  EXPECT_EQ(shown()[0].text,
            "Value should be a percent (< 100), but appears to be entered as a proportion (< 1). Is this correct?");
  EXPECT_EQ(shown()[0].buttons, MsgButtons::Ok);
  EXPECT_FALSE(Grid("gridCatastrophes2", 1, "0.5")) << "no percent question above 100";
  EXPECT_TRUE(Grid("gridRepRates3", 1, "abc"));
  EXPECT_EQ(shown().back().text, "Invalid input\r\n\r\nRepRates3, 0, %: the value must be a number");
  EXPECT_EQ(shown().back().icon, MsgIcon::Critical);
  EXPECT_TRUE(Grid("gridDegMonop", 2, "=N")) << "only the first row takes functions";
  EXPECT_FALSE(Grid("gridPopLabels", 1, "=not a function")) << "labels take any text";
  EXPECT_TRUE(Grid("gridCatastrophes1", 1, "Everywhere"));
  EXPECT_FALSE(Grid("gridCatastrophes1", 1, "Global"));
  EXPECT_EQ(shown().size(), 4u);
}

TEST_F(InputChecksTest, FunctionsGoToTheEngineAndFilesDoNot) {
  EXPECT_FALSE(Grid("gridMortMales", 1, "=N/K"));
  EXPECT_FALSE(Grid("gridMortMales", 1, "file=rates.txt"));
  EXPECT_EQ(engine.formulas, std::vector<std::string>{"=N/K"});
  engine.judge = [](const std::string&) { return std::string("Error: unknown name QQ at character 2"); };
  EXPECT_TRUE(Grid("gridMortMales", 1, "=QQ"));
  ASSERT_EQ(shown().size(), 1u);
  EXPECT_EQ(shown()[0].text, "Error: unknown name QQ at character 2");
  EXPECT_EQ(shown()[0].caption, "Warning!");
  engine.unavailable = true;
  EXPECT_FALSE(Grid("gridMortMales", 1, "=N")) << "kept to be checked when it runs";
  EXPECT_EQ(shown().back().text.rfind("Unable to run simulation\r\n\r\n", 0), 0u);
}

TEST_F(InputChecksTest, TextBoxes) {
  EXPECT_FALSE(Box("txtSexRatio", "50"));
  EXPECT_FALSE(Box("txtSexRatio", ""));
  EXPECT_TRUE(Box("txtSexRatio", "-1"));
  EXPECT_TRUE(Box("txtSexRatio", "101"));
  EXPECT_TRUE(Box("txtSexRatio", "lots"));
  EXPECT_TRUE(Box("txtNumYear", "=Y")) << "a count takes no function";
  EXPECT_TRUE(Box("txtNumIter", "12.5"));
  ASSERT_EQ(shown().size(), 5u);
  EXPECT_EQ(shown()[0].text, "Box: the value must be at least 0.");
  EXPECT_EQ(shown()[1].text, "Box: the value must be at most 100.");
  EXPECT_EQ(shown()[2].text, "Box: the value must be a number, a function (=...) or a file reference (file=...).");
  EXPECT_EQ(shown()[3].text, "Box: the value must be a number.");
  EXPECT_EQ(shown()[4].text, "Box: the value must be a whole number.");
  EXPECT_FALSE(Box("txtSexRatio", "=D*(1-N/K)"));
  EXPECT_FALSE(Box("txtEV", "-0.5")) << "populations may be negatively correlated";
  EXPECT_FALSE(Box("txtSceneName", "anything at all"));

  EXPECT_EQ(WholeNumberProblem(F("txtAgeReproF"), "2.5"), msg::kWholeAgeOfReproduction);
  EXPECT_EQ(WholeNumberProblem(F("txtMaxLitters"), "1.5"), msg::kWholeBroods);
  EXPECT_EQ(WholeNumberProblem(F("txtMaxAgeRepro"), "12"), std::nullopt);

  shown().clear();
  EXPECT_FALSE(TestDispersalAges("2", "2", recorder.messages));
  EXPECT_TRUE(TestDispersalAges("3", "2", recorder.messages));
  ASSERT_EQ(shown().size(), 1u);
  EXPECT_EQ(shown()[0].text, "The lower age for dispersal must be less than the upper age for dispersal");
}

// A page words a refused value wholly in the user's language: the grid's
// caption, the heading and the cause; the population's label is the user's own.
TEST_F(InputChecksTest, RefusalsAreWordedInTheUsersLanguage) {
  StringTable german = StringTable::fromFile(StringTable::locate());
  german.setLanguage(Language::German);
  Messages messages{recorder.box, german};
  const Field mortality = F("gridMortFemales");
  EXPECT_TRUE(TestGridCell(mortality, scenario.GetGrid(mortality), 1, 3, "500", messages, engine));
  EXPECT_FALSE(TestGridCell(mortality, scenario.GetGrid(mortality), 1, 1, "0.5", messages, engine));
  EXPECT_TRUE(TestTextBoxFunctions(F("txtSexRatio"), "lots", "Geschlechterverhältnis", messages, engine));
  ASSERT_EQ(shown().size(), 3u);
  EXPECT_EQ(shown()[0].text, "Ungültige Eingabe\r\n\r\nWeibchen, Population 1, Sterblichkeit im Alter von 1 bis 2: "
                             "der größte zulässige Wert ist 100");
  EXPECT_EQ(shown()[1].text.rfind("Der Wert sollte ein Prozentsatz sein", 0), 0u);
  EXPECT_EQ(shown()[2].text, "Geschlechterverhältnis: der Wert muss eine Zahl, eine Funktion (=...) oder ein Verweis "
                             "auf eine Datei (file=...) sein.");
}

TEST_F(InputChecksTest, ExactDistributionSumsToOneHundred) {
  tamsic::Grid distribution(5, 2);
  distribution.at(1, 1) = "10";
  distribution.at(2, 1) = "25.5";
  distribution.at(3, 1) = "";
  EXPECT_EQ(ExactDistributionRemainder(distribution), "64.50");
}

}  // namespace
}  // namespace tamsic
