#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "ProjectSamples.h"
#include "files/ProjectFile.h"
#include "files/ProjectOpen.h"
#include "files/ProjectSignature.h"
#include "model/Errors.h"
#include "support/FullDisk.h"
#include "support/RecordingMessageBox.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

namespace fs = std::filesystem;

using test::ReadAll;

class OpenAndSaveTest : public ::testing::Test {
 protected:
  test::TestFolder folder;
  const fs::path& dir = folder.path();
  std::string path = folder.file("Trout.tpj");
  test::MessageRecorder recorder;
};

TEST(ProjectSignature, RecognisesTheSecondWord) {
  EXPECT_EQ(SignatureVersion(std::string(kSignatureLine)), "9.99");
  EXPECT_EQ(SignatureVersion("# TPSIG9.5     anything at all"), "9.5 ");
  EXPECT_EQ(SignatureVersion("xx TPSIGNATURE"), "GNAT");
  EXPECT_EQ(SignatureVersion("#TPSIG9.99"), std::nullopt) << "the signature must be the second word";
  EXPECT_EQ(SignatureVersion("# tpsig9.99"), std::nullopt);
  EXPECT_EQ(SignatureVersion(""), std::nullopt);
}

TEST_F(OpenAndSaveTest, MissingFileOrSignatureAndAByteOrderMarkBeforeIt) {
  EXPECT_FALSE(IsTamsicProject(path, recorder.messages));
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text, "The project does not exist");
  EXPECT_EQ(recorder.box.shown[0].caption, "Warning!");

  std::ofstream(path) << "[General Project Information]\r\n";
  EXPECT_FALSE(OpenProjectFile(path, recorder.messages, true));
  EXPECT_FALSE(fs::exists(path + ".bak")) << "a file that is no project gets no backup";

  SaveProject(test::FilledProject(1), path, recorder.messages);
  const ProjectDocument plain = LoadProject(path, "9.99", recorder.messages);
  const std::string saved = ReadAll(path);
  std::ofstream(path, std::ios::binary | std::ios::trunc) << "\xEF\xBB\xBF" << saved;
  const auto opened = OpenProjectFile(path, recorder.messages, false);
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->versionText, "9.99") << "a mark read as text would rename the sensitivity-test variables";
  EXPECT_EQ(opened->document, plain);
}

TEST_F(OpenAndSaveTest, FourOpeningsKeepThreeBackupsThatADamagedProjectNeverPushesOut) {
  ProjectDocument project = test::FilledProject(1);
  std::vector<std::string> versions;
  for (int opening = 1; opening <= 4; ++opening) {
    project.title = "Version " + std::to_string(opening);
    SaveProject(project, path, recorder.messages);
    versions.push_back(ReadAll(path));
    const auto opened = OpenProjectFile(path, recorder.messages, true);
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->document.title, project.title);
    EXPECT_EQ(opened->versionText, "9.99");
  }
  EXPECT_TRUE(recorder.box.shown.empty());
  // The scenario sections cut off: the load fails, three times over, and never pushes a good backup out.
  const std::string& good = versions[3];
  std::ofstream(path, std::ios::binary | std::ios::trunc) << good.substr(0, good.find("[1 Scenario Notes]"));
  for (int opening = 0; opening < 3; ++opening)
    EXPECT_THROW(OpenProjectFile(path, recorder.messages, true), std::exception);
  EXPECT_EQ(ReadAll(path + ".bak"), versions[3]);
  EXPECT_EQ(ReadAll(path + ".bk2"), versions[2]);
  EXPECT_EQ(ReadAll(path + ".bk3"), versions[1]);
  EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 4) << "no backup is left half made";
}

TEST_F(OpenAndSaveTest, AScenarioCountThatIsMissingOrWrongIsALoadError) {
  ProjectDocument project = test::FilledProject(2);
  SaveProject(project, path, recorder.messages);
  const std::string saved = ReadAll(path);
  const auto line = saved.find("NumScene=");
  const auto lineEnd = saved.find("\r\n", line);
  const auto withCount = [&](const std::string& entry) {
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        << saved.substr(0, line) << entry << saved.substr(lineEnd);
  };
  // Fewer than the file holds ("1") would drop the rest at the next save.
  for (const char* entry : {"", "NumScene=\"\"", "NumScene=\"two\"", "NumScene=\"0\"", "NumScene=\"2x\"",
                            "NumScene=\"-1\"", "NumScene=\"1\""}) {
    withCount(entry);
    EXPECT_THROW(LoadProject(path, "9.99", recorder.messages), FileError) << entry;
  }
  withCount("NumScene=\" 2 \"");
  EXPECT_EQ(LoadProject(path, "9.99", recorder.messages).scenarios.Count(), 2u);
}

TEST_F(OpenAndSaveTest, ASaveClearsWhatAKilledSaveLeftBehind) {
  // An hour-old save of this project, a save in progress, and another project's old save.
  const std::string stale = path + ".~a1B2c3", fresh = path + ".~d4E5f6", other = folder.file("Other.tpj.~a1B2c3");
  for (const std::string& file : {stale, fresh, other}) std::ofstream(file) << "half a project";
  for (const std::string& file : {stale, other})
    fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1));
  SaveProject(test::FilledProject(1), path, recorder.messages);
  EXPECT_FALSE(fs::exists(stale));
  EXPECT_TRUE(fs::exists(fresh));
  EXPECT_TRUE(fs::exists(other));
}

TEST_F(OpenAndSaveTest, FailedSaveLeavesThePreviousFileIntact) {
  SaveProject(test::FilledProject(1), path, recorder.messages);
  const std::string before = ReadAll(path);
  fs::permissions(path, fs::perms::owner_read | fs::perms::group_read);

  try {
    const test::FullDisk full;
    SaveProject(test::FilledProject(2), path, recorder.messages);
    ADD_FAILURE() << "a save to a full disk must fail";
  } catch (const FileError& error) {
    EXPECT_NE(std::string(error.what()).find("Trout.tpj"), std::string::npos) << error.what();
  }
  EXPECT_EQ(ReadAll(path), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 1)
      << "no half-written file is left behind";

  SaveProject(test::FilledProject(2), path, recorder.messages);
  EXPECT_EQ(fs::status(path).permissions() & fs::perms::all, fs::perms::owner_read | fs::perms::group_read)
      << "a replaced file keeps its permissions";
  EXPECT_THROW(SaveProject(test::FilledProject(1), (dir / "no" / "such.tpj").string(), recorder.messages),
               FileError);
}

}  // namespace
}  // namespace tamsic
