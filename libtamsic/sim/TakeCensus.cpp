#include "sim/TakeCensus.h"

#include "sim/AlleleTally.h"
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

// The census' tables of counts: a population's own and the metapopulation's.
template <class Count>
struct Tables {
  Count* own = nullptr;
  Count* meta = nullptr;
};

template <class Count>
Tables<Count> MakeTables(const Model& m, std::vector<Count>& room, std::size_t table) {
  room.resize(2 * table);
  return {room.data(), m.populations > 1 ? room.data() + table : nullptr};
}

std::size_t Members(const World& world) {
  std::size_t members = 0;
  for (const PopulationState& pop : world.pops) members += pop.members.size();
  return members;
}

// Drift loses founder alleles, but the tables keep a column for each
// number the genomes hold. Once the alleles still carried (by the census'
// counts over its loci) would fill less than half of them, they are
// numbered anew, where it pays: that takes about two visits of every
// allele, while a sweep takes a table entry at a fraction of a visit. It
// pays where the sweeps outweigh the visits, as for many small
// populations; a single large one keeps its numbers.
void NarrowTables(const Model& m, World& world, std::uint64_t carried, const TalliedLoci& loci) {
  const std::size_t columns = world.genomes.neutralColumns();
  if (2 * carried >= static_cast<std::uint64_t>(loci.count()) * columns) return;
  const std::size_t tables = static_cast<std::size_t>(m.populations) + (m.populations > 1);
  if (tables * columns <= 2 * Members(world)) return;
  std::vector<std::uint32_t> living;
  for (const PopulationState& pop : world.pops)
    for (const Individual& ind : pop.members) living.push_back(ind.genome);
  world.genomes.renumberNeutral(living);
}

}  // namespace

void TakeCensus(const Model& m, World& world, IterationRecord& record) {
  Recount(m, world);
  const GenomePool& g = world.genomes;
  const TalliedLoci loci{m.genetics.talliedFirst, m.genetics.talliedFirst + m.genetics.talliedLoci};
  const std::size_t table = static_cast<std::size_t>(loci.end) * g.alleleCount();
  const bool sorting = table > kLargestTable;
  const bool narrow = !sorting && Members(world) <= kMostForNarrowCounts;
  const auto wide = sorting || narrow ? Tables<std::uint32_t>{} : MakeTables(m, world.alleleCounts, table);
  const auto small = narrow ? MakeTables(m, world.narrowCounts, table) : Tables<std::uint16_t>{};
  const int tallied = m.options.excludeLastPopulation ? m.populations - 1 : m.populations;
  Tally metaTally;
  std::uint64_t carriedOutsideMeta = 0;  // distinct alleles summed over loci
  int females = 0, males = 0;
  for (int p = 0; p < m.populations; ++p) {
    PopulationState& pop = world.pops[static_cast<std::size_t>(p)];
    ClearIfExtinct(m, world, pop);
    const bool inMeta = m.populations > 1 && p < tallied;
    Tally* const intoMeta = inMeta ? &metaTally : nullptr;
    Tally tally;
    if (sorting) {
      for (const Individual& ind : pop.members) {
        tally.add(ind);
        if (inMeta) metaTally.add(ind);
      }
      CountBySorting(g, loci, &pop, &pop + 1, world.alleleCounts, tally);
    } else if (narrow) {
      CountByTable(g, loci, pop, small.own, tally, inMeta ? small.meta : nullptr, intoMeta);
    } else {
      CountByTable(g, loci, pop, wide.own, tally, inMeta ? wide.meta : nullptr, intoMeta);
    }
    Census& census = record.at(p, world.year);
    tally.store(loci.count(), census);
    census.extinct = pop.extinct;
    pop.geneDiversity = census.geneDiversity;
    if (world.year == 0) pop.initialGeneDiversity = census.geneDiversity;
    if (inMeta) females += pop.counts.females, males += pop.counts.males;
    else carriedOutsideMeta += tally.distinct;
  }
  if (m.populations == 1) return NarrowTables(m, world, carriedOutsideMeta, loci);
  const PopulationState* pops = world.pops.data();
  if (sorting) CountBySorting(g, loci, pops, pops + tallied, world.alleleCounts, metaTally);
  else if (narrow) Settle(g, loci, pops, pops + tallied, small.meta, metaTally, static_cast<std::uint16_t*>(nullptr));
  else Settle(g, loci, pops, pops + tallied, wide.meta, metaTally, static_cast<std::uint32_t*>(nullptr));
  Census& census = record.at(m.populations, world.year);
  metaTally.store(loci.count(), census);
  census.extinct = Extinct(m, census.n, females, males);
  NarrowTables(m, world, metaTally.distinct + carriedOutsideMeta, loci);
}

}  // namespace tamsic::sim
