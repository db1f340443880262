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
// the members of the given populations.
void Genetics(World& world, int firstPop, int endPop, Census& out) {
  const GenomePool& g = world.genomes;
  const int loci = g.shape().neutralLoci;
  const std::size_t alleles = g.alleleCount();
  world.alleleCounts.resize(static_cast<std::size_t>(loci) * alleles);
  std::vector<std::uint32_t>& touched = world.scratchA;
  touched.clear();
  long n = 0;
  for (int p = firstPop; p < endPop; ++p)
    for (const Individual& ind : world.pops[static_cast<std::size_t>(p)].members) {
      ++n;
      for (int l = 0; l < loci; ++l)
        for (int h = 0; h < 2; ++h) {
          const std::size_t k = static_cast<std::size_t>(l) * alleles + g.allele(ind.genome, h, l);
          if (world.alleleCounts[k]++ == 0) touched.push_back(static_cast<std::uint32_t>(k));
        }
    }
  if (n == 0) return;
  double homozygosity = 0.0;
  for (std::uint32_t k : touched) {
    const double share = world.alleleCounts[k] / (2.0 * static_cast<double>(n));
    homozygosity += share * share;
    world.alleleCounts[k] = 0;
  }
  out.geneDiversity = static_cast<float>(1.0 - homozygosity / loci);
  out.alleles = static_cast<float>(static_cast<double>(touched.size()) / loci);
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
