// The simulation against results worked out independently of it: the
// growth rate of the life table, the growth of a population free of density
// effects, drift in a closed population, extinction of a branching process,
// and the metapopulation as its populations taken together.
#include <gtest/gtest.h>

#include <Eigen/Eigenvalues>
#include <cmath>
#include <filesystem>
#include <map>
#include <numeric>

#include "SimTestSupport.h"
#include "sim/LifeTable.h"
#include "sim/ReadModel.h"
#include "sim/RunMonitor.h"
#include "sim/Simulate.h"

namespace tamsic::test {
namespace {

double Mean(const Block& block, int field, int fromYear) {
  double sum = 0.0;
  for (std::size_t y = static_cast<std::size_t>(fromYear); y < block.size(); ++y) sum += block[y][field];
  return sum / static_cast<double>(block.size() - static_cast<std::size_t>(fromYear));
}

// The default life history by hand: daughters per female from age 2, survival 0.6, 0.8, then 0.9.
double EulerLotkaLambda() {
  const double young = (0.2707 * 1 + 0.2707 * 2 + 0.1804 * 3 + 0.1429 * 4) / (0.1353 + 0.2707 + 0.2707 + 0.1804 + 0.1429);
  const double daughters = 0.5 * young * 0.5;
  auto sum = [&](double lambda) {
    double reach = 0.6 * 0.8, total = 0.0;
    for (int x = 2; x <= 10; ++x, reach *= 0.9) total += daughters * reach * std::pow(lambda, -x);
    return total;
  };
  double low = 0.5, high = 2.0;
  for (int i = 0; i < 100; ++i) (sum(0.5 * (low + high)) > 1.0 ? low : high) = 0.5 * (low + high);
  return 0.5 * (low + high);
}

TEST(SimChecks, ACancelStopsAnIterationWithinAYear) {
  const SimScenario s("Long", 1, 500, 60000);
  const sim::Model model = sim::ReadModel(s.scenario(), std::filesystem::current_path(), {});
  std::vector<sim::LifeTable> tables{sim::BuildLifeTable(model, 0)};
  const auto start = sim::StartingPopulations(model, tables);
  sim::World world(1, 1);
  sim::IterationRecord record;
  sim::RunMonitor& monitor = sim::RunMonitor::get();
  monitor.start(1);
  EXPECT_TRUE(sim::RunIteration(model, start, 1, 1, world, record));
  monitor.requestCancel();
  EXPECT_FALSE(sim::RunIteration(model, start, 1, 1, world, record));
  EXPECT_EQ(world.year, 1) << "stopped before the first simulated year";
  monitor.finish();
}

TEST(SimChecks, DeterministicGrowthIsTheDominantEigenvalue) {
  const SimScenario s("Life", 1, 500, 60000);
  const sim::Model model = sim::ReadModel(s.scenario(), std::filesystem::current_path(), {});
  const sim::LifeTable table = sim::BuildLifeTable(model, 0);
  EXPECT_NEAR(table.lambda, EulerLotkaLambda(), 1e-4);
  EXPECT_NEAR(table.r, std::log(EulerLotkaLambda()), 1e-4);
  // The stable distribution is the dominant eigenvector of the females' projection matrix.
  const std::vector<double> a = sim::ProjectionMatrix(table);
  Eigen::MatrixXd m(10, 10);
  for (int i = 0; i < 10; ++i)
    for (int j = 0; j < 10; ++j) m(i, j) = a[static_cast<std::size_t>(i * 10 + j)];
  Eigen::EigenSolver<Eigen::MatrixXd> solver(m);
  int best = 0;
  for (int i = 1; i < 10; ++i)
    if (solver.eigenvalues()[i].real() > solver.eigenvalues()[best].real()) best = i;
  const Eigen::VectorXd v = solver.eigenvectors().col(best).real();
  for (int x = 1; x < 10; ++x)
    EXPECT_NEAR(v[x] / v[0], table.stable[0][static_cast<std::size_t>(x)] / table.stable[0][0], 1e-6);
}

// Every class equally likely, fewer individuals than classes: the places go
// to both sexes in turn, not all to the females listed first.
TEST(SimChecks, StableNumbersShareTiedPlacesBetweenTheSexes) {
  sim::LifeTable table;
  table.maxAge = 40;
  for (auto& shares : table.stable) shares.assign(40, 1.0 / 80);
  std::vector<int> numbers[2];
  sim::StableNumbers(table, 40, numbers);
  EXPECT_EQ(std::accumulate(numbers[0].begin(), numbers[0].end(), 0), 20);
  EXPECT_EQ(std::accumulate(numbers[1].begin(), numbers[1].end(), 0), 20);
}

TEST(SimChecks, StochasticGrowthAgreesWithTheLifeTable) {
  SimScenario s("Growth", 1, 500, 60000);
  s.text(F("txtNumIter"), "40").text(F("txtNumYear"), "15");
  const RunOutput out = RunScenario({s}, "Growth", "SEED7");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  const Block& b = out.blocks.at(0);
  const double detR = b[1][kDetR];
  EXPECT_NEAR(detR, std::log(EulerLotkaLambda()), 1e-4);
  double se = 0.0;
  for (std::size_t y = 1; y < b.size(); ++y) se += b[y][kStochRSE];
  se /= static_cast<double>(b.size() - 1) * std::sqrt(static_cast<double>(b.size() - 1));
  EXPECT_NEAR(Mean(b, kStochR, 1), detR, 4 * se);
}

// Non-overlapping generations of N hermaphrodites that each have 20 young,
// of which N survive at random: a Wright-Fisher population with selfing.
TEST(SimChecks, DriftMatchesTheEffectiveSize) {
  const int n = 50, generations = 20;
  SimScenario s("Drift", 1, n, n);
  s.option(F("optMPHLQ_2")).option(F("optUseMean_0")).text(F("txtNumIter"), "60");
  s.text(F("txtNumYear"), std::to_string(generations)).text(F("txtAgeReproF"), "1").text(F("txtMaxAgeRepro"), "1");
  s.text(F("txtMaxProgeny"), "20").text(F("txtGenMgtNumNeutralLoci"), "100");
  s.everyPopulation(F("gridRepRates1"), 1, "100").everyPopulation(F("gridRepRates2"), 1, "20");
  s.everyPopulation(F("gridRepRates2"), 2, "0").everyPopulation(F("gridMortFemales"), 1, "0");
  const RunOutput out = RunScenario({s}, "Drift", "SEED11");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  // Gametes per parent: the young of its own brood among the N kept (hypergeometric),
  // plus the kept young of the broods it sired (a brood has one sire, chosen by
  // Binomial(N, 1/N) mothers), plus twice their covariance through selfing; then
  // the effective size of a monoecious population with selfing.
  const double kept = n * (1.0 / n) * (1 - 1.0 / n) * (20.0 * n - n) / (20.0 * n - 1);
  const double sired = kept + (1 - 1.0 / n);
  const double vk = kept + sired + 2 * kept / n;
  const double ne = (4.0 * n - 2) / (vk + 2);
  const double loss = std::pow(1 - 1 / (2 * ne), generations);
  const Block& b = out.blocks.at(0);
  EXPECT_NEAR(b[generations][kGeneDiv] / b[0][kGeneDiv], loss, 3 * b[generations][kGeneDiv + 1] + 0.01);
  EXPECT_NEAR(b[generations][kInbreeding], 1 - loss, 3 * b[generations][kInbreeding + 1] + 0.01);
}

// One hermaphrodite that has 0, 1 or 2 young (20, 20, 60 %) and dies: the
// line dies out with probability q = f(q) = 0.2 + 0.2 q + 0.6 q^2, q = 1/3.
TEST(SimChecks, BranchingProcessExtinction) {
  SimScenario s("Branch", 1, 1, 400);
  s.option(F("optMPHLQ_2")).text(F("txtNumIter"), "1000").text(F("txtNumYear"), "25");
  s.text(F("txtAgeReproF"), "1").text(F("txtMaxAgeRepro"), "1").text(F("txtGenMgtNumNeutralLoci"), "1");
  s.everyPopulation(F("gridRepRates1"), 1, "100").everyPopulation(F("gridMortFemales"), 1, "0");
  const char* young[] = {"20", "20", "60", "0", "0"};
  for (std::size_t k = 0; k < 5; ++k) s.cell(F("gridRepRates3"), k + 1, 1, young[k]);
  const RunOutput out = RunScenario({s}, "Branch", "SEED3");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  const double q = 1.0 / 3.0;
  const double extinct = 1.0 - out.blocks.at(0).back()[kSurvive];
  EXPECT_NEAR(extinct, q, 3 * std::sqrt(q * (1 - q) / 1000));
}

TEST(SimChecks, SameSeedSameFilesForAnyNumberOfThreads) {
  SimScenario s("Meta", 3, 60, 120);
  s.text(F("txtNumIter"), "12").text(F("txtEV"), "0.5").text(F("txtNumCatast"), "0").check(F("chkEVConcord"));
  s.check(F("chkDispFemales")).check(F("chkDispMales")).check(F("chkDepress"));
  s.text(F("txtLethalEquiv"), "3").text(F("txtPercentLethal"), "50");
  s.everyPopulation(F("gridRepRates1"), 2, "10").everyPopulation(F("gridMortFemales"), 2, "5");
  for (std::size_t p = 1; p <= 3; ++p)
    for (std::size_t q = 1; q <= 3; ++q)
      if (p != q) s.cell(F("gridDispRates"), p, q, "5");
  const RunOutput one = RunScenario({s}, "Meta", "SEED5;THREADS1");
  const RunOutput two = RunScenario({s}, "Meta", "SEED5;THREADS2");
  const RunOutput three = RunScenario({s}, "Meta", "SEED5;THREADS3");
  ASSERT_TRUE(one.reply.starts_with("Message")) << one.reply;
  EXPECT_EQ(one.files, two.files);
  EXPECT_EQ(one.files, three.files);
  EXPECT_EQ(one.blocks.size(), 4u);
  EXPECT_NE(one.files, RunScenario({s}, "Meta", "SEED6;THREADS2").files);
}

// Two populations of very different size with no dispersal share no allele,
// so the metapopulation's allele counts are theirs side by side: its number
// of alleles is their sum and its gene diversity follows from theirs. (The
// census takes a large population's counts by a sweep of its table and a
// small one's allele by allele; both must reach the metapopulation.)
TEST(SimChecks, MetapopulationIsThePopulationsTogether) {
  SimScenario two("Two", 2, 300, 400);
  two.text(F("txtNumIter"), "8").text(F("txtNumYear"), "6").text(F("txtGenMgtNumNeutralLoci"), "12");
  two.cell(F("gridInitPopStable"), 2, 1, "6").cell(F("gridCarryingCap1"), 2, 1, "8");
  const RunOutput out = RunScenario({two}, "Two", "SEED5");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  struct Final { double n, geneDiv, alleles; };
  std::map<std::string, std::map<std::string, Final>> finals;  // iteration -> population -> final state
  for (const auto& f : DataLines(out.runTable)) finals[f[0]][f[1]] = {std::stod(f[4]), std::stod(f[5]), std::stod(f[7])};
  ASSERT_EQ(finals.size(), 8u);
  for (auto& [iteration, block] : finals) {
    const Final a = block["1"], b = block["2"], meta = block["Metapopulation"];
    EXPECT_EQ(meta.n, a.n + b.n);
    EXPECT_NEAR(meta.alleles, a.alleles + b.alleles, 1e-3 * meta.alleles) << iteration;
    const double squares = (1 - a.geneDiv) * 4 * a.n * a.n + (1 - b.geneDiv) * 4 * b.n * b.n;
    EXPECT_NEAR(meta.geneDiv, 1 - squares / (4 * meta.n * meta.n), 1e-4) << iteration;
  }
}

}  // namespace
}  // namespace tamsic::test
