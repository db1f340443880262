// Genetic management does what a breeding programme wants of it: pairing by
// mean kinship keeps gene diversity, preventing close matings keeps
// inbreeding down, breeding to K breeds no more than needed; and the genetic
// inputs and output files mean what they say.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <regex>

#include "SimTestSupport.h"
#include "support/TestFolder.h"
#include "sim/Kinship.h"
#include "sim/Steps.h"

namespace tamsic::test {
namespace {

const std::vector<double>& Final(const RunOutput& out) {
  EXPECT_TRUE(out.reply.starts_with("Message")) << out.reply;
  return out.blocks.at(0).back();
}

// How far apart two results are, in standard errors of their difference.
double Separation(const std::vector<double>& a, const std::vector<double>& b, int field) {
  return (a[static_cast<std::size_t>(field)] - b[static_cast<std::size_t>(field)]) /
         std::hypot(a[static_cast<std::size_t>(field) + 1], b[static_cast<std::size_t>(field) + 1]);
}

// A closed monogamous population of 30 kept at K for 50 years.
SimScenario Small(const std::string& name) {
  SimScenario s(name, 1, 30, 30);
  s.option(F("optMPHLQ_0")).text(F("txtNumIter"), "60").text(F("txtNumYear"), "50");
  return s;
}

std::size_t Births(const RunOutput& out) {
  std::size_t born = 0;
  for (const auto& fields : DataLines(out.created)) born += fields[7] == "Born";
  return born;
}

TEST(SimGeneticManagement, PairingByMeanKinshipKeepsGeneDiversity) {
  SimScenario byKinship = Small("Kinship");
  byKinship.check(F("chkGenMgtPairMeanKinship"));
  const auto random = Final(RunScenario({Small("Random")}, "Random", "SEED5"));
  const auto managed = Final(RunScenario({byKinship}, "Kinship", "SEED5"));
  EXPECT_GT(Separation(managed, random, kGeneDiv), 4.0);
  EXPECT_LT(managed[kInbreeding], random[kInbreeding]);
}

TEST(SimGeneticManagement, PreventingCloseMatingsHoldsInbreedingBelowTheLevel) {
  // No parents with offspring, no full sibs.
  SimScenario prevented = Small("Prevented");
  prevented.check(F("chkGenMgtPreventMatingsF")).text(F("txtGenMgtPreventMatingsF"), "0.25");
  const RunOutput out = RunScenario({prevented}, "Prevented", "SEED5;A");
  const auto random = Final(RunScenario({Small("Random")}, "Random", "SEED5"));
  EXPECT_GT(Separation(random, Final(out), kInbreeding), 4.0);
  const auto living = DataLines(out.living);
  ASSERT_FALSE(living.empty());
  for (const auto& fields : living) EXPECT_LE(std::stod(fields[7]), 0.25);
}

TEST(SimGeneticManagement, TheLowerLevelAppliesAndOptionsThatCannotApplyAreRefused) {
  SimScenario both = Small("Both");
  both.text(F("txtNumYear"), "30").check(F("chkGenMgtPreventMatingsF"));
  both.text(F("txtGenMgtPreventMatingsF"), "0.5").text(F("txtGenMgtPairingLimitation"), "0.25");
  const RunOutput out = RunScenario({both}, "Both", "SEED6;A");
  ASSERT_FALSE(DataLines(out.living).empty()) << out.reply;
  for (const auto& fields : DataLines(out.living)) EXPECT_LE(std::stod(fields[7]), 0.25);

  SimScenario noLevel = Small("NoLevel");
  noLevel.check(F("chkGenMgtPreventMatingsF"));
  SimScenario selfing = Small("Herm");
  selfing.option(F("optMPHLQ_2")).check(F("chkGenMgtPairMeanKinship"));
  SimScenario oneLocus = Small("OneLocus");
  oneLocus.text(F("txtGenMgtNumNeutralLoci"), "1").option(F("GTallyOptButton_1"));
  EXPECT_NE(RunScenario({noLevel}, "NoLevel", "").reply.find("PreventMatingsFValue: "), std::string::npos);
  EXPECT_NE(RunScenario({selfing}, "Herm", "").reply.find("PairMeanKinship: "), std::string::npos);
  EXPECT_NE(RunScenario({oneLocus}, "OneLocus", "").reply.find("NotLocus1: "), std::string::npos);
}

TEST(SimGeneticManagement, ManagedBreedingBreedsOnlyWhatKAndTheMateLimitAllow) {
  // Polygamous, 100 at K 100: unmanaged, the young far outnumber the places.
  auto base = [](const std::string& name) {
    SimScenario s(name, 1, 100, 100);
    return s.text(F("txtNumIter"), "10").text(F("txtNumYear"), "20").everyPopulation(F("gridRepRates1"), 1, "90");
  };
  SimScenario toK = base("ToK");
  toK.check(F("chkGenMgtBreedToMaintinK")).text(F("txtGenMgtMaxNumMates"), "100");
  const RunOutput free = RunScenario({base("Free")}, "Free", "SEED8;N");
  const RunOutput kept = RunScenario({toK}, "ToK", "SEED8;N");
  EXPECT_LT(Births(kept), Births(free) / 2);
  EXPECT_GT(Final(kept)[kAll], 85);

  // One male in five in the pool: one female each leaves most females without a mate.
  SimScenario few = base("Few");
  few.everyPopulation(F("gridDegMonop"), 1, "20").everyPopulation(F("gridCarryingCap1"), 1, "1000");
  few.check(F("chkGenMgtBreedToMaintinK")).text(F("txtGenMgtMaxNumMates"), "1");
  SimScenario many = few;
  many.text(F("txtSceneName"), "Many").text(F("txtGenMgtMaxNumMates"), "5");
  EXPECT_LT(Births(RunScenario({few}, "Few", "SEED8;N")), Births(RunScenario({many}, "Many", "SEED8;N")) / 2);
}

TEST(SimGeneticManagement, EstimatedMeanKinshipFollowsThePedigree) {
  sim::World world(11, 1);
  sim::GenomeShape shape;
  shape.neutralLoci = 1;
  world.genomes.reset(shape, 11);
  world.kinship.reset(true);
  std::vector<sim::Individual> members(40);
  for (sim::Individual& founder : members) founder.genome = sim::FounderGenome(world, founder.lethals);
  world.kinship.settle();
  // Six generations of 40 young, four of each of ten dams, with random sires.
  for (int generation = 0; generation < 6; ++generation) {
    std::vector<sim::Individual> young(40);
    for (std::size_t y = 0; y < young.size(); ++y) {
      const sim::Individual& dam = members[y / 4 * 2];
      const sim::Individual& sire = members[world.random.below(40)];
      young[y].genome = world.genomes.addChild(dam.genome, sire.genome, world.random).slot;
      world.kinship.addChild(young[y].genome, dam.genome, sire.genome);
    }
    world.kinship.settle();
    for (const sim::Individual& old : members) world.genomes.release(old.genome);
    members = young;
  }
  std::vector<double> exact, estimate;
  sim::MeanKinships(world, members, exact);
  world.kinship.reset(false);
  sim::MeanKinships(world, members, estimate);
  double mean = 0.0;
  for (std::size_t i = 0; i < members.size(); ++i) {
    EXPECT_NEAR(estimate[i], exact[i], 0.03);
    mean += exact[i] / members.size();
  }
  EXPECT_GT(mean, 0.1);  // related enough for the comparison to mean something
}

TEST(SimGeneticManagement, FounderAllelesTallyAndGeneticFiles) {
  const TestFolder folder;
  const std::string file = folder.file("frequencies.txt");
  std::ofstream(file) << "0.5 0.5\n0.25 0.25 0.25 0.25\n0.1 0.2 0.3 0.4\n";
  auto scenario = [&](const std::string& name, Field tally) {
    SimScenario s(name, 1, 40, 40);
    s.text(F("txtNumIter"), "20").text(F("txtNumYear"), "5").text(F("txtGenMgtNumNeutralLoci"), "3");
    return s.check(F("chkGenMgtAlleleFreqs")).text(F("txtGenMgtAlleleFreqs"), file).option(tally);
  };
  SimScenario all = scenario("All", F("GTallyOptButton_2"));
  all.check(F("chkGenMgtOutputGenePop")).check(F("chkGenMgtOutputAlleleFreq"));
  const RunOutput out = RunScenario({all}, "All", "SEED2");
  const auto start = out.blocks.at(0).front();
  EXPECT_NEAR(start[kGeneDiv], (0.5 + 0.75 + 0.7) / 3, 0.03);
  EXPECT_EQ(start[kInbreeding], 0.0);  // alike in state is not identical by descent
  const auto first = RunScenario({scenario("First", F("GTallyOptButton_0"))}, "First", "SEED2").blocks.at(0).front();
  EXPECT_LE(first[kAlleles], 2.0);
  EXPECT_NEAR(first[kGeneDiv], 0.5, 0.03);
  const auto rest = RunScenario({scenario("Rest", F("GTallyOptButton_1"))}, "Rest", "SEED2").blocks.at(0).front();
  EXPECT_GT(rest[kAlleles], 3.5);
  EXPECT_NEAR(rest[kGeneDiv], (0.75 + 0.7) / 2, 0.03);

  // Genepop: title, a line per locus, "Pop", then a six-digit genotype per locus for everyone alive.
  std::istringstream genePop(out.genePop);
  std::vector<std::string> lines;
  for (std::string line; std::getline(genePop, line);) lines.push_back(line.substr(0, line.find('\r')));
  ASSERT_GT(lines.size(), 5u);
  EXPECT_EQ(std::vector<std::string>(lines.begin() + 1, lines.begin() + 5),
            (std::vector<std::string>{"Locus1", "Locus2", "Locus3", "Pop"}));
  const std::regex individual("P1-[0-9]+ , 00[12]00[12] 00[1-4]00[1-4] 00[1-4]00[1-4]");
  for (std::size_t k = 5; k < lines.size(); ++k) EXPECT_TRUE(std::regex_match(lines[k], individual)) << lines[k];
  const auto finalN = std::stoul(DataLines(out.runTable).at(0).at(4));
  EXPECT_EQ(lines.size() - 5, finalN);

  // Allele frequencies: per iteration and locus, copies add up to 2N and frequencies to 1.
  std::map<std::pair<std::string, std::string>, std::pair<double, double>> sums;
  for (const auto& f : DataLines(out.alleleFrequencies)) {
    sums[{f[0], f[2]}].first += std::stod(f[4]);
    sums[{f[0], f[2]}].second += std::stod(f[5]);
  }
  EXPECT_EQ(sums.size(), 20u * 3);
  EXPECT_EQ((sums[{"1", "2"}].first), 2.0 * static_cast<double>(finalN));
  for (const auto& [key, sum] : sums) EXPECT_NEAR(sum.second, 1.0, 1e-4);
}

}  // namespace
}  // namespace tamsic::test
