#pragma once
// The genotypes of an iteration's living individuals. Every locus carries
// founder-unique alleles: founder haplotype h has allele h at every locus,
// so two alleles are identical exactly when they descend from the same
// founder allele. Loci 0..ibdLoci-1 measure identity by descent (the first
// neutralLoci of them are the neutral loci whose diversity is reported).
// When founders draw their neutral alleles from given frequencies, alike
// alleles need not be identical by descent: the neutral loci then come first
// and the identity loci follow them (ibdFirst = neutralLoci). The lethalLoci
// after the identity loci carry recessive lethals: founder allele h is
// lethal at lethal locus l when a hash of (h, l, seed) falls below the
// lethal share. The hash is taken once, when the founder is made: each
// haplotype carries a bit per lethal locus, set where its allele is lethal,
// and a birth passes these bits on with the alleles. Slots of the dead
// are reused, so a year allocates nothing once the pool has grown.
//
// A genome packs the alleles of its loci into 16-byte blocks: 16 bits an
// allele (eight loci a block) while the iteration has made at most 65536
// founder alleles, 32 bits (four a block) after, for the pool widens itself
// once when the founders outgrow 16 bits. Block 2b holds loci of the
// maternal haplotype, block 2b + 1 the same loci of the paternal one, so a
// birth picks each locus' allele from a parent's two haplotypes a block at a
// time with vector masks, and the neutral loci of both haplotypes, which
// come first, sit in the genome's first cache line for the census. Genomes
// start on cache lines.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

#include "sim/Random.h"

namespace tamsic::sim {

// Allocates on cache-line boundaries.
template <class T>
struct CacheAligned {
  using value_type = T;
  static constexpr std::align_val_t kLine{64};
  CacheAligned() = default;
  template <class U>
  CacheAligned(const CacheAligned<U>&) {}
  T* allocate(std::size_t n) { return static_cast<T*>(::operator new(n * sizeof(T), kLine)); }
  void deallocate(T* p, std::size_t) { ::operator delete(p, kLine); }
  friend bool operator==(const CacheAligned&, const CacheAligned&) { return true; }
};

struct GenomeShape {
  int ibdFirst = 0;
  int ibdLoci = 64;
  int neutralLoci = 1;
  int lethalLoci = 0;
  double lethalShare = 0.0;  // chance that a founder allele is lethal at a lethal locus
  std::uint32_t drawnAlleles = 0;  // kinds of neutral allele drawn from frequencies, 0 when none are
  int lethalFirst() const { return ibdFirst + ibdLoci; }
  int loci() const { return lethalFirst() + lethalLoci; }
};

// Laid out to come back in two registers: the slot with the lethals, and
// the inbreeding.
struct Newborn {
  std::uint32_t slot;
  std::uint8_t lethals;
  bool viable;  // false when homozygous for a lethal
  float inbreeding;
};

// The recessive lethals a newborn carries, and whether it has one twice.
struct LethalsPassed {
  std::uint8_t count;
  bool viable;
};

class GenomePool {
 public:
  void reset(const GenomeShape& shape, std::uint64_t seed);
  // Room for so many genomes of the shape, so that the pool need not grow.
  void reserve(const GenomeShape& shape, std::size_t genomes);

  // A founder with two new haplotypes.
  std::uint32_t addFounder(std::uint8_t& lethals);
  // Replaces an allele of a founder (a neutral allele drawn from frequencies).
  void setAllele(std::uint32_t slot, int haplotype, int locus, std::uint32_t allele);
  // A child of two parents (the same slot twice for selfing).
  Newborn addChild(std::uint32_t dam, std::uint32_t sire, Random& random);
  void release(std::uint32_t slot) { releaseIf(slot, true); }
  // Releases the slot when `dead`, without a branch on it: whether an
  // individual dies cannot be predicted. The free list has room for every
  // slot (take() sees to it), so this never grows it.
  void releaseIf(std::uint32_t slot, bool dead) {
    free_[freeCount_] = slot;
    freeCount_ += dead;
  }
  // Asks the processor for a genome ahead of a birth: genomes sit in the
  // pool in no useful order.
  void prefetch(std::uint32_t slot) const {
    if (static_cast<std::size_t>(slot) * stride_ >= words_.size()) return;
    for (std::size_t w = 0; w < stride_; w += 8) __builtin_prefetch(&words_[slot * stride_ + w]);
  }

