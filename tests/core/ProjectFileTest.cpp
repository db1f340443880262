#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "ProjectSamples.h"
#include "files/ProjectFile.h"
#include "model/Errors.h"
#include "support/RecordingMessageBox.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

namespace fs = std::filesystem;

using test::ReadAll;

class ProjectFileTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return folder.file(name); }

  ProjectDocument SaveAndLoad(const ProjectDocument& project, const std::string& name = "p.tpj") {
    SaveProject(project, Path(name), recorder.messages);
    return LoadProject(Path(name), kFileVersion, recorder.messages);
  }

  test::TestFolder folder;
  test::MessageRecorder recorder;
};

TEST_F(ProjectFileTest, EveryFieldRoundTripsEvenWithNoScenarioAndASecondSaveIsIdentical) {
  const ProjectDocument project = test::FilledProject(3);
  const ProjectDocument loaded = SaveAndLoad(project);
  EXPECT_TRUE(recorder.box.shown.empty());
  ProjectDocument expected = project;
  expected.stScheme.Items.resize(3);  // one unused slot beyond the items
  EXPECT_EQ(loaded, expected);

  const std::string first = ReadAll(Path("p.tpj"));
  SaveProject(loaded, Path("p.tpj"), recorder.messages);
  EXPECT_EQ(ReadAll(Path("p.tpj")), first);

  ProjectDocument empty;
  empty.title = "Empty";
  EXPECT_EQ(SaveAndLoad(empty, "empty.tpj"), empty) << "a project of no scenario";
  const std::string text = ReadAll(Path("empty.tpj"));
  EXPECT_NE(text.find("NumScene=\"0\""), std::string::npos);
  EXPECT_EQ(text.find("Scenario Notes"), std::string::npos);
  EXPECT_NE(text.find("[ST Data]\r\nST.NumItems=\"0\""), std::string::npos);
}

