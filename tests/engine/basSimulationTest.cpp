#include <gtest/gtest.h>

#include <fstream>

#include "engine/EngineLibrary.h"
#include "engine/basSimulation.h"
#include "support/FakeEngine.h"
#include "support/RecordingMessageBox.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

class RecordingCursor : public IBusyCursor {
 public:
  void setBusy(bool busy) override { states.push_back(busy); }
  std::vector<bool> states;
};

class RunCall : public ::testing::Test {
 protected:
  void SetUp() override {
    request.workFile = folder.path() / "tpjABC123";
    std::ofstream(request.workFile) << "project";
    request.scenarioList = "Base, Harvest, ";
  }

  std::optional<std::string> run(Engine& engine) {
    return basSimulation::Run(engine, cursor, recorder.messages, request);
  }

  test::TestFolder folder;
  basSimulation::RunRequest request;
  RecordingCursor cursor;
  test::MessageRecorder recorder;
};

TEST(basSimulation, ScenarioListAndOptions) {
  EXPECT_EQ(basSimulation::TrimScenarioList("A, "), "A");
  EXPECT_EQ(basSimulation::TrimScenarioList("A, B, ,, , "), "A, B");
  EXPECT_EQ(basSimulation::TrimScenarioList(", "), "");
  EXPECT_EQ(basSimulation::OptionsString("", "+"), "+");
  EXPECT_EQ(basSimulation::OptionsString("  ", "+"), "+");
  EXPECT_EQ(basSimulation::OptionsString("X", "META"), "X;META");
  EXPECT_EQ(basSimulation::OptionsString("X", ""), "X");
  EXPECT_EQ(basSimulation::OptionsString("", ""), "");
}

// Only a reply that starts with "Message" deletes the work file.
TEST_F(RunCall, NormalEndDeletesTheWorkFileOtherRepliesKeepIt) {
  test::FakeEngine engine;
  request.flags = "X";
  request.runMode = "META";
  for (const char* reply : {"message: done", "Messag", "Error: scenario Base: K is 0", ""}) {
    engine.runReply = reply;
    EXPECT_EQ(run(engine), reply);
    EXPECT_TRUE(std::filesystem::exists(request.workFile)) << reply;
  }
  engine.runReply = "Message";
  EXPECT_EQ(run(engine), "Message");
  ASSERT_EQ(engine.runs.size(), 5u);
  EXPECT_EQ(engine.runs[4].workFile, request.workFile.string());
  EXPECT_EQ(engine.runs[4].scenarios, "{Base, Harvest}");
  EXPECT_EQ(engine.runs[4].options, "X;META");
  EXPECT_EQ(cursor.states, (std::vector<bool>{true, false, true, false, true, false, true, false, true, false}));
  EXPECT_FALSE(std::filesystem::exists(request.workFile));
  EXPECT_TRUE(recorder.box.shown.empty());
}

TEST_F(RunCall, FailedCallIsShownAndNothingElseHappens) {
  test::FakeEngine engine;
  engine.unavailable = true;
  EXPECT_EQ(run(engine), std::nullopt);
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text,
            "Unable to run simulation\n\nlibtamsic.so: cannot open shared object file");
  EXPECT_EQ(recorder.box.shown[0].caption, "Error");
  EXPECT_EQ(recorder.box.shown[0].icon, MsgIcon::Critical);
  EXPECT_EQ(cursor.states, (std::vector<bool>{true, false}));
  EXPECT_TRUE(std::filesystem::exists(request.workFile));
}

TEST_F(RunCall, ThroughTheLibrary) {
  LibraryEngine engine;
  const auto reply = run(engine);
  ASSERT_TRUE(reply);
  EXPECT_EQ(reply->rfind("Error: ", 0), 0u) << *reply;
  EXPECT_TRUE(std::filesystem::exists(request.workFile));
}

}  // namespace
}  // namespace tamsic
