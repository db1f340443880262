// A scenario checked in for the stable age distribution, the deterministic
// projection and the two on-demand reports.
#include <gtest/gtest.h>

#include <numeric>
#include <sstream>

#include "SimTestSupport.h"
#include "sim/CheckIn.h"

namespace tamsic::test {
namespace {

std::vector<int> Numbers(const std::string& text) {
  std::vector<int> numbers;
  std::istringstream in(text);
  std::string cell;
  while (std::getline(in, cell, ';')) numbers.push_back(std::stoi(cell));
  return numbers;
}

TEST(SimCheckIn, StableAgesProjectionAndReports) {
  SimScenario s("Stable", 1, 500, 800);
  const auto folder = SaveTestProject({s});
  const auto previous = std::filesystem::current_path();
  std::filesystem::current_path(folder);
  EXPECT_EQ(sim::CheckIn((folder / "T.tpj").string() + " {1}", 0), "Message: scenario \"Stable\" checked");
  const std::string ages = sim::AgeDistribution(137);
  const auto colon = ages.find(':');
  ASSERT_NE(colon, std::string::npos) << ages;
  const std::vector<int> females = Numbers(ages.substr(0, colon));
  const std::vector<int> males = Numbers(ages.substr(colon + 1));
  ASSERT_EQ(females.size(), 10u);
  EXPECT_EQ(std::accumulate(females.begin(), females.end(), 0) + std::accumulate(males.begin(), males.end(), 0), 137);
  EXPECT_GT(females[0], females[9]);  // young classes outnumber old ones
  // The projection grows from 500 and is held at K = 800.
  const std::vector<int> n = Numbers(sim::DeterministicValues("", 40));
  ASSERT_EQ(n.size(), 41u);
  EXPECT_EQ(n.front(), 500);
  EXPECT_EQ(n.back(), 800);
  EXPECT_FALSE(std::filesystem::exists(folder / "T_Stable.det"));
  EXPECT_EQ(sim::CheckIn((folder / "T.tpj").string() + "{1}", 1), "Message: scenario \"Stable\" checked");
  EXPECT_TRUE(std::filesystem::exists(folder / "T_Stable.inp"));
  EXPECT_TRUE(std::filesystem::exists(folder / "T_Stable.det"));
  EXPECT_EQ(sim::CheckIn((folder / "T.tpj").string() + "{2}", 0), "Error: the project has no scenario number 2");
  std::filesystem::current_path(previous);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tamsic::test
