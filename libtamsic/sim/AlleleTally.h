#pragma once
// Allele counting for the census: how many copies of each founder allele a
// group of individuals carries at each neutral locus, reduced to what
// GeneDiv and #Alleles need. A table has a row of counts per neutral locus
// and a column per founder allele; it is left zero after each use.
#include <cstdint>
#include <vector>

#include "sim/Record.h"
#include "sim/World.h"

namespace tamsic::sim {

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

// The neutral loci a census counts, first .. end - 1. The table has rows for
// loci 0 .. end - 1; rows before `first` are counted and then cleared.
struct TalliedLoci {
  int first = 0;
  int end = 1;
  int count() const { return end - first; }
};

// Past this many entries (64 MB) a table would be larger than the
// individuals themselves; each locus' alleles are then sorted instead.
inline constexpr std::size_t kLargestTable = std::size_t{1} << 24;

// A census of at most this many individuals counts in 16 bits: no count
// then passes 32767, so a sweep can square eight counts at a time in signed
// lanes. Counts half as wide keep twice the table in the nearest cache.
inline constexpr std::size_t kMostForNarrowCounts = 16383;

// A population's members into its tally and its table of counts, and into
// the metapopulation's when `meta` is given (its members into `metaTally`).
// Count is std::uint16_t or std::uint32_t.
template <class Count>
void CountByTable(const GenomePool& g, const TalliedLoci& loci, const PopulationState& pop, Count* own,
                  Tally& tally, Count* meta, Tally* metaTally);
// Takes the counts of populations first..last into the tally and leaves the
// table zero; a sweep of the table also adds them to `into` when given.
template <class Count>
void Settle(const GenomePool& g, const TalliedLoci& loci, const PopulationState* first, const PopulationState* last,
            Count* counts, Tally& tally, Count* into);
// The allele statistics of populations first..last without a table, using
// `alleles` as room to sort in (members are not added to the tally).
void CountBySorting(const GenomePool& g, const TalliedLoci& loci, const PopulationState* first,
                    const PopulationState* last, std::vector<std::uint32_t>& alleles, Tally& tally);

}  // namespace tamsic::sim
