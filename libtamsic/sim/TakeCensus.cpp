#include "sim/TakeCensus.h"

#include <algorithm>
#include <cstring>

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

// Neutral-locus statistics of a group of individuals, from a table with a
// row of allele counts per neutral locus: GeneDiv needs the sum of the
// squared counts, #Alleles the number of counts above 0.
struct Tally {
  std::uint64_t squares = 0;
  std::uint64_t distinct = 0;
  long individuals = 0;
  double inbreeding = 0.0;
  double lethals = 0.0;

  void add(const Individual& ind) {
    ++individuals;
    inbreeding += ind.inbreeding;
    lethals += ind.lethals;
  }
  void store(int loci, Census& out) const {
    out.n = static_cast<int>(individuals);
    if (individuals == 0) return;
    const double copies = 2.0 * static_cast<double>(individuals);
    out.inbreeding = static_cast<float>(inbreeding / individuals);
    out.lethals = static_cast<float>(lethals / individuals);
    out.geneDiversity = static_cast<float>(1.0 - static_cast<double>(squares) / (copies * copies) / loci);
    out.alleles = static_cast<float>(static_cast<double>(distinct) / loci);
  }
};

// Genomes sit in the pool in no useful order, and a member's counting is
// too long a stretch of work for the processor to reach the next genome's
// loads by itself: ask for the genomes a few members ahead.
constexpr std::size_t kAhead = 4;

void Prefetch(const GenomePool& g, const std::vector<Individual>& members, std::size_t i) {
  if (i < members.size()) __builtin_prefetch(g.genome(members[i].genome));
}

// Adds the members to the population's tally and their neutral alleles to
// its table and, when `meta` is given, to the metapopulation's, in one pass.
template <int Bits>
void Count(const GenomePool& g, const std::vector<Individual>& members, std::uint32_t* own, Tally& ownTally,
           std::uint32_t* meta, Tally* metaTally) {
  const int loci = g.shape().neutralLoci;
  const std::size_t alleles = g.alleleCount();
  for (std::size_t i = 0; i < members.size(); ++i) {
    Prefetch(g, members, i + kAhead);
    ownTally.add(members[i]);
    if (metaTally) metaTally->add(members[i]);
    GenomePool::ForEachAllele<Bits>(g.genome(members[i].genome), loci, [&](int l, std::uint32_t allele) {
      const std::size_t k = static_cast<std::size_t>(l) * alleles + allele;
      ++own[k];
      if (meta) ++meta[k];
    });
  }
}

// Takes the counts of the members' alleles into the tally, zeroing each
// when first seen so that it is taken once.
template <int Bits>
void Collect(const GenomePool& g, const std::vector<Individual>& members, std::uint32_t* counts, Tally& tally) {
  const int loci = g.shape().neutralLoci;
  const std::size_t alleles = g.alleleCount();
  for (std::size_t i = 0; i < members.size(); ++i) {
    Prefetch(g, members, i + kAhead);
    GenomePool::ForEachAllele<Bits>(g.genome(members[i].genome), loci, [&](int l, std::uint32_t allele) {
      std::uint32_t& count = counts[static_cast<std::size_t>(l) * alleles + allele];
      const std::uint64_t c = count;
      tally.squares += c * c;
      tally.distinct += c != 0;
      count = 0;
    });
  }
}

// Takes every count of the table into the tally and zeroes it, four counts
// at a time in vector registers, adding them to `into` when given. Squares go
// through doubles, which hold these whole numbers exactly, so the order of
// the additions does not matter.
void Sweep(std::uint32_t* counts, std::size_t table, Tally& tally, std::uint32_t* into) {
  using Four = std::int32_t __attribute__((vector_size(16)));
  using FourDoubles = double __attribute__((vector_size(32)));
  using Doubles = double __attribute__((vector_size(16)));
  Doubles low{}, high{};  // two accumulators, so both halves stay in registers
  Four distinct{};
  std::size_t k = 0;
  for (; k + 4 <= table; k += 4) {
    Four c;
    std::memcpy(&c, counts + k, sizeof c);
    FourDoubles d = __builtin_convertvector(c, FourDoubles);
    d *= d;
    Doubles half[2];
    std::memcpy(half, &d, sizeof d);
    low += half[0];
    high += half[1];
    distinct -= c != 0;
    std::memset(counts + k, 0, sizeof c);
    if (!into) continue;
    Four sum;
    std::memcpy(&sum, into + k, sizeof sum);
    sum += c;
    std::memcpy(into + k, &sum, sizeof sum);
  }
  for (double sum : {low[0], low[1], high[0], high[1]}) tally.squares += static_cast<std::uint64_t>(sum);
  tally.distinct += static_cast<std::uint64_t>(distinct[0] + distinct[1] + distinct[2] + distinct[3]);
  for (; k < table; ++k) {
    const std::uint64_t c = counts[k];
    tally.squares += c * c;
    tally.distinct += c != 0;
    counts[k] = 0;
    if (into) into[k] += static_cast<std::uint32_t>(c);
  }
}

// Whether the counts of populations first..last are best taken by a sweep
// of the whole table, which is small for them (a sweep takes an entry in
// about a tenth of the time a visit to a member's allele takes, measured on
// metapopulations of small populations), or by visiting the members' alleles.
bool Sweeps(const GenomePool& g, const PopulationState* first, const PopulationState* last) {
  const std::size_t table = static_cast<std::size_t>(g.shape().neutralLoci) * g.alleleCount();
  std::size_t visits = 0;
  for (const PopulationState* pop = first; pop != last; ++pop)
    visits += 2 * static_cast<std::size_t>(g.shape().neutralLoci) * pop->members.size();
  return table < 10 * visits;
}

