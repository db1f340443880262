#include <gtest/gtest.h>

#include <fstream>

#include "engine/OutputFiles.h"
#include "engine/RunList.h"
#include "files/OutputNames.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

TEST(RunList, SeparatorFollowsThePositionInTheWholeList) {
  // A and C of three: no trailing separator, C being the last entry.
  RunList list = BuildRunList({{"A", true}, {"B", false}, {"C", true}});
  EXPECT_EQ(list.count, 2);
  EXPECT_EQ(list.names, "A, C");
  EXPECT_EQ(list.checked, (std::vector<std::size_t>{0, 2}));
  // The last entry unchecked leaves ", " behind, for the run call to strip.
  EXPECT_EQ(BuildRunList({{"A", true}, {"B", true}, {"C", false}}).names, "A, B, ");
  EXPECT_EQ(BuildRunList({{"  Padded ", true}}).names, "Padded");
  list = BuildRunList({{"A", false}, {"B", false}});
  EXPECT_EQ(list.count, 0);
  EXPECT_EQ(list.names, "");
}

TEST(RunList, ProgressAndTimeLeft) {
  const auto progress = ParseProgress("120;500");
  ASSERT_TRUE(progress);
  EXPECT_EQ(progress->done, 120);
  EXPECT_EQ(progress->total, 500);
  EXPECT_DOUBLE_EQ(*SecondsLeft(*progress, 12.0), 38.0);
  EXPECT_FALSE(SecondsLeft({0, 500}, 3.0));
  for (const char* bad : {"0;0", "", "12", "a;5", "5;", "1;2;3", "-1;5"}) EXPECT_FALSE(ParseProgress(bad)) << bad;
}

TEST(OutputFiles, NamesArePartsTrimmed) {
  EXPECT_EQ(ScenarioOutputFile("/w", " Koalas ", " Base ", ScenarioOutput::YearlyData), "/w/Koalas_Base.dat");
  EXPECT_EQ(ScenarioOutputFile("/w", "P", "S", ScenarioOutput::InputReport), "/w/P_S.inp");
  EXPECT_EQ(ScenarioOutputFile("/w", "P", "S", ScenarioOutput::RunTable), "/w/P_S.run");
  EXPECT_EQ(SummaryFile("/w", "P "), "/w/P.sum");
}

TEST(OutputFiles, NoTitleOrNameLeavesTheFolder) {
  EXPECT_EQ(FileNamePart(" ../x "), "_._x");
  EXPECT_EQ(FileNamePart("/abs/x"), "_abs_x");
  EXPECT_EQ(FileNamePart("a\\b:c*?\"<>|\x01\x7F"), "a_b_c________");
  EXPECT_EQ(FileNamePart("Koalas v1.2..."), "Koalas v1.2__.");
  const std::filesystem::path folder = "/w/project";
  const char* hostile[] = {"..", "../..", "/", "/etc/passwd", "a/../../b", "..\\..\\x", "\n..", ".", " ", ""};
  for (const char* title : hostile)
    for (const char* name : hostile)
      for (auto kind : {ScenarioOutput::YearlyData, ScenarioOutput::InputReport}) {
        const auto file = ScenarioOutputFile(folder, title, name, kind);
        EXPECT_EQ(file.parent_path(), folder) << title << " / " << name;
        EXPECT_EQ(file.lexically_normal().parent_path(), folder) << title << " / " << name;
        EXPECT_EQ(SummaryFile(folder, title).lexically_normal().parent_path(), folder) << title;
      }
}

TEST(OutputFiles, PruningDropsEveryLineOfTheScenarioAndNothingElse) {
  test::TestFolder folder;
  const auto summary = SummaryFile(folder.path(), "P");
  std::ofstream(summary, std::ios::binary) << "$Scenario;Years\r\nBase;100\r\n  Base ;50\r\nbase;7\r\n\r\nHarvest;100\r\n";
  PruneSummary(folder.path(), "P", " Base");
  EXPECT_EQ(test::ReadAll(summary), "$Scenario;Years\r\nbase;7\r\nHarvest;100\r\n");
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "P.sub"));
  // No summary: nothing happens, nothing is made.
  PruneSummary(folder.path(), "Q", "Base");
  EXPECT_FALSE(std::filesystem::exists(SummaryFile(folder.path(), "Q")));
}

TEST(OutputFiles, TableFilesSkipHeadingsAndBlankLinesAndWidenToTheLongestRecord) {
  test::TestFolder folder;
  const auto file = folder.path() / "P_S.run";
  std::ofstream(file, std::ios::binary) << "$Iteration;Population\r\n1; 1 ;0\r\n$ a comment\r\n   \r\n2;1;0;55;extra\r\n3\r\n";
  const TableFile table = ReadTableFile(file);
  EXPECT_EQ(table.headings, (std::vector<std::string>{"Iteration", "Population"}));
  EXPECT_EQ(table.columns, 5u);
  ASSERT_EQ(table.rows.size(), 3u);
  EXPECT_EQ(table.rows[0], (std::vector<std::string>{"1", "1", "0"}));
  EXPECT_EQ(table.rows[1].back(), "extra");
  EXPECT_EQ(table.rows[2], (std::vector<std::string>{"3"}));
  EXPECT_THROW(ReadTableFile(folder.path() / "missing.run"), std::exception);
}

}  // namespace
}  // namespace tamsic
