// A scenario checked in for the stable age distribution, the deterministic
// projection, the mate-monopolization measures and the two on-demand reports.
#include <gtest/gtest.h>

#include <array>
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
  // Mate monopolization at K: each measure gives back the others, more males in the pool means more
  // sires with fewer young each, and a share of sires past what the pool can reach is refused.
  const auto measures = [](int index, std::array<double, 4> values) {
    const std::string reply = sim::MatesEquivalents(index, values);
    std::vector<double> numbers;
    std::istringstream in(reply);
    for (std::string cell; std::getline(in, cell, ';');) numbers.push_back(std::stod(cell));
    return numbers.size() == 4 ? numbers : std::vector<double>{};
  };
  const std::vector<double> half = measures(1, {50, 0, 0, 1});
  ASSERT_EQ(half.size(), 4u) << sim::MatesEquivalents(1, {50, 0, 0, 1});
  EXPECT_EQ(half[0], 50);
  EXPECT_GT(half[1], 0);
  EXPECT_LT(half[1], 50);
  EXPECT_NEAR(measures(0, {0, half[1], 0, 1})[0], 50, 0.01);
  EXPECT_NEAR(measures(0, {0, 0, half[2], 1})[0], 50, 0.01);
  const std::vector<double> all = measures(2, {100, 0, 0, 0});
  EXPECT_GT(all[1], half[1]);
  EXPECT_LT(all[2], half[2]);
  EXPECT_EQ(sim::MatesEquivalents(0, {0, 100, 0, 1}).rfind("Error: population 1: at most ", 0), 0u);
  EXPECT_EQ(sim::MatesEquivalents(0, {0, 10, 0, 2}), "Error: the scenario has no population 2");
  EXPECT_EQ(sim::CheckIn((folder / "T.tpj").string() + "{2}", 0), "Error: the project has no scenario number 2");
  std::filesystem::current_path(previous);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tamsic::test
