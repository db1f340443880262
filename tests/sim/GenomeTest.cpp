// The genome pool packs 16-bit alleles until the founders outgrow them, then
// repacks itself with 32-bit alleles; identity by descent must survive that,
// and the census must count the alleles the same way in both.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "SimTestSupport.h"
#include "sim/AlleleTally.h"
#include "sim/Genome.h"

namespace tamsic::sim {
namespace {

// A pool of the shape started afresh with `count` founders.
std::vector<std::uint32_t> Founders(GenomePool& pool, const GenomeShape& shape, std::uint64_t seed, int count) {
  pool.reset(shape, seed);
  std::uint8_t lethals = 0;
  std::vector<std::uint32_t> founders;
  for (int k = 0; k < count; ++k) founders.push_back(pool.addFounder(lethals));
  return founders;
}

TEST(SimGenome, WideningKeepsEveryAlleleAndItsIdentity) {
  GenomeShape shape;
  shape.ibdLoci = 70;  // not a whole number of words
  shape.neutralLoci = 10;
  shape.lethalLoci = 70;  // two words of lethal bits, starting mid-draw
  shape.lethalShare = 0.3;
  GenomePool pool;
  pool.reset(shape, 9);
  Random random(9, 1);
  std::uint8_t lethals = 0;
  const std::uint32_t first = pool.addFounder(lethals);
  EXPECT_GT(lethals, 20);  // about 0.3 of 2 x 70
  EXPECT_LT(lethals, 65);
  const std::uint32_t second = pool.addFounder(lethals);
  Random again = random;
  const Newborn child = pool.addChild(first, second, random);
  const Newborn selfed = pool.addChild(first, first, random);
  EXPECT_FALSE(pool.wide());
  EXPECT_EQ(child.inbreeding, 0.0f);
  EXPECT_GT(selfed.inbreeding, 0.25f);  // half the loci identical on average
  EXPECT_LT(selfed.inbreeding, 0.75f);
  std::vector<std::uint32_t> before;
  for (int l = 0; l < shape.ibdLoci; ++l)
    before.push_back(pool.allele(child.slot, 0, l) << 16 | pool.allele(child.slot, 1, l));

  std::uint32_t last = 0;
  for (int k = 2; k < 40000; ++k) last = pool.addFounder(lethals);
  EXPECT_TRUE(pool.wide());
  EXPECT_EQ(pool.alleleCount(), 80000u);
  EXPECT_EQ(pool.allele(last, 0, 69), 79998u);
  EXPECT_EQ(pool.allele(last, 1, 0), 79999u);
  for (int l = 0; l < shape.ibdLoci; ++l) {
    EXPECT_EQ(pool.allele(child.slot, 0, l), 0u + (pool.allele(child.slot, 0, l) & 1));  // from the first founder
    EXPECT_EQ(before[static_cast<std::size_t>(l)], pool.allele(child.slot, 0, l) << 16 | pool.allele(child.slot, 1, l));
  }
  // The same birth after widening: the same alleles, identity and lethals.
  const Newborn twin = pool.addChild(first, second, again);
  for (int l = 0; l < shape.loci(); ++l)
    for (int h = 0; h < 2; ++h) EXPECT_EQ(pool.allele(twin.slot, h, l), pool.allele(child.slot, h, l)) << l;
  EXPECT_EQ(twin.inbreeding, child.inbreeding);
  EXPECT_EQ(twin.lethals, child.lethals);
  EXPECT_GT(child.lethals, 0);
  EXPECT_DOUBLE_EQ(pool.kinship(last, last), 0.5);
  EXPECT_DOUBLE_EQ(pool.kinship(first, last), 0.0);
  // Children after widening: alleles from their parents, none mistaken for another's.
  const Newborn late = pool.addChild(last, first, random);
  EXPECT_EQ(late.inbreeding, 0.0f);
  std::set<std::uint32_t> maternal;
  for (int l = 0; l < shape.ibdLoci; ++l) maternal.insert(pool.allele(late.slot, 0, l));
  EXPECT_EQ(maternal, (std::set<std::uint32_t>{79998u, 79999u}));
}

// With every founder allele lethal, a newborn lives exactly when no lethal
// locus holds the same allele twice: wherever the lethal loci start within
// a block, in one word of lethal bits or two, in narrow and wide pools.
TEST(SimGenome, NewbornsDieOfALethalAlleleHeldTwice) {
  for (int lethalLoci : {13, 70})
    for (bool wide : {false, true}) {
      GenomeShape shape;
      shape.ibdFirst = 3;
      shape.neutralLoci = 3;
      shape.ibdLoci = 70;
      shape.lethalLoci = lethalLoci;
      shape.lethalShare = 1.0;
      GenomePool pool;
      std::vector<std::uint32_t> family = Founders(pool, shape, 5, 4);
      std::uint8_t lethals = 0;
      for (int k = 0; wide && k < 33000; ++k) pool.release(pool.addFounder(lethals));
      ASSERT_EQ(pool.wide(), wide);
      Random random(5, 2);
      int lived = 0, died = 0;
      for (int k = 0; k < 300; ++k) {
        const auto parent = [&] { return family[random.below(static_cast<std::uint32_t>(family.size()))]; };
        const std::uint32_t dam = parent();
        const Newborn child = pool.addChild(dam, parent(), random);
        bool twice = false;
        for (int l = shape.lethalFirst(); l < shape.loci(); ++l)
          twice |= pool.allele(child.slot, 0, l) == pool.allele(child.slot, 1, l);
        EXPECT_EQ(child.viable, !twice) << lethalLoci << wide << k;
        ++(child.viable ? lived : died);
        family.push_back(child.slot);
      }
      EXPECT_GT(lived, 0) << lethalLoci << wide;
      EXPECT_GT(died, 0) << lethalLoci << wide;
    }
}

// The census counts alleles into a table a word of loci at a time, summing
// the metapopulation's counts alongside, and takes the sums by sweeping the
// table or by visiting the alleles again; sorting each locus' alleles is the
// plain way to the same sums. Loci that fill no whole word, a first locus
// left out, small and large populations, narrow and wide pools, counts of 16
// and of 32 bits.
TEST(SimGenome, CensusCountsAgreeWithSortedAlleles) {
  for (bool wide : {false, true}) {
    GenomeShape shape;
    shape.neutralLoci = 13;
    GenomePool pool;
    Random random(5, 1);
    std::uint8_t lethals = 0;
    const std::vector<std::uint32_t> founders = Founders(pool, shape, 5, 30);
    // Founder alleles beyond 16 bits, none of them carried by anyone: a sparse table.
    for (int k = 0; wide && k < 33000; ++k) pool.release(pool.addFounder(lethals));
    ASSERT_EQ(pool.wide(), wide);
    std::vector<PopulationState> pops(3);
    for (std::size_t p = 0; p < pops.size(); ++p)
      for (std::size_t i = 0; i < std::vector<std::size_t>{400, 60, 3}[p]; ++i) {
        Individual ind;
        ind.genome = pool.addChild(founders[random.below(30)], founders[random.below(30)], random).slot;
        pops[p].members.push_back(ind);
      }
    const auto census = [&](auto count) {
      using Count = decltype(count);
      for (int first : {0, 1}) {
        const TalliedLoci loci{first, shape.neutralLoci};
        const std::size_t table = static_cast<std::size_t>(loci.end) * pool.alleleCount();
        std::vector<Count> counts(2 * table);
        std::vector<std::uint32_t> room;
        Tally meta;
        for (const PopulationState& pop : pops) {
          Tally byTable, bySorting;
          CountByTable(pool, loci, pop, counts.data(), byTable, counts.data() + table, &meta);
          CountBySorting(pool, loci, &pop, &pop + 1, room, bySorting);
          EXPECT_EQ(byTable.squares, bySorting.squares) << wide << first << pop.members.size() << sizeof(Count);
          EXPECT_EQ(byTable.distinct, bySorting.distinct) << wide << first << pop.members.size() << sizeof(Count);
          EXPECT_EQ(byTable.individuals, static_cast<long>(pop.members.size()));
        }
        Settle(pool, loci, pops.data(), pops.data() + pops.size(), counts.data() + table, meta,
               static_cast<Count*>(nullptr));
        Tally all;
        CountBySorting(pool, loci, pops.data(), pops.data() + pops.size(), room, all);
        EXPECT_EQ(meta.squares, all.squares) << wide << first << sizeof(Count);
        EXPECT_EQ(meta.distinct, all.distinct) << wide << first << sizeof(Count);
        EXPECT_EQ(meta.individuals, 463);
        EXPECT_TRUE(std::all_of(counts.begin(), counts.end(), [](Count c) { return c == 0; }));
      }
    };
    census(std::uint16_t{});
    census(std::uint32_t{});
  }
}

// Drift loses founder alleles; the neutral loci are then numbered anew so
// that the census' table narrows. Nothing a reader sees may change: the
// founder allele behind each number, identity by descent, the census'
// sums, children's inheritance, later founders, later renumberings and
// widening the pool.
TEST(SimGenome, RenumberingNeutralLociKeepsEveryAllele) {
  GenomeShape shape;
  shape.neutralLoci = 10;
  shape.lethalLoci = 13;
  shape.lethalShare = 0.2;
  GenomePool pool;
  Random random(3, 1);
  std::uint8_t lethals = 0;
  const std::vector<std::uint32_t> founders = Founders(pool, shape, 3, 50);
  std::vector<std::uint32_t> living;
  for (int k = 0; k < 200; ++k)
    living.push_back(pool.addChild(founders[random.below(8)], founders[random.below(8)], random).slot);
  for (std::size_t k = 3; k < founders.size(); ++k) pool.release(founders[k]);
  living.insert(living.end(), founders.begin(), founders.begin() + 3);
  const auto alleles = [&] {
    std::vector<std::uint32_t> all;
    for (std::uint32_t slot : living)
      for (int l = 0; l < shape.loci(); ++l)
        for (int h = 0; h < 2; ++h) all.push_back(pool.allele(slot, h, l));
    for (std::size_t k = 0; k + 1 < living.size(); k += 7)
      all.push_back(static_cast<std::uint32_t>(256 * pool.kinship(living[k], living[k + 1])));
    return all;
  };
  const auto census = [&] {
    PopulationState pop;
    for (std::uint32_t slot : living) pop.members.push_back(Individual{.genome = slot});
    const TalliedLoci loci{0, shape.neutralLoci};
    std::vector<std::uint16_t> counts(static_cast<std::size_t>(loci.end) * pool.neutralColumns());
    std::vector<std::uint32_t> room;
    Tally byTable, bySorting;
    CountByTable(pool, loci, pop, counts.data(), byTable, static_cast<std::uint16_t*>(nullptr), nullptr);
    CountBySorting(pool, loci, &pop, &pop + 1, room, bySorting);
    EXPECT_EQ(byTable.squares, bySorting.squares);
    EXPECT_EQ(byTable.distinct, bySorting.distinct);
    return std::pair{byTable.squares, byTable.distinct};
  };
  const auto before = alleles();
  const auto counted = census();
  pool.renumberNeutral({});  // found from the free slots
  EXPECT_LE(pool.neutralColumns(), 22u);  // eight founders' alleles and three kept founders'
  EXPECT_EQ(pool.alleleCount(), 100u);
  EXPECT_EQ(alleles(), before);
  EXPECT_EQ(census(), counted);

  // A later founder takes new numbers above the rest; its children inherit them.
  const std::uint32_t late = pool.addFounder(lethals);
  EXPECT_EQ(pool.allele(late, 1, 0), 101u);
  EXPECT_EQ(pool.allele(late, 0, 40), 100u);
  const Newborn child = pool.addChild(late, living[0], random);
  for (int l = 0; l < shape.neutralLoci; ++l) {
    EXPECT_EQ(pool.allele(child.slot, 0, l) & ~1u, 100u);
    const std::uint32_t paternal = pool.allele(child.slot, 1, l);
    EXPECT_TRUE(paternal == pool.allele(living[0], 0, l) || paternal == pool.allele(living[0], 1, l));
  }
  living.push_back(late);
  living.push_back(child.slot);
  // Widening after renumbering, then renumbering again over the old numbers.
  for (int k = 0; k < 33000; ++k) pool.release(pool.addFounder(lethals));
  ASSERT_TRUE(pool.wide());
  const auto widened = alleles();
  const auto widenedCounts = census();
  pool.renumberNeutral(living);  // every slot in use, as the census gives them
  EXPECT_LE(pool.neutralColumns(), 24u);
  EXPECT_EQ(alleles(), widened);
  EXPECT_EQ(census(), widenedCounts);
}

}  // namespace
}  // namespace tamsic::sim

