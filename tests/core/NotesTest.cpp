// A scenario note goes through the project file unchanged, whatever it holds;
// the report's scenario section shows a record's inputs.
#include <gtest/gtest.h>

#include "ProjectSamples.h"
#include "app/StringTable.h"
#include "files/ProjectFile.h"
#include "files/TextCodec.h"
#include "model/NewScenario.h"
#include "notes/NoteCoding.h"
#include "notes/ReportHtml.h"
#include "support/RecordingMessageBox.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

TEST(NotesTest, AnyNoteComesBackFromTheProjectFileAsWritten) {
  const std::vector<std::string> hostile = {
      "#not a comment; \"quoted\": a`b",
      "line one\r\nline two\nline three\ttabbed",
      "  blanks at both ends  ",
      "Empty",
      "ü ý Ü: the bytes older files read as separators",
      "Koala 袋熊 Коала 🐨 € œ",
      "100% and %41 and %zz and %C3",
      "<p><b>bold</b> &amp; <i>\"rich\"</i></p><ul><li>a; b</li></ul>",
      "{\"x\";\"y\": \"z\"} = Empty",
      std::string("nul\0byte", 8),
      "",
  };
  ProjectDocument project = test::FilledProject(1);
  clsScenario& scenario = project.scenarios.Item(1);
  scenario.SetNotes(Grid(3, 2));  // as an older file may hold fewer notes
  for (std::size_t page = 0; page < hostile.size(); ++page)
    EXPECT_EQ(SetNoteCell(scenario, page, EncodeNote(hostile[page])), !hostile[page].empty());
  EXPECT_EQ(scenario.Notes().rows(), clsScenario::kNotePages);
  EXPECT_EQ(scenario.Notes().cols(), clsScenario::kNotesPerPage);
  EXPECT_EQ(scenario.Notes().at(1, 1), "") << "other entries kept";

  test::TestFolder folder;
  test::MessageRecorder recorder;
  SaveProject(project, folder.file("p.tpj"), recorder.messages);
  const ProjectDocument loaded = LoadProject(folder.file("p.tpj"), kFileVersion, recorder.messages);
  EXPECT_TRUE(recorder.box.shown.empty());
  for (std::size_t page = 0; page < hostile.size(); ++page)
    EXPECT_EQ(DecodeNote(NoteCell(loaded.scenarios.Item(1), page)), hostile[page]) << page;
  EXPECT_EQ(NoteCell(loaded.scenarios.Item(1), 13), "");

  // A cell stays readable: characters the file holds stand as themselves.
  EXPECT_EQ(EncodeNote("Dry years, € 5 é"), Utf8ToCp1252("Dry years, € 5 é"));
  EXPECT_EQ(EncodeNote("a:b;c#d"), "a%3Ab%3Bc%23d");
  // A plain note of an older file reads as itself.
  for (const std::string older : {"50% less", "%zz", "%FF%FE", "Habitat %"})
    EXPECT_EQ(DecodeNote(Utf8ToCp1252(older)), older);
  EXPECT_EQ(DecodeNote("Caf\xE9"), "Café");
}

TEST(NotesTest, TheScenarioSectionShowsTheInputsOfEachRecordInTheUsersLanguage) {
  StringTable strings = StringTable::fromFile(StringTable::locate());
  strings.setLanguage(Language::German);
  ScenarioCollection scenarios;
  clsScenario baseline = NewScenarioDefaults();
  baseline.SetText(F("txtSceneName"), "Fire <&> \"drought\"");
  baseline.SetText(F("txtNumIter"), "1234");
  scenarios.Add(baseline);
  const std::string html = ScenarioInputsHtml(scenarios, strings);
  EXPECT_NE(html.find("<h2>Fire &lt;&amp;&gt; &quot;drought&quot;</h2>"), std::string::npos) << html;
  EXPECT_NE(html.find(">" + strings.text(9) + "</th><td>1234</td>"), std::string::npos);
  EXPECT_NE(html.find(">" + strings.text(508) + "</th><td>"), std::string::npos) << "a rate by population";
  EXPECT_NE(html.find(">Population 1</th>"), std::string::npos) << "the population's label as stored";
}

}  // namespace
}  // namespace tamsic