TEST_F(ProjectFileTest, LayoutOfTheFileAndItsHeaderReadAlone) {
  SaveProject(test::FilledProject(2), Path("Gorilla.tpj"), recorder.messages);
  const std::string text = ReadAll(Path("Gorilla.tpj"));
  EXPECT_EQ(text.rfind(
                "# TPSIG9.99    Do not remove or modify this line, otherwise this file will not be "
                "recognized as a tamsic project file\r\n\r\n\r\n[General Project Information]\r\n"
                "ProjectTitle=\"Mountain gorilla\"" + std::string(19, ' ') + "# Project Title\r\n",
                0),
            0u);
  EXPECT_NE(text.find("NumScene=\"2\"" + std::string(38, ' ') + "# Number of Scenarios (Do not modify !!!)\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("Users={\"Ana Souza\", \"Jan Berg\"}\r\n"), std::string::npos);
  EXPECT_NE(text.find("ReportLocation=\"" + Path("Gorilla_report.rtf") + "\""), std::string::npos);
  std::size_t at = 0;
  for (const char* header :
       {"[General Project Information]", "[Project Report]", "[ST Data]", "\r\n\r\n[1 Scenario Notes]",
        "\r\n\r\n[1 Simulation Settings]", "[1 Genetic Management]", "[2 Scenario Notes]",
        "[2 Genetic Management]"}) {
    at = text.find(header, at);
    ASSERT_NE(at, std::string::npos) << header << " is missing or out of order";
  }
  EXPECT_NE(text.find("ExtinctDef0=\"True\""), std::string::npos);
  EXPECT_NE(text.find("InbreedDepress=\"0\""), std::string::npos);
  EXPECT_EQ(text.find("\n\n"), std::string::npos) << "every line ends in CR LF";

  const ProjectHeader header = GetTamsicHeader(Path("Gorilla.tpj"), recorder.messages);
  EXPECT_EQ(header.title, "Mountain gorilla");
  EXPECT_EQ(header.users, (std::vector<std::string>{"Ana Souza", "Jan Berg"}));
  EXPECT_THROW(GetTamsicHeader(Path("none.tpj"), recorder.messages), FileError);
}

TEST_F(ProjectFileTest, TextsThatTheFormatChanges) {
  ProjectDocument project = test::FilledProject(1);
  project.scenarios.Item(1).SetText(F("txtSceneName"), "Dry; hot: years");
  project.notes = "First line\r\nSecond line";
  project.reportLocation = Path("Elsewhere.rtf");
  std::ofstream(Path("Elsewhere.rtf")) << "{\\rtf1}";
  const ProjectDocument loaded = SaveAndLoad(project);
  EXPECT_EQ(loaded.scenarios.Item(1).Text(F("txtSceneName")), "Dry: hot: years");
  EXPECT_EQ(loaded.notes, "First line  Second line");
  EXPECT_EQ(loaded.reportLocation, Path("Elsewhere.rtf"));
  fs::remove(Path("Elsewhere.rtf"));
  EXPECT_EQ(LoadProject(Path("p.tpj"), kFileVersion, recorder.messages).reportLocation, "")
      << "a report that is gone falls back to the default place";
}

// A reordered, cut or shortened file stops the load; unknown keys read empty and ragged grids are reported.
TEST_F(ProjectFileTest, DamagedFiles) {
  SaveProject(test::FilledProject(2), Path("p.tpj"), recorder.messages);
  std::string text = ReadAll(Path("p.tpj"));
  const auto harvest = text.find("\r\n[1 Harvest]");
  const auto supplementation = text.find("\r\n[1 Supplementation]");
  const std::string harvestBlock = text.substr(harvest, supplementation - harvest);
  text.erase(harvest, harvestBlock.size());
  text.insert(text.find("\r\n[1 Genetic Management]"), harvestBlock);
  std::ofstream(Path("swapped.tpj"), std::ios::binary) << text;
  try {
    LoadProject(Path("swapped.tpj"), kFileVersion, recorder.messages);
    FAIL() << "a reordered file must not load";
  } catch (const TamsicError& error) {
    EXPECT_EQ(error.number(), kErrMissingSection);
  }
  ASSERT_FALSE(recorder.box.shown.empty());
  EXPECT_EQ(recorder.box.shown.back().text.rfind("Unable to find section ", 0), 0u);

  text = ReadAll(Path("p.tpj"));
  const auto cut = text.find("[2 Scenario Notes]");
  std::ofstream(Path("cut.tpj"), std::ios::binary) << text.substr(0, cut);
  recorder.box.shown.clear();
  EXPECT_THROW(LoadProject(Path("cut.tpj"), kFileVersion, recorder.messages), TamsicError);
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text, "Unable to find section 2 Scenario Notes");

  recorder.box.shown.clear();
  text = ReadAll(Path("p.tpj"));
  text.replace(text.find("NumYears="), 8, "NumYearz");
  const auto mort = text.find("MortMales={") + 11;
  text.erase(text.find(";", mort), 1);
  std::ofstream(Path("edited.tpj"), std::ios::binary) << text;
  const ProjectDocument loaded = LoadProject(Path("edited.tpj"), kFileVersion, recorder.messages);
  EXPECT_EQ(loaded.scenarios.Item(1).Text(F("txtNumYear")), "");
  EXPECT_EQ(loaded.scenarios.Item(1).Text(F("txtNumDays")), "NumDays-1");
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].caption, "Warning!");
  EXPECT_EQ(loaded.scenarios.Item(1).GetGrid(F("gridMortMales")).rows(), 1u) << "the first row sets the width";
  EXPECT_EQ(loaded.scenarios.Item(1).GetGrid(F("gridSupplM")).rows(), 3u) << "later grids still load";

  // Each look-up moves the cursor on by an entry, so a section with a line
  // deleted runs out of entries before its last key.
  text = ReadAll(Path("p.tpj"));
  const auto line = text.find("NumYears=");
  text.erase(line, text.find("\r\n", line) + 2 - line);
  std::ofstream(Path("deleted.tpj"), std::ios::binary) << text;
  recorder.box.shown.clear();
  EXPECT_THROW(LoadProject(Path("deleted.tpj"), kFileVersion, recorder.messages), TamsicError);
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text, "Unable to find section 1 Simulation Settings");
}

TEST_F(ProjectFileTest, SimplifiedDumpIsNotAProject) {
  SaveProject(test::FilledProject(1), Path("dump.tpj"), recorder.messages, {.simplifiedDump = true});
  const std::string text = ReadAll(Path("dump.tpj"));
  EXPECT_NE(text.find("\r\n\"Mountain gorilla\"\r\n"), std::string::npos);
  EXPECT_EQ(text.find("ProjectTitle="), std::string::npos);
  EXPECT_THROW(LoadProject(Path("dump.tpj"), kFileVersion, recorder.messages), TamsicError);
}

}  // namespace
}  // namespace tamsic