namespace tamsic::test {
namespace {

// In year 0 every founder allele is distinct: 2N alleles per locus and gene
// diversity 1 - 1/(2N), whatever the way the census counts them.
void ExpectEveryFounderAlleleDistinct(const RunOutput& out) {
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  for (const Block& block : out.blocks) {
    const double n = block[0][kAll];
    EXPECT_EQ(block[0][kAlleles], 2 * n);
    EXPECT_NEAR(block[0][kGeneDiv], 1 - 1 / (2 * n), 1e-6);
  }
}

// More than 65536 founder alleles: the pool has widened.
TEST(SimGenome, LargeFoundingPopulationsKeepEveryFounderAllele) {
  // More founders than one age class may hold: 10000 of each sex at each of four ages.
  SimScenario big("Big", 1, 0, 60000);
  big.text(F("txtNumIter"), "1").text(F("txtNumYear"), "1").option(F("optStartWith_1"));
  for (std::size_t age = 1; age <= 4; ++age)
    big.everyPopulation(F("gridInitPopFemale"), age, "10000").everyPopulation(F("gridInitPopMale"), age, "10000");
  const RunOutput out = RunScenario({big}, "Big", "SEED2");
  ExpectEveryFounderAlleleDistinct(out);
  EXPECT_GT(out.blocks[0][1][kAlleles], 65536.0);
}

// Many neutral loci and many founders would need a table of counts larger
// than the individuals; the census sorts each locus' alleles instead.
TEST(SimGenome, CensusWithoutATableForManyLociAndFounders) {
  SimScenario many("Many", 2, 4300, 9000);
  many.text(F("txtNumIter"), "1").text(F("txtNumYear"), "1").text(F("txtGenMgtNumNeutralLoci"), "1000");
  ExpectEveryFounderAlleleDistinct(RunScenario({many}, "Many", "SEED3"));
}

}  // namespace
}  // namespace tamsic::test