  // Founder allele of haplotype 0 (maternal) or 1 (paternal) at a locus.
  std::uint32_t allele(std::uint32_t slot, int haplotype, int locus) const {
    const std::uint32_t stored = storedAllele(slot, haplotype, locus);
    return locus < renumberedLoci_ ? founderAllele_[static_cast<std::size_t>(locus)][stored] : stored;
  }
  // The packed words of a genome; read them with Lane<32> when wide(), Lane<16> otherwise.
  // The neutral loci hold numbers below neutralColumns(), which stand for
  // founder alleles in the same order. Its lethal bits follow the alleles.
  const std::uint64_t* genome(std::uint32_t slot) const { return &words_[slot * stride_]; }
  // Words from one genome to the next, for loops over many genomes.
  std::size_t stride() const { return stride_; }
  template <int Bits>
  static std::uint32_t Lane(const std::uint64_t* genome, int haplotype, int locus) {
    constexpr int perBlock = 128 / Bits;
    constexpr int perWord = 64 / Bits;
    const int lane = locus % perBlock;
    const std::uint64_t word = genome[2 * (2 * (locus / perBlock) + haplotype) + lane / perWord];
    return static_cast<std::uint32_t>((word >> (Bits * (lane % perWord))) & ((1ULL << Bits) - 1));
  }
  // Calls visit(locus, allele) for both alleles of each of the first `loci`
  // loci, in the order they are stored.
  template <int Bits, class Visit>
  static void ForEachAllele(const std::uint64_t* genome, int loci, Visit visit) {
    constexpr int perWord = 64 / Bits;
    constexpr std::uint64_t mask = (1ULL << Bits) - 1;
    for (int first = 0; first < loci; first += 128 / Bits, genome += 4)
      for (int h = 0; h < 2; ++h)
        for (int w = 0; w < 2; ++w) {
          const std::uint64_t word = genome[2 * h + w];
          const int base = first + w * perWord;
          const int end = std::min(perWord, loci - base);
          for (int k = 0; k < end; ++k) visit(base + k, static_cast<std::uint32_t>((word >> (Bits * k)) & mask));
        }
  }
  bool wide() const { return wide_; }
  // Kinship from shared alleles at the identity-by-descent loci.
  double kinship(std::uint32_t a, std::uint32_t b) const;
  // Alleles are numbered below this: founder alleles and the kinds drawn from frequencies.
  std::uint32_t alleleCount() const { return std::max(nextAllele_, shape_.drawnAlleles); }
  // The numbers the genomes hold at the neutral loci are below this.
  std::uint32_t neutralColumns() const { return renumberedLoci_ > 0 ? columns_ : alleleCount(); }
  // Numbers each neutral locus' alleles anew, in order, counting only those
  // the pool's genomes still carry, so that the census' table, a column per
  // number, narrows as drift loses founder alleles. allele() still gives
  // the founder allele, and identical alleles stay identical. `living`
  // names the slots in use when it can (every slot not free is looked at
  // when it does not hold as many).
  void renumberNeutral(const std::vector<std::uint32_t>& living);
  const GenomeShape& shape() const { return shape_; }
  // The bytes of a genome of the shape while its alleles fit 16 bits.
  static std::size_t GenomeBytes(const GenomeShape& shape);
  // The bytes the pool holds, its arrays at their capacity.
  std::size_t bytes() const;

 private:
  std::uint32_t storedAllele(std::uint32_t slot, int haplotype, int locus) const {
    return wide_ ? Lane<32>(genome(slot), haplotype, locus) : Lane<16>(genome(slot), haplotype, locus);
  }
  void numberNewFounder(std::uint32_t slot, std::uint32_t first);
  std::vector<std::uint32_t> slotsInUse() const;
  template <int Bits>
  void renumberNeutral(const std::vector<std::uint32_t>& slots);
  void layout(bool wide);
  void widen();
  std::uint32_t take();
  bool lethal(std::uint32_t allele, int locus) const;
  template <int Bits>
  Newborn child(std::uint32_t dam, std::uint32_t sire, Random& random);
  template <int Bits>
  int sharedAlleles(std::uint32_t a, std::uint32_t b) const;
  // Inlined: a call for every birth with a lethal locus costs more than the work.
  template <int Bits>
  [[gnu::always_inline]] inline LethalsPassed passLethals(const std::uint64_t* mother, const std::uint64_t* father,
                                                         std::uint64_t* out, const std::uint64_t* draws,
                                                         std::size_t drawCount) const;

  GenomeShape shape_;
  bool wide_ = false;
  std::size_t blocks_ = 0;   // blocks per haplotype
  std::size_t stride_ = 0;  // words per genome, whole cache lines
  std::uint64_t seed_ = 0;
  std::uint32_t nextAllele_ = 0;
  std::uint64_t lethalThreshold_ = 0;
  std::size_t lethalWords_ = 0;  // per haplotype: bit j set when lethal at lethal locus j
  std::size_t lethalAt_ = 0;     // where the lethal bits start in a genome
  std::vector<std::uint64_t> draws_;  // a birth's random bits, per parent, for the lethal loci
  std::vector<std::uint64_t, CacheAligned<std::uint64_t>> words_;
  std::vector<std::uint64_t> ibdLanes_;  // per haplotype block: its identity-locus lanes all ones (two words)
  std::vector<float> inbreedingOf_;  // by the number of identity loci found identical
  std::vector<std::uint32_t> free_;  // slots of the dead in free_[0 .. freeCount_)
  std::size_t freeCount_ = 0;
  int renumberedLoci_ = 0;  // the neutral loci once renumbered, 0 before
  std::uint32_t columns_ = 0;  // numbers in use at a renumbered locus
  std::vector<std::vector<std::uint32_t>> founderAllele_;  // per renumbered locus and number
};

}  // namespace tamsic::sim
