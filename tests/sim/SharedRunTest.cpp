// What lets the processes of an MPI job share a run: how a process learns
// that a launcher started it together with others, and a fixed date in the
// output report, so that runs made at different times compare byte for byte.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>

#include "SimTestSupport.h"
#include "sim/Runner.h"
#include "sim/SimError.h"
#include "sim/Team.h"

namespace tamsic::test {
namespace {

// Sets environment variables for one test and puts back what was there.
class Environment {
 public:
  ~Environment() {
    for (const auto& [name, value] : saved_) value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
  }
  void set(const std::string& name, const char* value) {
    if (!saved_.contains(name)) {
      const char* old = std::getenv(name.c_str());
      saved_[name] = old ? std::optional<std::string>(old) : std::nullopt;
    }
    value ? setenv(name.c_str(), value, 1) : unsetenv(name.c_str());
  }

 private:
  std::map<std::string, std::optional<std::string>> saved_;
};

constexpr const char* kLauncherVariables[] = {"OMPI_COMM_WORLD_SIZE", "OMPI_COMM_WORLD_RANK", "PMI_SIZE", "PMI_RANK",
                                              "SLURM_STEP_NUM_TASKS", "SLURM_PROCID", "SLURM_NTASKS", "PMIX_RANK"};

std::pair<int, int> Launched() {
  const sim::Launch launch = sim::LaunchedTogether();
  return {launch.rank, launch.size};
}

TEST(SharedRun, LaunchersAreKnownByTheVariablesTheySet) {
  Environment env;
  for (const char* name : kLauncherVariables) env.set(name, nullptr);
  EXPECT_EQ(Launched(), std::make_pair(0, 1));
  // A Slurm batch script's own shell knows the tasks of the job, but no step started it with others.
  env.set("SLURM_NTASKS", "16");
  env.set("SLURM_PROCID", "0");
  EXPECT_EQ(Launched(), std::make_pair(0, 1));
  env.set("SLURM_STEP_NUM_TASKS", "16");
  env.set("SLURM_PROCID", "5");
  EXPECT_EQ(Launched(), std::make_pair(5, 16));
  env.set("PMI_SIZE", "3");
  env.set("PMI_RANK", "2");
  EXPECT_EQ(Launched(), std::make_pair(2, 3));
  env.set("OMPI_COMM_WORLD_SIZE", "4");
  env.set("OMPI_COMM_WORLD_RANK", "1");
  EXPECT_EQ(Launched(), std::make_pair(1, 4));
  for (const char* name : kLauncherVariables) env.set(name, nullptr);
  // A PMIx launcher tells the rank alone; MPI knows how many.
  env.set("PMIX_RANK", "7");
  EXPECT_EQ(Launched(), std::make_pair(7, 0));
  env.set("PMIX_RANK", "seven");
  EXPECT_EQ(Launched(), std::make_pair(0, 1));
}

TEST(SharedRun, AnEngineWithoutMpiStopsProcessesStartedTogether) {
  if (TAMSIC_MPI_BUILD) GTEST_SKIP() << "an engine built with MPI joins them";
  Environment env;
  for (const char* name : kLauncherVariables) env.set(name, nullptr);
  EXPECT_EQ(sim::JoinTeam()->size(), 1);
  env.set("OMPI_COMM_WORLD_SIZE", "3");
  try {
    sim::JoinTeam();
    ADD_FAILURE() << "three processes would each run the whole study";
  } catch (const sim::SimError& refused) {
    EXPECT_NE(std::string(refused.what()).find("3 processes were started together"), std::string::npos);
    EXPECT_NE(std::string(refused.what()).find("-DTAMSIC_MPI=ON"), std::string::npos);
  }
}

TEST(SharedRun, SourceDateEpochFixesTheDateOfTheOutputReport) {
  SimScenario small("Small", 1, 30, 40);
  small.text(F("txtNumIter"), "3").text(F("txtNumYear"), "5");
  const std::filesystem::path folder = SaveTestProject({small});
  const auto previous = std::filesystem::current_path();
  std::filesystem::current_path(folder);
  const auto run = [&] { return sim::RunScenarios((folder / "T.tpj").string(), "{Small}", "SEED3"); };
  const auto report = [&] {
    std::ifstream in(folder / "T_Small.out", std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  };
  Environment env;
  env.set("SOURCE_DATE_EPOCH", "1700000000");
  ASSERT_TRUE(run().starts_with("Message")) << run();
  EXPECT_NE(report().find("Run: 2023-11-14 22:13\r\n"), std::string::npos);
  const std::string first = report();
  ASSERT_TRUE(run().starts_with("Message"));
  EXPECT_EQ(report(), first);
  env.set("SOURCE_DATE_EPOCH", "yesterday");
  EXPECT_EQ(run(), "Error: scenario \"Small\": SOURCE_DATE_EPOCH is \"yesterday\", not a number of seconds since 1970");
  std::filesystem::current_path(previous);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tamsic::test
