#include <gtest/gtest.h>

#include "files/STFile.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

class STFileTest : public ::testing::Test {
 protected:
  std::string Written(const STScheme& scheme) {
    clsSaveFile file(recorder.messages);
    file.OpenFile("unused", clsSaveFile::ModeWrite);
    WriteSTScheme(scheme, file);
    return file.WrittenText();
  }
  STScheme Read(const std::string& text, double version = 9.99) {
    clsSaveFile file(recorder.messages);
    file.OpenText(text);
    file.ReadFile();
    STScheme scheme;
    ReadSTScheme(scheme, file, version, recorder.messages);
    return scheme;
  }
  test::MessageRecorder recorder;
};

TEST_F(STFileTest, SchemesAreWrittenInOrderAndReadBack) {
  STScheme scheme;
  scheme.NumItems = 2;
  scheme.Items = {{3, -2, "K low, EV high", {"K_Pop1", "EV", "SexRatio"}, {"500", "=B*2", "50"}},
                  {1, 7, "", {"Monogamous"}, {"true"}}};
  const std::string text = Written(scheme);
  EXPECT_NE(text.find("ST.ItemsVarsList=\"3,1\""), std::string::npos);
  std::size_t at = 0;
  for (const char* key : {"ST.ItemAnalysisIndex_0=", "ST.ItemLabel_0=", "ST.ItemScenarioIndex_0=",
                          "ST.ItemVar_0_0=", "ST.ItemVal_0_0=", "ST.ItemVar_0_1=", "ST.ItemVal_0_1=",
                          "ST.ItemVar_0_2=", "ST.ItemVal_0_2=", "ST.ItemAnalysisIndex_1=",
                          "ST.ItemVar_1_0=", "ST.ItemVal_1_0="}) {
    const auto found = text.find(key, at);
    ASSERT_NE(found, std::string::npos) << key;
    at = found;
  }
  EXPECT_NE(text.find("# Value 2 for the ST Item 0\r\n"), std::string::npos);
  const STScheme back = Read(text);
  ASSERT_EQ(back.NumItems, 2);
  EXPECT_EQ(back.Items[0], scheme.Items[0]);
  EXPECT_EQ(back.Items[1], scheme.Items[1]);
  EXPECT_EQ(back.Items[2], STItem());

  const std::string empty = Written(STScheme());
  EXPECT_EQ(empty, "\r\n[ST Data]\r\nST.NumItems=\"0\"" + std::string(35, ' ') +
                       "# Number of items in the ST Scheme\r\n");
  EXPECT_EQ(Read(empty), STScheme()) << "an empty scheme is one key";
  EXPECT_TRUE(recorder.box.shown.empty());
}

TEST_F(STFileTest, OldFilesCountMortalityAgesFromOne) {
  const std::string text =
      "[ST Data]\r\nST.NumItems=1\r\nST.ItemsVarsList=5\r\nST.ItemAnalysisIndex_0=0\r\n"
      "ST.ItemLabel_0=x\r\nST.ItemScenarioIndex_0=1\r\n"
      "ST.ItemVar_0_0=EVMaleMort_Pop1_Age1\r\nST.ItemVal_0_0=1\r\n"
      "ST.ItemVar_0_1=FemaleMortality_Pop1_Age3\r\nST.ItemVal_0_1=1\r\n"
      "ST.ItemVar_0_2=FemaleMortality_Pop1_Age10\r\nST.ItemVal_0_2=1\r\n"
      "ST.ItemVar_0_3=femaleMortality_Pop1_Age3\r\nST.ItemVal_0_3=1\r\n"
      "ST.ItemVar_0_4=SexRatio\r\nST.ItemVal_0_4=1\r\n";
  EXPECT_EQ(Read(text, 9.5).Items[0].Vars,
            (std::vector<std::string>{"EVMaleMort_Pop1_Age0", "FemaleMortality_Pop1_Age2",
                                      "FemaleMortality_Pop1_Age1-1", "femaleMortality_Pop1_Age3",
                                      "SexRatio"}));
  EXPECT_EQ(Read(text, 9.6).Items[0].Vars[0], "EVMaleMort_Pop1_Age1");
}

// Each damage is reported once and the load goes on with what could be read.
TEST_F(STFileTest, DamagedSectionsAreReported) {
  STScheme back = Read("[ST Data]\r\nST.NumItems=3\r\nST.ItemsVarsList=\"3,1\"\r\n");
  EXPECT_EQ(back.NumItems, 3);
  EXPECT_EQ(back.Items, std::vector<STItem>(4)) << "a count list that disagrees loads no item";
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text, "Error.");

  recorder.box.shown.clear();
  back = Read(
      "[ST Data]\r\nST.NumItems=2.9\r\nST.ItemsVarsList=1,1\r\n"
      "ST.ItemAnalysisIndex_0=2.5\r\nST.ItemLabel_0=a\r\nST.ItemScenarioIndex_0=4.9x\r\n"
      "ST.ItemVar_0_0=v\r\nST.ItemVal_0_0=1\r\n"
      "ST.ItemAnalysisIndex_1=many\r\n");
  EXPECT_EQ(back.NumItems, 2);
  EXPECT_EQ(back.Items[0].AnalysisIndex, 2) << "halves round to the even neighbour";
  EXPECT_EQ(back.Items[0].ScenarioIndex, 4);
  EXPECT_EQ(back.Items[0].Vars, std::vector<std::string>{"v"});
  EXPECT_EQ(back.Items[1], STItem()) << "a bad number ends the section but keeps earlier items";
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_NE(recorder.box.shown[0].text.find("ST.ItemAnalysisIndex_1"), std::string::npos);

  recorder.box.shown.clear();
  EXPECT_EQ(Read("[Other]\r\nx=1\r\n").NumItems, 0);
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text, "Unable to find section ST Data");
}

}  // namespace
}  // namespace tamsic
