#include "sim/AlleleTally.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tamsic::sim {

namespace {

// Takes counts into the tally one by one, zeroing them, adding them to `into` when given.
template <class Count>
void SweepOneByOne(Count* counts, std::size_t n, Tally& tally, Count* into) {
  for (std::size_t k = 0; k < n; ++k) {
    const std::uint64_t c = counts[k];
    tally.squares += c * c;
    tally.distinct += c != 0;
    counts[k] = 0;
    if (into) into[k] = static_cast<Count>(into[k] + c);
  }
}

// Where the members' genomes are.
struct Genomes {
  const std::uint64_t* pool;
  std::size_t stride;
  const std::uint64_t* of(const Individual& ind) const { return pool + ind.genome * stride; }
};

// Calls visit(row, allele) for both alleles at lanes 0 .. kLanes - 1 of
// every member's genome words `word` (maternal) and `word` + 2 (paternal),
// row being the table's row of the lane's locus. Genomes sit in the pool in
// no useful order: each pass asks for them a few members ahead (a large
// population's genomes do not stay in the cache from one pass to the next).
template <int Bits, int kLanes, class Count, class Visit>
void VisitLanes(Genomes genomes, const std::vector<Individual>& members, int word, Count* rows, std::size_t alleles,
                Visit& visit) {
  constexpr std::uint64_t mask = (1ULL << Bits) - 1;
  constexpr std::size_t ahead = 4;
  const Individual* const end = members.data() + members.size();
  for (const Individual* ind = members.data(); ind != end; ++ind) {
    if (end - ind > static_cast<std::ptrdiff_t>(ahead)) __builtin_prefetch(genomes.of(ind[ahead]));
    const std::uint64_t* genome = genomes.of(*ind);
    const std::uint64_t maternal = genome[word];
    const std::uint64_t paternal = genome[word + 2];
    for (int k = 0; k < kLanes; ++k) {
      visit(rows + k * alleles, (maternal >> (Bits * k)) & mask);
      visit(rows + k * alleles, (paternal >> (Bits * k)) & mask);
    }
  }
}

// The lanes in use of a word, as a number known when compiling, so that
// VisitLanes spells them out.
template <int Bits, int kLanes, class Count, class Visit>
void VisitWord(Genomes genomes, const std::vector<Individual>& members, int word, int lanes, Count* rows,
               std::size_t alleles, Visit& visit) {
  if constexpr (kLanes > 1) {
    if (lanes < kLanes) return VisitWord<Bits, kLanes - 1>(genomes, members, word, lanes, rows, alleles, visit);
  }
  VisitLanes<Bits, kLanes>(genomes, members, word, rows, alleles, visit);
}

// Calls visit(row, allele) for both alleles of each of the first `loci`
// loci of every member, row being the table's row of the locus. It goes a
// word of loci at a time through all members (the maternal word of the
// lanes q is word 4 (q / 2) + q % 2 of the genome, the paternal one two
// words on): the rows of a word's loci then stay in the nearest cache,
// where a whole table would not.
template <int Bits, class Count, class Visit>
void VisitAlleles(const GenomePool& g, const std::vector<Individual>& members, int loci, Count* table,
                  std::size_t alleles, Visit visit) {
  constexpr int perWord = 64 / Bits;
  if (members.empty()) return;
  const Genomes genomes{g.genome(0), g.stride()};
  for (int first = 0, q = 0; first < loci; first += perWord, ++q)
    VisitWord<Bits, perWord>(genomes, members, 4 * (q / 2) + q % 2, loci - first, table + first * alleles, alleles,
                             visit);
}

// Adds the members to the tallies. The sums are taken in copies, which stay
// in registers where the tallies themselves would be written back at every
// step, in the members' order, so that they come out the same.
void AddMembers(const std::vector<Individual>& members, Tally& ownTally, Tally* metaTally) {
  Tally own = ownTally;
  if (!metaTally) {
    for (const Individual& ind : members) own.add(ind);
    ownTally = own;
    return;
  }
  Tally meta = *metaTally;
  for (const Individual& ind : members) {
    own.add(ind);
    meta.add(ind);
  }
  ownTally = own;
  *metaTally = meta;
}

// Adds the members to the population's tally and their neutral alleles to
// its table and, when `meta` is given, to the metapopulation's.
template <int Bits, bool kMeta, class Count>
void CountAlleles(const GenomePool& g, int loci, const std::vector<Individual>& members, Count* own,
                  Tally& ownTally, Count* meta, Tally* metaTally) {
  AddMembers(members, ownTally, metaTally);
  const std::ptrdiff_t toMeta = kMeta ? meta - own : 0;
  VisitAlleles<Bits>(g, members, loci, own, g.neutralColumns(), [toMeta](Count* row, std::uint64_t a) {
    ++row[a];
    if constexpr (kMeta) ++row[toMeta + static_cast<std::ptrdiff_t>(a)];
  });
}

template <int Bits, class Count>
void CountAlleles(const GenomePool& g, int loci, const std::vector<Individual>& members, Count* own,
                  Tally& ownTally, Count* meta, Tally* metaTally) {
  if (meta) CountAlleles<Bits, true>(g, loci, members, own, ownTally, meta, metaTally);
  else CountAlleles<Bits, false>(g, loci, members, own, ownTally, meta, metaTally);
}

// Takes the counts of the members' alleles into the tally, zeroing each
// when first seen so that it is taken once.
template <int Bits, class Count>
void Collect(const GenomePool& g, int loci, const std::vector<Individual>& members, Count* counts, Tally& tally) {
  std::uint64_t squares = 0, distinct = 0;
  VisitAlleles<Bits>(g, members, loci, counts, g.neutralColumns(), [&](Count* row, std::uint64_t a) {
    const std::uint64_t c = row[a];
    squares += c * c;
    distinct += c != 0;
    row[a] = 0;
  });
  tally.squares += squares;
  tally.distinct += distinct;
}

// Takes every count of the table into the tally and zeroes it, four counts
// at a time in vector registers, adding them to `into` when given. Squares go
// through doubles, which hold these whole numbers exactly, so the order of
// the additions does not matter.
void Sweep(std::uint32_t* counts, std::size_t rows, std::size_t alleles, Tally& tally, std::uint32_t* into) {
  const std::size_t table = rows * alleles;
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
  SweepOneByOne(counts + k, table - k, tally, into ? into + k : nullptr);
}

// The same for counts of 16 bits, eight at a time, a row (locus) at a time:
// a row's counts sum to at most 32766, so the squares of a row, summed lane
// by lane, stay below 2^31.
void Sweep(std::uint16_t* counts, std::size_t rows, std::size_t alleles, Tally& tally, std::uint16_t* into) {
  for (std::size_t r = 0; r < rows; ++r, counts += alleles, into = into ? into + alleles : nullptr) {
    std::size_t k = 0;
#ifdef __SSE2__
    const __m128i zero = _mm_setzero_si128();
    const __m128i one = _mm_set1_epi16(1);
    __m128i squares = zero, empty = zero;  // per lane: squares, minus the zero counts
    for (; k + 8 <= alleles; k += 8) {
      auto* at = reinterpret_cast<__m128i*>(counts + k);
      const __m128i c = _mm_loadu_si128(at);
      squares = _mm_add_epi32(squares, _mm_madd_epi16(c, c));
      empty = _mm_add_epi32(empty, _mm_madd_epi16(_mm_cmpeq_epi16(c, zero), one));
      _mm_storeu_si128(at, zero);
      if (!into) continue;
      auto* sum = reinterpret_cast<__m128i*>(into + k);
      _mm_storeu_si128(sum, _mm_add_epi16(_mm_loadu_si128(sum), c));
    }
    alignas(16) std::int32_t lanes[2][4];
    _mm_store_si128(reinterpret_cast<__m128i*>(lanes[0]), squares);
    _mm_store_si128(reinterpret_cast<__m128i*>(lanes[1]), empty);
    for (int j = 0; j < 4; ++j) tally.squares += static_cast<std::uint64_t>(lanes[0][j]);
    tally.distinct += k - static_cast<std::uint64_t>(-(lanes[1][0] + lanes[1][1] + lanes[1][2] + lanes[1][3]));
#endif
    SweepOneByOne(counts + k, alleles - k, tally, into ? into + k : nullptr);
  }
}

// Whether the counts of populations first..last are best taken by a sweep
// of the whole table, which is small for them, or by visiting the members'
// alleles again. A second visit costs about as much as sweeping two entries
// of 32 bits, or eight of 16 (counted by callgrind on the Koalas example,
// whose small populations hold few of the founder alleles).
template <class Count>
bool Sweeps(const GenomePool& g, int loci, const PopulationState* first, const PopulationState* last) {
  constexpr std::size_t sweptPerVisit = sizeof(Count) == 2 ? 16 : 2;
  const std::size_t table = static_cast<std::size_t>(loci) * g.neutralColumns();
  std::size_t visits = 0;
  for (const PopulationState* pop = first; pop != last; ++pop)
    visits += 2 * static_cast<std::size_t>(loci) * pop->members.size();
  return table < sweptPerVisit * visits;
}

template <int Bits>
void CountBySorting(const GenomePool& g, const TalliedLoci& loci, const PopulationState* first,
                    const PopulationState* last, std::vector<std::uint32_t>& alleles, Tally& tally) {
  for (int l = loci.first; l < loci.end; ++l) {
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

}  // namespace

template <class Count>
void CountByTable(const GenomePool& g, const TalliedLoci& loci, const PopulationState& pop, Count* own,
                  Tally& tally, Count* meta, Tally* metaTally) {
  // The metapopulation's counts are the populations' summed: during the
  // sweep of a population's table when it sweeps, else allele by allele.
  const bool summedBySweep = meta && Sweeps<Count>(g, loci.end, &pop, &pop + 1);
  Count* metaByAllele = summedBySweep ? nullptr : meta;
  if (g.wide()) CountAlleles<32>(g, loci.end, pop.members, own, tally, metaByAllele, metaTally);
  else CountAlleles<16>(g, loci.end, pop.members, own, tally, metaByAllele, metaTally);
  Settle(g, loci, &pop, &pop + 1, own, tally, summedBySweep ? meta : nullptr);
}

template <class Count>
void Settle(const GenomePool& g, const TalliedLoci& loci, const PopulationState* first, const PopulationState* last,
            Count* counts, Tally& tally, Count* into) {
  // Loci left out of the tally are zero before the counts are taken, so they add nothing.
  std::fill_n(counts, static_cast<std::size_t>(loci.first) * g.neutralColumns(), Count{0});
  if (Sweeps<Count>(g, loci.end, first, last)) {
    Sweep(counts, static_cast<std::size_t>(loci.end), g.neutralColumns(), tally, into);
    return;
  }
  for (const PopulationState* pop = first; pop != last; ++pop) {
    if (g.wide()) Collect<32>(g, loci.end, pop->members, counts, tally);
    else Collect<16>(g, loci.end, pop->members, counts, tally);
  }
}

template void CountByTable(const GenomePool&, const TalliedLoci&, const PopulationState&, std::uint16_t*, Tally&,
                           std::uint16_t*, Tally*);
template void CountByTable(const GenomePool&, const TalliedLoci&, const PopulationState&, std::uint32_t*, Tally&,
                           std::uint32_t*, Tally*);
template void Settle(const GenomePool&, const TalliedLoci&, const PopulationState*, const PopulationState*,
                     std::uint16_t*, Tally&, std::uint16_t*);
template void Settle(const GenomePool&, const TalliedLoci&, const PopulationState*, const PopulationState*,
                     std::uint32_t*, Tally&, std::uint32_t*);

void CountBySorting(const GenomePool& g, const TalliedLoci& loci, const PopulationState* first,
                    const PopulationState* last, std::vector<std::uint32_t>& alleles, Tally& tally) {
  if (g.wide()) CountBySorting<32>(g, loci, first, last, alleles, tally);
  else CountBySorting<16>(g, loci, first, last, alleles, tally);
}

}  // namespace tamsic::sim
