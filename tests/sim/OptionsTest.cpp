#include <gtest/gtest.h>

#include "sim/Options.h"

namespace tamsic::sim {
namespace {

TEST(SimOptions, CodesValuesFreeCodesAndRunMode) {
  const Options o = ParseOptions("S;T80;X;M;B;Y5;W2000;SEED 42;THREADS3;+");
  EXPECT_TRUE(o.translocate);
  EXPECT_EQ(o.translocationSurvival, 80.0);
  EXPECT_TRUE(o.excludeLastPopulation);
  EXPECT_TRUE(o.noDispersalIntoFull);
  EXPECT_TRUE(o.declineIsExtinction);
  EXPECT_EQ(o.seed, 42u);
  EXPECT_EQ(o.threads, 3);
}

TEST(SimOptions, WordsThatOnlyBeginWithACodeMeanNothing) {
  const Options o = ParseOptions("TEST;Xtra;META");
  EXPECT_FALSE(o.translocate);
  EXPECT_FALSE(o.excludeLastPopulation);
  EXPECT_FALSE(o.seed.has_value());
  EXPECT_EQ(ParseOptions("T").translocationSurvival, 100.0);
  EXPECT_FALSE(ParseOptions("SEEDx").seed.has_value());
}

}  // namespace
}  // namespace tamsic::sim