// Takes the counts of populations first..last into the tally and leaves the
// table zero. A sweep also adds them to `into` when given (a visit cannot).
void Settle(const GenomePool& g, const PopulationState* first, const PopulationState* last, std::uint32_t* counts,
            Tally& tally, std::uint32_t* into) {
  if (Sweeps(g, first, last)) {
    Sweep(counts, static_cast<std::size_t>(g.shape().neutralLoci) * g.alleleCount(), tally, into);
    return;
  }
  for (const PopulationState* pop = first; pop != last; ++pop) {
    if (g.wide()) Collect<32>(g, pop->members, counts, tally);
    else Collect<16>(g, pop->members, counts, tally);
  }
}

// A population's members into its tally and its table of counts, and into
// the metapopulation's when `meta` is given. The metapopulation's counts are
// the populations' summed: by the sweep of a population's table when it
// sweeps, else allele by allele.
void CountByTable(const GenomePool& g, const PopulationState& pop, std::uint32_t* own, Tally& tally,
                  std::uint32_t* meta, Tally* metaTally) {
  const bool summedBySweep = meta && Sweeps(g, &pop, &pop + 1);
  std::uint32_t* metaByAllele = summedBySweep ? nullptr : meta;
  if (g.wide()) Count<32>(g, pop.members, own, tally, metaByAllele, metaTally);
  else Count<16>(g, pop.members, own, tally, metaByAllele, metaTally);
  Settle(g, &pop, &pop + 1, own, tally, summedBySweep ? meta : nullptr);
}

// A table of counts has a row per neutral locus and a column per founder
// allele. Many loci and many founders would make it larger than the
// individuals themselves; past this many entries (64 MB) each locus' alleles
// are sorted instead and counted in runs, which needs no table.
constexpr std::size_t kLargestTable = std::size_t{1} << 24;

template <int Bits>
void CountBySorting(const GenomePool& g, const PopulationState* first, const PopulationState* last,
                    std::vector<std::uint32_t>& alleles, Tally& tally) {
  for (int l = 0; l < g.shape().neutralLoci; ++l) {
    alleles.clear();
    for (const PopulationState* pop = first; pop != last; ++pop)
      for (const Individual& ind : pop->members)
        for (int h = 0; h < 2; ++h) alleles.push_back(GenomePool::Lane<Bits>(g.genome(ind.genome), h, l));
    std::sort(alleles.begin(), alleles.end());
    for (std::size_t run = 0; run < alleles.size();) {
      std::size_t end = run + 1;
      while (end < alleles.size() && alleles[end] == alleles[run]) ++end;
      const std::uint64_t c = end - run;
      tally.squares += c * c;
      ++tally.distinct;
      run = end;
    }
  }
}

void CountBySorting(const GenomePool& g, const PopulationState* first, const PopulationState* last,
                    std::vector<std::uint32_t>& alleles, Tally& tally) {
  if (g.wide()) CountBySorting<32>(g, first, last, alleles, tally);
  else CountBySorting<16>(g, first, last, alleles, tally);
}

}  // namespace

void TakeCensus(const Model& m, World& world, IterationRecord& record) {
  Recount(m, world);
  const GenomePool& g = world.genomes;
  const std::size_t table = static_cast<std::size_t>(g.shape().neutralLoci) * g.alleleCount();
  const bool sorting = table > kLargestTable;
  if (!sorting) world.alleleCounts.resize(2 * table);
  std::uint32_t* own = sorting ? nullptr : world.alleleCounts.data();
  std::uint32_t* meta = own && m.populations > 1 ? own + table : nullptr;
  const int tallied = m.options.excludeLastPopulation ? m.populations - 1 : m.populations;
  Tally metaTally;
  int females = 0, males = 0;
  for (int p = 0; p < m.populations; ++p) {
    PopulationState& pop = world.pops[static_cast<std::size_t>(p)];
    ClearIfExtinct(m, world, pop);
    const bool inMeta = m.populations > 1 && p < tallied;
    Tally tally;
    if (sorting) {
      for (const Individual& ind : pop.members) {
        tally.add(ind);
        if (inMeta) metaTally.add(ind);
      }
      CountBySorting(g, &pop, &pop + 1, world.alleleCounts, tally);
    } else {
      CountByTable(g, pop, own, tally, inMeta ? meta : nullptr, inMeta ? &metaTally : nullptr);
    }
    Census& census = record.at(p, world.year);
    tally.store(g.shape().neutralLoci, census);
    census.extinct = pop.extinct;
    pop.geneDiversity = census.geneDiversity;
    if (world.year == 0) pop.initialGeneDiversity = census.geneDiversity;
    if (inMeta) females += pop.counts.females, males += pop.counts.males;
  }
  if (m.populations == 1) return;
  const PopulationState* pops = world.pops.data();
  if (sorting) CountBySorting(g, pops, pops + tallied, world.alleleCounts, metaTally);
  else Settle(g, pops, pops + tallied, meta, metaTally, nullptr);
  Census& census = record.at(m.populations, world.year);
  metaTally.store(g.shape().neutralLoci, census);
  census.extinct = Extinct(m, census.n, females, males);
}

}  // namespace tamsic::sim
