#include "sim/TakeCensus.h"

#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

bool Extinct(const Model& m, int n, int females, int males) {
  if (m.criticalSizeExtinction && n < m.criticalSize) return true;
  return m.sexual() ? females == 0 || males == 0 : n == 0;
}

// A population that meets the definition of extinction is gone: its last
// members die out without a mate (or are below the critical size). Dispersers
// may found it again later.
void ClearIfExtinct(const Model& m, World& world, PopulationState& pop) {
  pop.extinct = Extinct(m, pop.counts.n, pop.counts.females, pop.counts.males);
  if (!pop.extinct || pop.members.empty()) return;
  for (const Individual& ind : pop.members) world.genomes.release(ind.genome);
  pop.members.clear();
  pop.counts = Counts{};
}

// Expected heterozygosity and alleles per locus over the neutral loci of
// the members of the given populations. The sum of squared counts grows by
// 2c + 1 when a count c grows by one, so no list of alleles seen is needed;
// a second pass clears the counts.
void Genetics(World& world, int firstPop, int endPop, Census& out) {
  const GenomePool& g = world.genomes;
  const auto loci = static_cast<std::size_t>(g.shape().neutralLoci);
  const std::size_t alleles = g.alleleCount();
  world.alleleCounts.resize(loci * alleles);
  std::uint32_t* counts = world.alleleCounts.data();
  double squares = 0.0;
  long distinct = 0, n = 0;
  for (int p = firstPop; p < endPop; ++p)
    for (const Individual& ind : world.pops[static_cast<std::size_t>(p)].members) {
      ++n;
      const std::uint32_t* genome = g.alleles(ind.genome);
      for (std::size_t l = 0; l < 2 * loci; ++l) {
        std::uint32_t& c = counts[(l / 2) * alleles + genome[l]];
        squares += 2.0 * c + 1.0;
        distinct += c == 0;
        ++c;
      }
    }
  for (int p = firstPop; p < endPop; ++p)
    for (const Individual& ind : world.pops[static_cast<std::size_t>(p)].members) {
      const std::uint32_t* genome = g.alleles(ind.genome);
      for (std::size_t l = 0; l < 2 * loci; ++l) counts[(l / 2) * alleles + genome[l]] = 0;
    }
  if (n == 0) return;
  const double copies = 2.0 * static_cast<double>(n);
  out.geneDiversity = static_cast<float>(1.0 - squares / (copies * copies) / static_cast<double>(loci));
  out.alleles = static_cast<float>(static_cast<double>(distinct) / static_cast<double>(loci));
}

void Describe(World& world, int firstPop, int endPop, Census& out) {
  double inbreeding = 0.0, lethals = 0.0;
  for (int p = firstPop; p < endPop; ++p)
    for (const Individual& ind : world.pops[static_cast<std::size_t>(p)].members) {
      ++out.n;
      inbreeding += ind.inbreeding;
      lethals += ind.lethals;
    }
  if (out.n == 0) return;
  out.inbreeding = static_cast<float>(inbreeding / out.n);
  out.lethals = static_cast<float>(lethals / out.n);
  Genetics(world, firstPop, endPop, out);
}

}  // namespace

void TakeCensus(const Model& m, World& world, IterationRecord& record) {
  Recount(m, world);
  for (int p = 0; p < m.populations; ++p) {
    PopulationState& pop = world.pops[static_cast<std::size_t>(p)];
    ClearIfExtinct(m, world, pop);
    Census& census = record.at(p, world.year);
    Describe(world, p, p + 1, census);
    census.extinct = pop.extinct;
    pop.geneDiversity = census.geneDiversity;
    if (world.year == 0) pop.initialGeneDiversity = census.geneDiversity;
  }
  if (m.populations == 1) return;
  const int tallied = m.options.excludeLastPopulation ? m.populations - 1 : m.populations;
  Census& meta = record.at(m.populations, world.year);
  Describe(world, 0, tallied, meta);
  int females = 0, males = 0;
  for (int p = 0; p < tallied; ++p) {
    females += world.pops[static_cast<std::size_t>(p)].counts.females;
    males += world.pops[static_cast<std::size_t>(p)].counts.males;
  }
  meta.extinct = Extinct(m, meta.n, females, males);
}

}  // namespace tamsic::sim
