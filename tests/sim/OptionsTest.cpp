#include <gtest/gtest.h>

#include "sim/Options.h"

namespace tamsic::sim {
namespace {

TEST(SimOptions, CodesValuesFreeCodesAndRunMode) {
  const Options o = ParseOptions("S;T80;X;M;B;A;Y5;W2000;N;SEED 42;THREADS3;+");
  EXPECT_TRUE(o.translocate);
  EXPECT_EQ(o.translocationSurvival, 80.0);
  EXPECT_TRUE(o.excludeLastPopulation);
  EXPECT_TRUE(o.noDispersalIntoFull);
  EXPECT_TRUE(o.declineIsExtinction);
  EXPECT_EQ(o.seed, 42u);
  EXPECT_EQ(o.threads, 3);
  EXPECT_TRUE(o.livingFile && o.createdFile);
  EXPECT_TRUE(o.censusOf(5) && !o.censusOf(6));
  EXPECT_EQ(o.reserveIndividuals, 2000);
  // Empty value boxes: every iteration's census, no reservation, full survival.
  const Options bare = ParseOptions("Y;W;T");
  EXPECT_TRUE(bare.censusOf(1000));
  EXPECT_EQ(bare.reserveIndividuals, 0);
  EXPECT_EQ(bare.translocationSurvival, 100.0);
  EXPECT_EQ(ParseOptions("T150").translocationSurvival, 100.0);
}

TEST(SimOptions, WordsThatOnlyBeginWithACodeMeanNothing) {
  const Options o = ParseOptions("TEST;Xtra;META;Yes;Wide;No;All");
  EXPECT_FALSE(o.translocate || o.censusFile || o.createdFile || o.livingFile || o.reserveIndividuals);
  EXPECT_FALSE(o.excludeLastPopulation);
  EXPECT_FALSE(o.seed.has_value());
  EXPECT_EQ(ParseOptions("T").translocationSurvival, 100.0);
  EXPECT_FALSE(ParseOptions("SEEDx").seed.has_value());
  // META is the stepwise run mode, not a code word that begins with M.
  EXPECT_FALSE(o.noDispersalIntoFull);
  EXPECT_EQ(o.runMode, "META");
  EXPECT_EQ(ParseOptions("S;Y5;+").runMode, "+");
  EXPECT_EQ(ParseOptions("S;Y5").runMode, "");
}

}  // namespace
}  // namespace tamsic::sim
