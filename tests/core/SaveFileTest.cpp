#include <gtest/gtest.h>

#include "files/clsSaveFile.h"
#include "model/Errors.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

class SaveFileTest : public ::testing::Test {
 protected:
  clsSaveFile Reader(const std::string& text) {
    clsSaveFile file(recorder.messages);
    file.OpenText(text);
    file.ReadFile();
    return file;
  }
  test::MessageRecorder recorder;
};

TEST_F(SaveFileTest, ValuesAreCutAtHashLoseOnlyMatchingQuotesAndAreDecodedOnRequest) {
  auto file = Reader(
      "[S]\r\n"
      "quoted=\"a # b\"\r\n"
      "empty=Empty\r\n"
      "blank=\"\"\r\n"
      "bare=  plain text  # comment\r\n"
      "nokey line\r\n"
      " spaced key = \"=N/K\"\r\n"
      "cells=x`y\xFCz\xFD\r\n"
      "number=1.5,2\r\n"
      "[A|B]\r\nk|1==x|y\r\n");
  EXPECT_EQ(file.GetEntryCache("quoted", "S"), "\"a");
  EXPECT_EQ(file.GetEntryCache("empty", "S"), "");
  EXPECT_EQ(file.GetEntryCache("blank", "S"), "");
  EXPECT_EQ(file.GetEntryCache("bare", "S"), "plain text");
  EXPECT_EQ(file.GetEntryCache("", "S"), "nokey line");
  EXPECT_EQ(file.GetEntryCache("spaced key", "S"), "=N/K");
  EXPECT_EQ(file.GetEntryCache("cells", "S", true), "x:y:z;") << "cells are decoded on request";
  EXPECT_EQ(file.GetEntryCache("number", "S", false, true), "1.5.2") << "and numbers localised";
  EXPECT_EQ(file.GetEntryCache("k|1", "A|B"), "=x|y") << "names may hold bars, values bars and equals";
  EXPECT_TRUE(recorder.box.shown.empty());
  clsSaveFile comma(recorder.messages, ',');
  comma.OpenText("[S]\r\nb=1.5,2\r\n");
  comma.ReadFile();
  EXPECT_EQ(comma.GetEntryCache("b", "S", false, true), "1,5,2");
}

TEST_F(SaveFileTest, CursorOnlyMovesForward) {
  auto file = Reader(
      "key=before any section\r\n"
      "[A]\r\nx=1\r\ny=2\r\n"
      "[B]\r\nx=3\r\n"
      "[A]\r\nx=4\r\n");
  EXPECT_EQ(file.CacheSize(), 4u) << "entries before the first header are never cached";
  EXPECT_EQ(file.GetEntryCache("x", "A"), "1");
  EXPECT_EQ(file.GetEntryCache("missing", "A"), "") << "a missing key is silent";
  EXPECT_EQ(file.GetEntryCache("x", "B"), "3");
  EXPECT_EQ(file.GetEntryCache("x", "A"), "4") << "a second section of the same name comes next";
  EXPECT_TRUE(recorder.box.shown.empty());
  try {
    file.GetEntryCache("x", "B");
    FAIL() << "an earlier section cannot be read again";
  } catch (const TamsicError& error) {
    EXPECT_EQ(error.number(), 1000);
    EXPECT_EQ(error.source(), "GetEntryCache");
    EXPECT_STREQ(error.what(), "Unable to find section B");
  }
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text, "Unable to find section B");
  EXPECT_EQ(recorder.box.shown[0].caption, "Error");
  EXPECT_EQ(recorder.box.shown[0].icon, MsgIcon::Critical);
}

TEST_F(SaveFileTest, SectionHeadersAndCommentsBetweenThemAndAnEmptyHeader) {
  auto file = Reader("# [not a header]\n\n[ Spaced ]\n# [still not]\n  a = 1  \n[[Double]]\nb=2");
  EXPECT_EQ(file.GetEntryCache("a", "Spaced"), "1");
  EXPECT_EQ(file.GetEntryCache("b", "[Double]"), "2");
  EXPECT_EQ(file.CacheSize(), 2u);
  EXPECT_EQ(file.GotoSection("Spaced"), "[ Spaced ]");
  EXPECT_EQ(file.GotoNextSection(), "[Double]");
  EXPECT_EQ(file.GotoNextSection(), "");
  EXPECT_EQ(Reader("[A]\r\nx=1\r\n[]\r\ny=2\r\n[C]\r\nz=3\r\n").CacheSize(), 1u)
      << "an empty section name ends the cache";
}

