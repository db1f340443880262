#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

#include "engine/EngineLibrary.h"
#include "engine/basSimulation.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

class FakeEngine : public Engine {
 public:
  std::string reply = "Message: done";
  bool unavailable = false;
  std::string path, scenarios, options;

  std::string tamsicsim(const std::string& workFile, const std::string& bracedScenarios,
                        const std::string& flags) override {
    if (unavailable) throw EngineUnavailable("The engine library libtamsic.so could not be loaded");
    path = workFile;
    scenarios = bracedScenarios;
    options = flags;
    return reply;
  }
  std::string tcheckin(const std::string&, std::int32_t) override { return ""; }
  std::string agedist(std::int16_t) override { return ""; }
  std::string detGraphValues(const std::string&, std::int32_t) override { return ""; }
  std::string findpolyg(std::int16_t, const std::array<double, 4>&) override { return ""; }
  std::string testFormula(const std::string&) override { return ""; }
  std::string formulaGraphValues(const std::string&, const GraphRequest&) override { return ""; }
  std::optional<std::string> progress() override { return std::nullopt; }
  bool cancel() override { return false; }
  void close() override {}
};

class RecordingCursor : public IBusyCursor {
 public:
  void setBusy(bool busy) override { states.push_back(busy); }
  std::vector<bool> states;
};

class RunCall : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() /
              ("tamsic-run-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::create_directories(folder_);
    request.workFile = folder_ / "tpjABC123";
    std::ofstream(request.workFile) << "project";
    request.scenarioList = "Base, Harvest, ";
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::optional<std::string> run(Engine& engine) {
    return basSimulation::Run(engine, cursor, recorder.messages, request);
  }

  basSimulation::RunRequest request;
  RecordingCursor cursor;
  test::MessageRecorder recorder;

 private:
  std::filesystem::path folder_;
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

TEST_F(RunCall, NormalEndDeletesTheWorkFile) {
  FakeEngine engine;
  request.flags = "X";
  request.runMode = "META";
  EXPECT_EQ(run(engine), "Message: done");
  EXPECT_EQ(engine.path, request.workFile.string());
  EXPECT_EQ(engine.scenarios, "{Base, Harvest}");
  EXPECT_EQ(engine.options, "X;META");
  EXPECT_EQ(cursor.states, (std::vector<bool>{true, false}));
  EXPECT_FALSE(std::filesystem::exists(request.workFile));
  EXPECT_TRUE(recorder.box.shown.empty());
}

TEST_F(RunCall, OtherRepliesKeepTheWorkFile) {
  FakeEngine engine;
  for (const char* reply : {"message: done", "Messag", "Error: scenario Base: K is 0", ""}) {
    engine.reply = reply;
    EXPECT_EQ(run(engine), reply);
    EXPECT_TRUE(std::filesystem::exists(request.workFile)) << reply;
  }
  engine.reply = "Message";
  run(engine);
  EXPECT_FALSE(std::filesystem::exists(request.workFile));
  EXPECT_TRUE(recorder.box.shown.empty());
}

TEST_F(RunCall, FailedCallIsShownAndNothingElseHappens) {
  FakeEngine engine;
  engine.unavailable = true;
  EXPECT_EQ(run(engine), std::nullopt);
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text,
            "Unable to run simulation\n\nThe engine library libtamsic.so could not be loaded");
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
