// The yearly cycle. Each year, for all populations together:
//   1. environment: EV deviates (correlated among populations, concordant
//      for breeding and survival when asked), catastrophes, K of the year;
//   2. breeding, with the genetics of the newborns (lethals kill at birth);
//   3. mortality, then ageing;
//   4. state variables: the yearly values of individuals, then those of the
//      populations and the global ones;
//   5. dispersal;
//   6. harvest and supplementation;
//   7. removal of the excess over K, at random across ages and sexes;
//   8. census, which also applies the definition of extinction.
// Year 0 is the census of the founders, before any breeding. Every draw
// comes from the iteration's own random stream in this fixed order, so an
// iteration's results depend on the seed and its number only.
#include "sim/Iteration.h"

#include <cmath>

#include "sim/Journal.h"
#include "sim/RunMonitor.h"
#include "sim/SimContext.h"
#include "sim/StateVariables.h"
#include "sim/Steps.h"
#include "sim/TakeCensus.h"

namespace tamsic::sim {

namespace {

constexpr int kIbdLoci = 64;
constexpr double kLethalLociPerEquivalent = 4.0;

// A population with living animals in the studbook starts with them; the others as their inputs say.
void Found(const Model& m, const std::vector<StartingNumbers>& start, World& world) {
  const auto& studbook = m.genetics.studbook;
  if (studbook) FoundFromStudbook(m, world);
  for (std::size_t p = 0; p < start.size(); ++p) {
    if (studbook && studbook->populates(static_cast<int>(p))) continue;
    PopulationState& pop = world.pops[p];
    for (int sex : {kFemale, kMale})
      for (std::size_t a = 0; a < start[p].byAge[sex].size(); ++a)
        for (int k = 0; k < start[p].byAge[sex][a]; ++k)
          pop.members.push_back(MakeFounder(world, m.sexual() ? sex : kFemale, static_cast<int>(a) + 1,
                                             static_cast<int>(p), Origin::Founder));
  }
}

void Reset(const Model& m, std::uint64_t seed, int iteration, World& world) {
  world.random = Random(seed, static_cast<std::uint64_t>(iteration));
  world.genomes.reset(ShapeOf(m), Mix(seed ^ Mix(static_cast<std::uint64_t>(iteration) + 0x5bd1e995ULL)));
  world.kinship.reset(m.genetics.exactKinship());
  world.founderAlleles = m.genetics.founderAlleles.empty() ? nullptr : &m.genetics.founderAlleles;
  world.pops.resize(static_cast<std::size_t>(m.populations));
  for (std::size_t p = 0; p < world.pops.size(); ++p) {
    PopulationState& pop = world.pops[p];
    pop.members.clear();
    pop.counts = Counts{};
    pop.year = YearConditions{};
    pop.lastCatastrophe.assign(m.pops[p].catastrophes.size(), -1);
    pop.extinct = false;
  }
  world.nextId = 1;
  world.iteration = iteration;
  world.year = 0;
}

// Dispersal looks at the sizes of populations only for its least size and for the option "M".
bool DispersalReadsCounts(const Model& m) {
  return m.populations > 1 && (m.dispersalMinimum || m.options.noDispersalIntoFull);
}

}  // namespace

GenomeShape ShapeOf(const Model& m) {
  GenomeShape shape;
  shape.neutralLoci = m.neutralLoci;
  shape.ibdLoci = std::max(kIbdLoci, m.neutralLoci);
  if (!m.genetics.founderAlleles.empty()) {
    // Alleles alike in state need not be identical by descent: identity loci of their own.
    shape.ibdFirst = m.neutralLoci;
    shape.ibdLoci = kIbdLoci;
    shape.drawnAlleles = m.genetics.alleleKinds;
  }
  const double lethal = m.inbreedingDepression ? m.lethalEquivalents * m.percentLethal / 100.0 : 0.0;
  if (lethal > 0.0) {
    // Many loci with a modest share of lethal founder alleles, so that
    // selection can purge them; the share makes a fully inbred individual
    // survive the lethals with exp(-lethal equivalents).
    shape.lethalLoci = static_cast<int>(std::ceil(kLethalLociPerEquivalent * lethal));
    shape.lethalShare = 1.0 - std::exp(-lethal / shape.lethalLoci);
  }
  return shape;
}

bool RunIteration(const Model& m, const std::vector<StartingNumbers>& start, std::uint64_t seed, int iteration,
                  World& world, IterationRecord& record) {
  const RunMonitor& monitor = RunMonitor::get();
  Reset(m, seed, iteration, world);
  record.reset(m.populations > 1 ? m.populations + 1 : 1, m.years, m.userVariables);
  world.created = m.options.createdFile ? &record.journal.created : nullptr;
  SimContext context(m, world, seed);
  Found(m, start, world);
  StartStates(m, world, context);
  TakeCensus(m, world, record);
  RecordStates(m, world, record);
  NoteCensus(m, world, record);
  for (world.year = 1; world.year <= m.years; ++world.year) {
    if (monitor.cancelled()) {
      world.created = nullptr;
      return false;
    }
    // The counts of last year's census hold until the first births.
    DrawEnvironment(m, world, context);
    Breed(m, world, context);
    if (m.needsCounts) Recount(m, world);
    SurviveAndAge(m, world, context);
    if (m.needsCounts || DispersalReadsCounts(m)) Recount(m, world);
    AdvanceStates(m, world, context);
    Disperse(m, world, context);
    if (m.needsCounts) Recount(m, world);
    HarvestAndSupplement(m, world, context);
    TruncateToCapacity(world);
    TakeCensus(m, world, record);
    RecordStates(m, world, record);
    NoteCensus(m, world, record);
  }
  NoteLiving(m, world, record);
  NoteGenotypes(m, world, record);
  world.created = nullptr;
  return true;
}

}  // namespace tamsic::sim
