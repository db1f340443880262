#include <gtest/gtest.h>

#include <cmath>

#include "RandomStream.h"

namespace tamsic {
namespace {

TEST(RandomStream, SameSeedSameDraws) {
  RandomStream first(42);
  RandomStream second(42);
  RandomStream other(43);
  int differences = 0;
  for (int i = 0; i < 100; ++i) {
    const double u = first.uniform();
    EXPECT_EQ(u, second.uniform());
    EXPECT_GE(u, 0.0);
    EXPECT_LT(u, 1.0);
    differences += u != other.uniform();
  }
  EXPECT_GT(differences, 95);
}

// The seeded draws depend on the argument and the run's seed only, not on
// how many draws came before.
TEST(RandomStream, SeededDrawsAreRepeatable) {
  RandomStream run(7);
  const double before = run.seededUniform(12);
  for (int i = 0; i < 10; ++i) run.uniform();
  EXPECT_EQ(run.seededUniform(12), before);
  EXPECT_EQ(run.seededUniform(-0.0), run.seededUniform(0.0));
  EXPECT_NE(run.seededUniform(13), before);
  EXPECT_NE(RandomStream(8).seededUniform(12), before);
  EXPECT_EQ(run.seededNormal(5), RandomStream(7).seededNormal(5));
}

TEST(RandomStream, NormalDrawsHaveUnitSpread) {
  RandomStream run(2024);
  constexpr int kDraws = 20000;
  double sum = 0.0;
  double squares = 0.0;
  for (int i = 0; i < kDraws; ++i) {
    const double z = run.normal();
    sum += z;
    squares += z * z;
  }
  const double mean = sum / kDraws;
  // Five standard errors of the mean and of the variance.
  EXPECT_NEAR(mean, 0.0, 5.0 / std::sqrt(kDraws));
  EXPECT_NEAR(squares / kDraws - mean * mean, 1.0, 5.0 * std::sqrt(2.0 / kDraws));
}

}  // namespace
}  // namespace tamsic