TEST_F(SaveFileTest, GridStringsRoundTripLossilyAndRaggedOnesAreReported) {
  clsSaveFile writer(recorder.messages);
  Grid grid(2, 3);
  grid.at(0, 0) = "x;y";
  grid.at(0, 1) = "a:b";
  grid.at(1, 1) = "  =N*2  ";
  grid.at(1, 2) = "=MIN(65;MAX(N;K))";
  const std::string text = writer.GridBufferToString(grid);
  EXPECT_EQ(text, "{\"x`y\";\"a`b\";Empty: Empty;\"=N*2\";\"=MIN(65`MAX(N`K))\"}");
  Grid back;
  writer.FillArray(text, back);
  // A semicolon comes back as a colon, but a function reads back as it was typed.
  Grid expected = grid;
  expected.at(0, 0) = "x:y";
  expected.at(1, 1) = "=N*2";
  EXPECT_EQ(back, expected);

  Grid none;
  writer.FillArray(writer.GridBufferToString(none), back);
  EXPECT_EQ(back, none);
  EXPECT_TRUE(recorder.box.shown.empty());

  // Text that is no braced array leaves the target alone; a ragged row is reported, the rows before it kept.
  Grid target(1, 1);
  target.at(0, 0) = "kept";
  writer.FillArray("\"1\";\"2\"", target);
  writer.FillArray("{\"1\"", target);
  EXPECT_EQ(target.at(0, 0), "kept");
  EXPECT_TRUE(recorder.box.shown.empty());

  writer.FillArray("{\"1\";\"2\": \"3\";\"4\": \"5\": \"6\";\"7\"}", target);
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text,
            "There is a problem with the data\r\n\r\nHave you modified the data file manually?");
  EXPECT_EQ(recorder.box.shown[0].caption, "Warning!");
  ASSERT_EQ(target.rows(), 2u);
  EXPECT_EQ(target.at(1, 1), "4");
}

TEST_F(SaveFileTest, EntriesAreWrittenWithCommentsAtColumnFiftyOrBareInADump) {
  clsSaveFile file(recorder.messages);
  file.OpenFile("unused", clsSaveFile::ModeWrite);
  file.SaveEntry("NumIter", "500", "Number of iterations/simulations");
  file.SaveEntry("Name", " a;b\r\nc ", "");
  file.SaveEntry("   ", "ignored", "no key, no line");
  file.SaveEntry("Grid", "{\"1\"}", "G", false);
  file.SaveEntry(std::string(48, 'k'), "x", "long");
  file.StartSection("S", true);
  file.WriteComment("c");
  file.SkipLines(1);
  const std::string expected =
      "NumIter=\"500\"" + std::string(50 - 13, ' ') + "# Number of iterations/simulations\r\n"
      "Name=\"a`b  c\"\r\n"
      "Grid={\"1\"}" + std::string(50 - 10, ' ') + "# G\r\n" +
      std::string(48, 'k') + "=\"x\" # long\r\n"
      "\r\n[S]\r\n# c\r\n\r\n";
  EXPECT_EQ(file.WrittenText(), expected);

  clsSaveFile dump(recorder.messages);
  dump.OpenFile("unused", clsSaveFile::ModeWrite);
  dump.SimplifiedDump(true);
  Grid grid(1, 2);
  grid.at(0, 0) = "a;b";
  dump.SaveEntry("Key", "v", "comment");
  dump.SaveEntry("Grid", dump.GridBufferToString(grid), "comment", false);
  EXPECT_EQ(dump.WrittenText(), "\"v\"\r\n\"a;b\"\r\nEmpty\r\n") << "a simplified dump writes bare values";
}

TEST(SaveFileEncodings, ListsAndArrays) {
  EXPECT_EQ(clsSaveFile::ListboxToString({"Ana", " ", "Jan Berg"}), "{\"Ana\", Empty, \"Jan Berg\"}");
  EXPECT_EQ(clsSaveFile::StringToListbox("{\"Ana\", Empty, \"Jan Berg\"}"),
            (std::vector<std::string>{"Ana", "", "Jan Berg"}));
  EXPECT_TRUE(clsSaveFile::StringToListbox("{}").empty());
  EXPECT_EQ(clsSaveFile::StringToListbox("{\"a,b\"}"), (std::vector<std::string>{"\"a", "b\""}))
      << "list items are split at every comma";
  EXPECT_EQ(clsSaveFile::ArrayToString({{"1", "2"}, {"3", ""}}, false), "{\"1\"; \"2\": \"3\"; Empty}");
  EXPECT_EQ(clsSaveFile::ArrayToString({{"1", "2"}, {"3", ""}}, true), "{\"1\"; \"2\"}");
  EXPECT_EQ(clsSaveFile::StripChars("\"a", '"', '"'), "\"a");
  EXPECT_EQ(clsSaveFile::StripChars("\"", '"', '"'), "\"");
  EXPECT_EQ(clsSaveFile::LinearizeText("a\r\nb\nc"), "a  b c");
}

}  // namespace
}  // namespace tamsic
