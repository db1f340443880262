// The numbers the genomes hold at the neutral loci. Drift loses most
// founder alleles within a few dozen years, yet the census keeps a column
// per number; numbering the alleles still carried anew keeps its table as
// narrow as the alleles present. The numbers keep the founder alleles'
// order, so anything sorted by allele comes out the same.
#include <algorithm>
#include <numeric>

#include "sim/Genome.h"

namespace tamsic::sim {

namespace {

// Replaces each of the first `loci` loci's alleles of a genome by
// renumber(locus, allele), in the order ForEachAllele visits them.
template <int Bits, class Renumber>
void RewriteAlleles(std::uint64_t* genome, int loci, Renumber renumber) {
  constexpr int perWord = 64 / Bits;
  constexpr std::uint64_t mask = (1ULL << Bits) - 1;
  for (int first = 0; first < loci; first += 2 * perWord, genome += 4)
    for (int h = 0; h < 2; ++h)
      for (int w = 0; w < 2; ++w) {
        const int base = first + w * perWord;
        std::uint64_t& word = genome[2 * h + w];
        for (int k = 0; k < std::min(perWord, loci - base); ++k) {
          const int shift = Bits * k;
          const std::uint64_t renumbered = renumber(base + k, (word >> shift) & mask);
          word = (word & ~(mask << shift)) | renumbered << shift;
        }
      }
}

}  // namespace

void GenomePool::renumberNeutral(const std::vector<std::uint32_t>& living) {
  // Kinds drawn from frequencies are few already, and are what users see.
  if (shape_.drawnAlleles > 0 || words_.empty()) return;
  const auto renumber = [this](const std::vector<std::uint32_t>& slots) {
    if (wide_) renumberNeutral<32>(slots);
    else renumberNeutral<16>(slots);
  };
  const std::size_t inUse = words_.size() / stride_ - freeCount_;
  if (living.size() == inUse) renumber(living);
  else renumber(slotsInUse());
}

std::vector<std::uint32_t> GenomePool::slotsInUse() const {
  std::vector<bool> free(words_.size() / stride_, false);
  for (std::size_t k = 0; k < freeCount_; ++k) free[free_[k]] = true;
  std::vector<std::uint32_t> slots;
  for (std::uint32_t slot = 0; slot < free.size(); ++slot)
    if (!free[slot]) slots.push_back(slot);
  return slots;
}

template <int Bits>
void GenomePool::renumberNeutral(const std::vector<std::uint32_t>& slots) {
  const std::size_t columns = neutralColumns();
  const int loci = shape_.neutralLoci;
  // Per locus and old number: 1 where carried, then the new number.
  std::vector<std::uint32_t> renumbered(static_cast<std::size_t>(loci) * columns, 0);
  for (std::uint32_t slot : slots)
    ForEachAllele<Bits>(genome(slot), loci, [&](int l, std::uint32_t a) { renumbered[l * columns + a] = 1; });
  std::vector<std::vector<std::uint32_t>> founderAllele(static_cast<std::size_t>(loci));
  std::size_t widest = 0;
  std::vector<std::uint32_t> identity;  // the founder allele of each number before the first renumbering
  if (renumberedLoci_ == 0) {
    identity.resize(columns);
    std::iota(identity.begin(), identity.end(), 0u);
  }
  for (int l = 0; l < loci; ++l) {
    std::vector<std::uint32_t>& founders = founderAllele[static_cast<std::size_t>(l)];
    const std::uint32_t* founder =
        renumberedLoci_ > 0 ? founderAllele_[static_cast<std::size_t>(l)].data() : identity.data();
    std::uint32_t* row = &renumbered[l * columns];
    // Whether a number is carried cannot be predicted: every number is
    // written, and the next one is taken only where it is.
    founders.resize(columns);
    std::uint32_t next = 0;
    for (std::size_t number = 0; number < columns; ++number) {
      const std::uint32_t carried = row[number];
      row[number] = next;
      founders[next] = founder[number];
      next += carried;
    }
    founders.resize(next);
    widest = std::max(widest, founders.size());
  }
  for (std::uint32_t slot : slots)
    RewriteAlleles<Bits>(&words_[slot * stride_], loci,
                         [&](int l, std::uint64_t a) { return renumbered[l * columns + a]; });
  // Every locus takes a later founder's alleles at the same numbers.
  for (std::vector<std::uint32_t>& founders : founderAllele) founders.resize(widest, 0);
  founderAllele_ = std::move(founderAllele);
  columns_ = static_cast<std::uint32_t>(widest);
  renumberedLoci_ = loci;
}

// A founder made after renumbering takes the next two numbers at each
// neutral locus, above all others as its founder alleles are.
void GenomePool::numberNewFounder(std::uint32_t slot, std::uint32_t first) {
  for (int l = 0; l < renumberedLoci_; ++l)
    for (std::uint32_t h = 0; h < 2; ++h) {
      setAllele(slot, static_cast<int>(h), l, columns_ + h);
      founderAllele_[static_cast<std::size_t>(l)].push_back(first + h);
    }
  columns_ += 2;
}

}  // namespace tamsic::sim
