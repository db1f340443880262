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

// Neutral-locus statistics of a group of individuals: the sum of squared
// allele counts grows by 2c + 1 when a count c grows by one, so no list of
// the alleles seen is needed.
struct Tally {
  double squares = 0.0;
  long distinct = 0;
  long individuals = 0;
  double inbreeding = 0.0;
  double lethals = 0.0;

  void add(std::uint32_t& count) {
    squares += 2.0 * count + 1.0;
    distinct += count == 0;
    ++count;
  }
  void store(int loci, Census& out) const {
    out.n = static_cast<int>(individuals);
    if (individuals == 0) return;
    const double copies = 2.0 * static_cast<double>(individuals);
    out.inbreeding = static_cast<float>(inbreeding / individuals);
    out.lethals = static_cast<float>(lethals / individuals);
    out.geneDiversity = static_cast<float>(1.0 - squares / (copies * copies) / loci);
    out.alleles = static_cast<float>(static_cast<double>(distinct) / loci);
  }
};

// Counts the members into their population's table and, when `meta` is
// given, into the metapopulation's in the same pass over their genomes.
void Count(const GenomePool& g, const std::vector<Individual>& members, std::uint32_t* own, Tally& ownTally,
           std::uint32_t* meta, Tally* metaTally) {
  const std::size_t copies = 2 * static_cast<std::size_t>(g.shape().neutralLoci);
  const std::size_t alleles = g.alleleCount();
  for (const Individual& ind : members) {
    const std::uint32_t* genome = g.alleles(ind.genome);
    for (Tally* t : {&ownTally, metaTally}) {
      if (!t) continue;
      ++t->individuals;
      t->inbreeding += ind.inbreeding;
      t->lethals += ind.lethals;
    }
    for (std::size_t l = 0; l < copies; ++l) {
      const std::size_t k = (l / 2) * alleles + genome[l];
      ownTally.add(own[k]);
      if (meta) metaTally->add(meta[k]);
    }
  }
}

void Clear(const GenomePool& g, const std::vector<Individual>& members, std::uint32_t* counts) {
  const std::size_t copies = 2 * static_cast<std::size_t>(g.shape().neutralLoci);
  const std::size_t alleles = g.alleleCount();
  for (const Individual& ind : members) {
    const std::uint32_t* genome = g.alleles(ind.genome);
    for (std::size_t l = 0; l < copies; ++l) counts[(l / 2) * alleles + genome[l]] = 0;
  }
}

}  // namespace

void TakeCensus(const Model& m, World& world, IterationRecord& record) {
  Recount(m, world);
  const GenomePool& g = world.genomes;
  const std::size_t table = static_cast<std::size_t>(g.shape().neutralLoci) * g.alleleCount();
  world.alleleCounts.resize(2 * table);
  std::uint32_t* own = world.alleleCounts.data();
  std::uint32_t* meta = m.populations > 1 ? own + table : nullptr;
  const int tallied = m.options.excludeLastPopulation ? m.populations - 1 : m.populations;
  Tally metaTally;
  int females = 0, males = 0;
  for (int p = 0; p < m.populations; ++p) {
    PopulationState& pop = world.pops[static_cast<std::size_t>(p)];
    ClearIfExtinct(m, world, pop);
    const bool inMeta = meta && p < tallied;
    Tally tally;
    Count(g, pop.members, own, tally, inMeta ? meta : nullptr, inMeta ? &metaTally : nullptr);
    Clear(g, pop.members, own);
    Census& census = record.at(p, world.year);
    tally.store(g.shape().neutralLoci, census);
    census.extinct = pop.extinct;
    pop.geneDiversity = census.geneDiversity;
    if (world.year == 0) pop.initialGeneDiversity = census.geneDiversity;
    if (inMeta) females += pop.counts.females, males += pop.counts.males;
  }
  if (!meta) return;
  for (int p = 0; p < tallied; ++p) Clear(g, world.pops[static_cast<std::size_t>(p)].members, meta);
  Census& census = record.at(m.populations, world.year);
  metaTally.store(g.shape().neutralLoci, census);
  census.extinct = Extinct(m, census.n, females, males);
}

}  // namespace tamsic::sim
