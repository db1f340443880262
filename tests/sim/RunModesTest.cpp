// A run taken up again after it failed part way ("+"), and a run taken one
// scenario at a time ("META"): the scenarios finished before keep their
// files, and every file ends as a single normal run with the same seed
// would have written it.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "SimTestSupport.h"
#include "sim/Runner.h"

namespace tamsic::test {
namespace {

std::string Read(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

class RunModes : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = SaveTestProject({first_, second_});
    previous_ = std::filesystem::current_path();
    std::filesystem::current_path(folder_);
  }
  void TearDown() override {
    std::filesystem::current_path(previous_);
    std::filesystem::remove_all(folder_);
  }
  std::string run(const std::string& options) {
    return sim::RunScenarios((folder_ / "T.tpj").string(), "{A, B}", options);
  }
  std::string files(const char* name) {
    return Read(folder_ / ("T_" + std::string(name) + ".dat")) + Read(folder_ / ("T_" + std::string(name) + ".run"));
  }
  bool unfinished() const { return std::filesystem::exists(folder_ / "T.resume"); }

  SimScenario first_{"A", 1, 60, 120};
  SimScenario second_{"B", 1, 80, 150};
  std::filesystem::path folder_, previous_;
};

TEST_F(RunModes, AFailedRunIsTakenUpWhereItStopped) {
  // The same project with B failing in its third year (saving empties the folder, so this comes first).
  std::filesystem::current_path(previous_);
  SimScenario failing = second_;
  failing.cell(F("gridMortFemales"), 1, 1, "=10/(Y-3)");
  const std::string bad = Read(SaveTestProject({first_, failing}) / "T.tpj");
  folder_ = SaveTestProject({first_, second_});
  std::filesystem::current_path(folder_);

  ASSERT_EQ(run("SEED5").rfind("Message: 2 scenarios run with seed 5 (scenario;", 0), 0u);
  EXPECT_FALSE(unfinished());
  const std::string a = files("A"), b = files("B");
  EXPECT_EQ(run("+"), "Error: there is no unfinished run of this project to resume; use Run");

  // B fails after A finished; the record of the run stays.
  const std::string good = Read(folder_ / "T.tpj");
  std::ofstream(folder_ / "T.tpj", std::ios::binary) << bad;
  ASSERT_EQ(run("SEED5").rfind("Error: scenario \"B\"", 0), 0u);
  EXPECT_TRUE(unfinished());
  EXPECT_EQ(files("A"), a);

  // Mended, the run goes on with B alone: A's files are left as they are (marked here to tell).
  std::ofstream(folder_ / "T.tpj", std::ios::binary) << good;
  std::ofstream(folder_ / "T_A.dat", std::ios::binary | std::ios::app) << "mark";
  const std::string reply = run("+");
  EXPECT_EQ(reply.rfind("Message: 1 scenario run with seed 5 (1 scenario finished before kept)", 0), 0u) << reply;
  EXPECT_EQ(files("B"), b);
  EXPECT_NE(Read(folder_ / "T_A.dat").find("mark"), std::string::npos);
  EXPECT_FALSE(unfinished());
}

TEST_F(RunModes, AStepwiseRunTakesOneScenarioAtATime) {
  ASSERT_EQ(run("SEED5").rfind("Message", 0), 0u);
  const std::string a = files("A"), b = files("B");
  for (const char* name : {"A", "B"})
    for (const char* kind : {".dat", ".run"}) std::filesystem::remove(folder_ / ("T_" + std::string(name) + kind));

  std::string reply = run("SEED5;META");
  EXPECT_EQ(reply.rfind("Message: step 1 of 2, scenario run with seed 5", 0), 0u) << reply;
  EXPECT_EQ(files("A"), a);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "T_B.dat"));
  EXPECT_TRUE(unfinished());
  reply = run("META");
  EXPECT_EQ(reply.rfind("Message: step 2 of 2, scenario run with seed 5", 0), 0u) << reply;
  EXPECT_EQ(files("B"), b);
  EXPECT_FALSE(unfinished());
}

}  // namespace
}  // namespace tamsic::test
