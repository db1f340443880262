// Every group of inputs moves the results the way a biologist expects.
// Small populations, few iterations, fixed seeds: each comparison is between
// runs with the same seed that differ in one input only.
#include <gtest/gtest.h>

#include <cmath>

#include "SimTestSupport.h"

namespace tamsic::test {
namespace {

constexpr const char* kSeed = "SEED21";

const std::vector<double>& Final(const RunOutput& out, std::size_t block = 0) {
  EXPECT_TRUE(out.reply.starts_with("Message")) << out.reply;
  return out.blocks.at(block).back();
}

SimScenario Base(const std::string& name = "Base") {
  SimScenario s(name, 1, 100, 200);
  s.text(F("txtNumIter"), "40").text(F("txtNumYear"), "30");
  return s;
}

TEST(SimInputs, EnvironmentalVariationWidensTheSpreadOfGrowth) {
  SimScenario ev = Base();
  ev.everyPopulation(F("gridRepRates1"), 2, "25");
  for (std::size_t c : {2u, 4u, 6u}) ev.everyPopulation(F("gridMortFemales"), c, "8").everyPopulation(F("gridMortMales"), c, "8");
  const auto plain = Final(RunScenario({Base()}, "Base", kSeed));
  const auto varied = Final(RunScenario({ev}, "Base", kSeed));
  EXPECT_GT(varied[kStochR + 2], 1.5 * plain[kStochR + 2]);
}

TEST(SimInputs, CatastrophesLowerTheNumbers) {
  // One local catastrophe, 30 % a year, halving breeding and survival.
  Grid frequency(2, 3), severity(2, 3);
  frequency.at(1, 1) = "Local";
  frequency.at(1, 2) = "30";
  severity.at(1, 1) = "0.5";
  severity.at(1, 2) = "0.5";
  SimScenario hit = Base();
  hit.text(F("txtNumCatast"), "1").grid(F("gridCatastrophes1"), frequency).grid(F("gridCatastrophes2"), severity);
  const auto plain = Final(RunScenario({Base()}, "Base", kSeed));
  const auto struck = Final(RunScenario({hit}, "Base", kSeed));
  EXPECT_LT(struck[kAll], 0.8 * plain[kAll]);
}

TEST(SimInputs, MatingSystems) {
  // Few males in the breeding pool: one female each (monogamy) leaves most
  // females unmated, many females each (polygamy) does not.
  SimScenario poly = Base("Poly");
  poly.everyPopulation(F("gridDegMonop"), 1, "20").text(F("txtNumYear"), "10");
  SimScenario mono = poly;
  mono.text(F("txtSceneName"), "Mono").option(F("optMPHLQ_0"));
  SimScenario longMono = poly;
  longMono.text(F("txtSceneName"), "LongMono").option(F("optMPHLQ_3"));
  SimScenario longPoly = poly;
  longPoly.text(F("txtSceneName"), "LongPoly").option(F("optMPHLQ_4"));
  const double nPoly = Final(RunScenario({poly}, "Poly", kSeed))[kAll];
  EXPECT_LT(Final(RunScenario({mono}, "Mono", kSeed))[kAll], 0.8 * nPoly);
  EXPECT_LT(Final(RunScenario({longMono}, "LongMono", kSeed))[kAll], 0.8 * nPoly);
  EXPECT_GT(Final(RunScenario({longPoly}, "LongPoly", kSeed))[kAll], 0.8 * nPoly);
  // A few polygamous males father all young: inbreeding rises faster than with every male breeding.
  SimScenario small = Base("Small");
  small.everyPopulation(F("gridCarryingCap1"), 1, "30").everyPopulation(F("gridInitPopStable"), 1, "30");
  SimScenario fewSires = small;
  fewSires.text(F("txtSceneName"), "FewSires").everyPopulation(F("gridDegMonop"), 1, "15");
  const auto few = Final(RunScenario({fewSires}, "FewSires", kSeed));
  const auto all = Final(RunScenario({small}, "Small", kSeed));
  EXPECT_GT(few[kInbreeding] - all[kInbreeding],
            3 * std::hypot(few[kInbreeding + 1], all[kInbreeding + 1]));
}

TEST(SimInputs, HermaphroditesNeedNoMate) {
  SimScenario herm = Base("Herm");
  herm.option(F("optMPHLQ_2")).everyPopulation(F("gridCarryingCap1"), 1, "20").everyPopulation(F("gridInitPopStable"), 1, "20");
  const auto h = Final(RunScenario({herm}, "Herm", kSeed));
  EXPECT_EQ(h[kSurvive], 1.0);  // no mates to miss, no sex to lose
  EXPECT_GT(h[kInbreeding], 0.0);
}

TEST(SimInputs, HarvestLowersAndSupplementationRaisesTheNumbers) {
  SimScenario harvest = Base();
  harvest.everyPopulation(F("gridHarvest"), 1, "1").everyPopulation(F("gridHarvest"), 2, "1");
  harvest.everyPopulation(F("gridHarvest"), 3, "30").everyPopulation(F("gridHarvest"), 4, "1");
  harvest.everyPopulation(F("gridHarvestF"), 2, "10").everyPopulation(F("gridHarvestM"), 2, "10");
  SimScenario supplement = Base();
  supplement.everyPopulation(F("gridCarryingCap1"), 1, "1000");
  supplement.everyPopulation(F("gridSuppl"), 1, "1").everyPopulation(F("gridSuppl"), 2, "1");
  supplement.everyPopulation(F("gridSuppl"), 3, "30").everyPopulation(F("gridSuppl"), 4, "5");
  supplement.everyPopulation(F("gridSupplF"), 2, "10").everyPopulation(F("gridSupplM"), 2, "10");
  SimScenario open = Base();
  open.everyPopulation(F("gridCarryingCap1"), 1, "1000");
  const double base = Final(RunScenario({Base()}, "Base", kSeed))[kAll];
  EXPECT_LT(Final(RunScenario({harvest}, "Base", kSeed))[kAll], 0.7 * base);
  const auto added = Final(RunScenario({supplement}, "Base", kSeed));
  const auto without = Final(RunScenario({open}, "Base", kSeed));
  EXPECT_GT(added[kAll], without[kAll] + 50);
  EXPECT_GT(added[kGeneDiv], without[kGeneDiv]);  // new unrelated founders
}

TEST(SimInputs, DispersalRescuesASinkPopulation) {
  SimScenario meta("Meta", 2, 100, 200);
  meta.text(F("txtNumIter"), "30").text(F("txtNumYear"), "30");
  meta.cell(F("gridRepRates1"), 2, 1, "0");  // population 2 does not breed
  SimScenario linked = meta;
  linked.check(F("chkDispFemales")).check(F("chkDispMales")).cell(F("gridDispRates"), 1, 2, "20");
  const RunOutput closed = RunScenario({meta}, "Meta", kSeed);
  const RunOutput open = RunScenario({linked}, "Meta", kSeed);
  EXPECT_LT(Final(closed, 1)[kSurvive], 0.1);
  EXPECT_EQ(Final(open, 1)[kSurvive], 1.0);
  EXPECT_GT(Final(open, 1)[kAll], 20.0);
  EXPECT_EQ(open.blocks.size(), 3u);  // and the metapopulation
}

TEST(SimInputs, DeclineInCapacityShrinksThePopulation) {
  SimScenario trend = Base();
  trend.everyPopulation(F("gridCarryingCap2"), 1, "1").everyPopulation(F("gridCarryingCap2"), 2, "20");
  trend.everyPopulation(F("gridCarryingCap2"), 3, "-5");
  const double k = 200 * std::pow(0.95, 20);
  const auto declined = Final(RunScenario({trend}, "Base", kSeed));
  EXPECT_LE(declined[kExtant], k + 0.5);
  EXPECT_GT(declined[kExtant], 0.8 * k);
}

TEST(SimInputs, InbreedingDepressionCostsYoungAndPurgesLethals) {
  SimScenario inbred = Base();
  inbred.everyPopulation(F("gridCarryingCap1"), 1, "30").everyPopulation(F("gridInitPopStable"), 1, "30");
  inbred.text(F("txtNumYear"), "40");
  SimScenario depressed = inbred;
  depressed.check(F("chkDepress")).text(F("txtLethalEquiv"), "12").text(F("txtPercentLethal"), "50");
  const auto free = Final(RunScenario({inbred}, "Base", kSeed));
  const RunOutput out = RunScenario({depressed}, "Base", kSeed);
  const auto hurt = Final(out);
  EXPECT_LT(hurt[kSurvive] + hurt[kAll] / 1000, free[kSurvive] + free[kAll] / 1000);
  EXPECT_EQ(free[kLethals], 0.0);
  // Founders carry somewhat fewer than 2 lethals per lethal equivalent (here 6).
  EXPECT_GT(out.blocks[0][0][kLethals], 0.85 * 12);
  EXPECT_LT(out.blocks[0][0][kLethals], 12.0);
  EXPECT_LT(hurt[kLethals], out.blocks[0][0][kLethals]);
}

}  // namespace
}  // namespace tamsic::test
