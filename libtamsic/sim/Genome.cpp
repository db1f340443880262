#include "sim/Genome.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <new>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tamsic::sim {

namespace {

constexpr std::size_t kLineWords = 8;
constexpr std::size_t kBlockWords = 2;

// A block seen as lanes of one allele each (compiled to vector instructions).
template <int Bits>
struct Block;
template <>
struct Block<16> {
  using Lanes = std::uint16_t __attribute__((vector_size(16)));
  using Same = std::int16_t __attribute__((vector_size(16)));
};
template <>
struct Block<32> {
  using Lanes = std::uint32_t __attribute__((vector_size(16)));
  using Same = std::int32_t __attribute__((vector_size(16)));
};

template <int Bits>
constexpr int kLanes = 128 / Bits;  // per block

template <int Bits>
using LaneArray = std::array<std::conditional_t<Bits == 16, std::uint16_t, std::uint32_t>, kLanes<Bits>>;

// The lanes that come from the second haplotype for each group of random
// bits, one bit a lane.
template <int Bits>
constexpr std::array<LaneArray<Bits>, (1u << kLanes<Bits>)> MakeMasks() {
  std::array<LaneArray<Bits>, (1u << kLanes<Bits>)> masks{};
  for (std::uint32_t bits = 0; bits < masks.size(); ++bits)
    for (int k = 0; k < kLanes<Bits>; ++k)
      masks[bits][static_cast<std::size_t>(k)] =
          ((bits >> k) & 1u) ? static_cast<typename LaneArray<Bits>::value_type>(~0u) : 0;
  return masks;
}

template <int Bits>
constexpr auto kMasks = MakeMasks<Bits>();

template <class V>
V Load(const void* from) {
  V v;
  std::memcpy(&v, from, sizeof v);
  return v;
}

template <class V>
void Store(void* to, const V& v) {
  std::memcpy(to, &v, sizeof v);
}

// 64 random bits starting at bit `first` of a row of draws (which has a
// zero word after its last).
std::uint64_t BitsFrom(const std::uint64_t* draws, std::size_t first) {
  const std::size_t word = first / 64;
  const std::size_t shift = first % 64;
  return shift == 0 ? draws[word] : (draws[word] >> shift) | (draws[word + 1] << (64 - shift));
}

// Counting bits without relying on a processor instruction that not every machine has.
int Popcount(std::uint64_t x) {
  x = x - ((x >> 1) & 0x5555555555555555ULL);
  x = (x & 0x3333333333333333ULL) + ((x >> 2) & 0x3333333333333333ULL);
  x = (x + (x >> 4)) & 0x0f0f0f0f0f0f0f0fULL;
  return static_cast<int>((x * 0x0101010101010101ULL) >> 56);
}

// A bit per lane of a comparison's result, set where the lanes were equal.
template <int Bits>
std::uint64_t LaneBits(typename Block<Bits>::Same equal) {
#ifdef __SSE2__
  __m128i v;
  std::memcpy(&v, &equal, sizeof v);
  if constexpr (Bits == 16) return static_cast<std::uint64_t>(_mm_movemask_epi8(_mm_packs_epi16(v, v)) & 0xff);
  else return static_cast<std::uint64_t>(_mm_movemask_ps(_mm_castsi128_ps(v)));
#else
  std::uint64_t bits = 0;
  for (int k = 0; k < kLanes<Bits>; ++k) bits |= static_cast<std::uint64_t>(equal[k] & 1) << k;
  return bits;
#endif
}

// Bit j set where locus first + j (j < count <= 64) holds the same allele
// on both haplotypes of a genome, found a block at a time.
template <int Bits>
std::uint64_t AlikeLoci(const std::uint64_t* genome, int first, int count) {
  using Lanes = typename Block<Bits>::Lanes;
  using Same = typename Block<Bits>::Same;
  constexpr int lanes = kLanes<Bits>;
  std::uint64_t alike = 0;
  for (int b = first / lanes; b * lanes < first + count; ++b) {
    const std::size_t at = 2 * static_cast<std::size_t>(b) * kBlockWords;
    const Same same = Load<Lanes>(genome + at) == Load<Lanes>(genome + at + kBlockWords);
    const std::uint64_t bits = LaneBits<Bits>(same);
    const int shift = b * lanes - first;
    alike |= shift >= 0 ? bits << shift : bits >> -shift;
  }
  return alike;
}

template <int Bits>
constexpr std::uint64_t Repeat(std::uint64_t lane) {
  std::uint64_t word = 0;
  for (int k = 0; k < 64 / Bits; ++k) word |= lane << (Bits * k);
  return word;
}

// GCC builds a small struct of narrow fields on the stack and reads it back
// whole, which waits on the narrow writes; built as one word it stays in a register.
Newborn Born(std::uint32_t slot, LethalsPassed lethals, float inbreeding) {
  static_assert(offsetof(Newborn, lethals) == 4 && offsetof(Newborn, viable) == 5 &&
                offsetof(Newborn, inbreeding) == 8);
  if constexpr (std::endian::native != std::endian::little) return {slot, lethals.count, lethals.viable, inbreeding};
  const std::uint64_t first =
      slot | static_cast<std::uint64_t>(lethals.count) << 32 | static_cast<std::uint64_t>(lethals.viable) << 40;
  Newborn born;
  std::memcpy(&born, &first, sizeof first);
  born.inbreeding = inbreeding;
  return born;
}

}  // namespace

void GenomePool::reset(const GenomeShape& shape, std::uint64_t seed) {
  shape_ = shape;
  seed_ = seed;
  nextAllele_ = 0;
  const double share = std::clamp(shape.lethalShare, 0.0, 1.0);
  lethalThreshold_ = share >= 1.0 ? ~0ULL : static_cast<std::uint64_t>(share * 0x1.0p64);
  lethalWords_ = static_cast<std::size_t>((shape.lethalLoci + 63) / 64);
  // A newborn's inbreeding by its number of identical identity loci, looked
  // up: a division for every birth would hold up the next one.
  inbreedingOf_.resize(static_cast<std::size_t>(shape.ibdLoci) + 1);
  for (int k = 0; k <= shape.ibdLoci; ++k)
    inbreedingOf_[static_cast<std::size_t>(k)] = static_cast<float>(k) / static_cast<float>(shape.ibdLoci);
  layout(false);
  words_.clear();
  freeCount_ = 0;
  renumberedLoci_ = 0;
  columns_ = 0;
  founderAllele_.clear();
}

void GenomePool::layout(bool wide) {
  wide_ = wide;
  const int lanes = wide ? kLanes<32> : kLanes<16>;
  const int bits = 128 / lanes;
  blocks_ = static_cast<std::size_t>((shape_.loci() + lanes - 1) / lanes);
  lethalAt_ = 2 * kBlockWords * blocks_;
  // Each parent draws 64 bits for every 64 loci; a zero word closes each row.
  draws_.assign(2 * (static_cast<std::size_t>(shape_.loci() + 63) / 64 + 1), 0);
  stride_ = (lethalAt_ + 2 * lethalWords_ + kLineWords - 1) / kLineWords * kLineWords;
  // All ones in the lanes that hold identity loci, block by block.
  ibdLanes_.assign(kBlockWords * blocks_, 0);
  for (int l = shape_.ibdFirst; l < shape_.lethalFirst(); ++l) {
    const int lane = l % lanes;
    ibdLanes_[kBlockWords * static_cast<std::size_t>(l / lanes) + static_cast<std::size_t>(lane / (64 / bits))] |=
        ((1ULL << bits) - 1) << (bits * (lane % (64 / bits)));
  }
}

std::size_t GenomePool::GenomeBytes(const GenomeShape& shape) {
  const std::size_t blocks = static_cast<std::size_t>((shape.loci() + kLanes<16> - 1) / kLanes<16>);
  const std::size_t lethalWords = static_cast<std::size_t>((shape.lethalLoci + 63) / 64);
  const std::size_t words = (2 * kBlockWords * blocks + 2 * lethalWords + kLineWords - 1) / kLineWords * kLineWords;
  return words * sizeof(std::uint64_t);
}

std::size_t GenomePool::bytes() const {
  std::size_t numbers = 0;
  for (const std::vector<std::uint32_t>& founders : founderAllele_) numbers += founders.capacity();
  return (words_.capacity() + draws_.capacity() + ibdLanes_.capacity()) * sizeof(std::uint64_t) +
         (free_.capacity() + numbers) * sizeof(std::uint32_t) + inbreedingOf_.capacity() * sizeof(float);
}

void GenomePool::reserve(const GenomeShape& shape, std::size_t genomes) {
  const std::size_t perGenome = GenomeBytes(shape) / sizeof(std::uint64_t);
  if (genomes > words_.max_size() / perGenome) throw std::bad_alloc();
  words_.reserve(genomes * perGenome);
  free_.resize(std::max(free_.size(), genomes));
}

// Founder alleles no longer fit 16 bits: repack every slot with 32-bit alleles.
void GenomePool::widen() {
  const auto narrow = std::move(words_);
  const std::size_t narrowStride = stride_;
  const std::size_t narrowLethalAt = lethalAt_;
  const std::size_t slots = narrowStride ? narrow.size() / narrowStride : 0;
  layout(true);
  words_.assign(slots * stride_, 0);
  for (std::size_t slot = 0; slot < slots; ++slot) {
    const std::uint64_t* from = &narrow[slot * narrowStride];
    std::uint64_t* to = &words_[slot * stride_];
    for (int h = 0; h < 2; ++h)
      for (int l = 0; l < shape_.loci(); ++l) {
        const int lane = l % kLanes<32>;
        to[kBlockWords * static_cast<std::size_t>(2 * (l / kLanes<32>) + h) + static_cast<std::size_t>(lane / 2)] |=
            static_cast<std::uint64_t>(Lane<16>(from, h, l)) << (32 * (lane % 2));
      }
    std::copy_n(from + narrowLethalAt, 2 * lethalWords_, to + lethalAt_);
  }
}

std::uint32_t GenomePool::take() {
  if (freeCount_ > 0) return free_[--freeCount_];
  const auto slot = static_cast<std::uint32_t>(words_.size() / stride_);
  words_.resize(words_.size() + stride_);
  if (free_.size() <= slot) free_.resize(2 * free_.size() + 64);
  return slot;
}

bool GenomePool::lethal(std::uint32_t allele, int locus) const {
  return Mix(seed_ ^ Mix((static_cast<std::uint64_t>(allele) << 16) ^ static_cast<std::uint64_t>(locus))) <
         lethalThreshold_;
}

std::uint32_t GenomePool::addFounder(std::uint8_t& lethals) {
  if (!wide_ && nextAllele_ + 2 > (1u << 16)) widen();
  const std::uint32_t slot = take();
  const std::uint32_t first = nextAllele_;
  nextAllele_ += 2;
  std::uint64_t* out = &words_[slot * stride_];
  for (std::size_t h = 0; h < 2; ++h) {
    const std::uint64_t word = wide_ ? Repeat<32>(first + h) : Repeat<16>(first + h);
    for (std::size_t b = 0; b < blocks_; ++b)
      for (std::size_t w = 0; w < kBlockWords; ++w) out[kBlockWords * (2 * b + h) + w] = word;
  }
  if (renumberedLoci_ > 0) numberNewFounder(slot, first);
  // Each word of lethal bits is gathered in a register: setting bits in
  // place would make every hash wait on the last one's write.
  int count = 0;
  std::uint64_t* bits = out + lethalAt_;
  for (std::size_t h = 0; h < 2; ++h)
    for (std::size_t w = 0; w < lethalWords_; ++w) {
      const int firstLocus = shape_.lethalFirst() + 64 * static_cast<int>(w);
      const int loci = std::min(64, shape_.lethalLoci - 64 * static_cast<int>(w));
      std::uint64_t word = 0;
      for (int j = 0; j < loci; ++j)
        word |= static_cast<std::uint64_t>(lethal(first + static_cast<std::uint32_t>(h), firstLocus + j)) << j;
      bits[h * lethalWords_ + w] = word;
      count += Popcount(word);
    }
  lethals = static_cast<std::uint8_t>(std::min(count, 255));
  return slot;
}

void GenomePool::setAllele(std::uint32_t slot, int haplotype, int locus, std::uint32_t allele) {
  const int bits = wide_ ? 32 : 16;
  const int perBlock = 128 / bits;
  const int perWord = 64 / bits;
  const int lane = locus % perBlock;
  std::uint64_t& word =
      words_[slot * stride_ + static_cast<std::size_t>(2 * (2 * (locus / perBlock) + haplotype) + lane / perWord)];
  const int shift = bits * (lane % perWord);
  word = (word & ~(((1ULL << bits) - 1) << shift)) | (static_cast<std::uint64_t>(allele) << shift);
}

Newborn GenomePool::addChild(std::uint32_t dam, std::uint32_t sire, Random& random) {
  return wide_ ? child<32>(dam, sire, random) : child<16>(dam, sire, random);
}

template <int Bits>
Newborn GenomePool::child(std::uint32_t dam, std::uint32_t sire, Random& random) {
  using Lanes = typename Block<Bits>::Lanes;
  using Same = typename Block<Bits>::Same;
  constexpr int lanes = kLanes<Bits>;
  constexpr std::uint64_t group = (1ULL << lanes) - 1;
  constexpr std::size_t blocksPerDraw = 64 / lanes;
  constexpr std::size_t block = kBlockWords;
  const std::uint32_t slot = take();  // before the pointers: taking may move the pool
  const std::uint64_t* mother = &words_[dam * stride_];
  const std::uint64_t* father = &words_[sire * stride_];
  std::uint64_t* out = &words_[slot * stride_];
  // One random bit per locus and parent says which of the parent's two
  // haplotypes passes that locus on; a mask applies a block's worth at once.
  Same same{};  // -1 in a lane for each identity locus found identical there
  std::uint64_t* draws = draws_.data();  // the dam's draws, then the sire's
  const std::size_t drawCount = draws_.size() / 2;
  for (std::size_t base = 0; base < blocks_; base += blocksPerDraw) {
    std::uint64_t fromDam = random.bits64();
    std::uint64_t fromSire = random.bits64();
    draws[base / blocksPerDraw] = fromDam;
    draws[drawCount + base / blocksPerDraw] = fromSire;
    const std::size_t end = std::min(blocks_, base + blocksPerDraw);
    for (std::size_t b = base; b < end; ++b) {
      const auto m = Load<Lanes>(&kMasks<Bits>[fromDam & group]);
      const auto p = Load<Lanes>(&kMasks<Bits>[fromSire & group]);
      fromDam >>= lanes;
      fromSire >>= lanes;
      const Lanes maternal =
          (Load<Lanes>(mother + 2 * b * block) & ~m) | (Load<Lanes>(mother + (2 * b + 1) * block) & m);
      const Lanes paternal =
          (Load<Lanes>(father + 2 * b * block) & ~p) | (Load<Lanes>(father + (2 * b + 1) * block) & p);
      Store(out + 2 * b * block, maternal);
      Store(out + (2 * b + 1) * block, paternal);
      same += (maternal == paternal) & Load<Same>(&ibdLanes_[b * block]);
    }
  }
  int identical = 0;
  for (int k = 0; k < lanes; ++k) identical -= same[k];
  const float inbreeding = inbreedingOf_[static_cast<std::size_t>(identical)];
  LethalsPassed lethals{0, true};
  if (shape_.lethalLoci > 0) lethals = passLethals<Bits>(mother, father, out, draws, drawCount);
  return Born(slot, lethals, inbreeding);
}

// The lethal bits of a newborn: each haplotype's bit at a lethal locus comes
// from the parent's haplotype whose allele passed on there, chosen by the
// same random bit. A newborn with the same lethal allele twice dies.
template <int Bits>
LethalsPassed GenomePool::passLethals(const std::uint64_t* mother, const std::uint64_t* father, std::uint64_t* out,
                                      const std::uint64_t* draws, std::size_t drawCount) const {
  bool viable = true;
  int lethals = 0;
  for (std::size_t w = 0; w < lethalWords_; ++w) {
    const std::size_t first = static_cast<std::size_t>(shape_.lethalFirst()) + 64 * w;  // locus of bit 0
    const std::uint64_t dam = BitsFrom(draws, first);
    const std::uint64_t sire = BitsFrom(draws + drawCount, first);
    const std::uint64_t* m = mother + lethalAt_;
    const std::uint64_t* f = father + lethalAt_;
    const std::uint64_t maternal = (m[w] & ~dam) | (m[lethalWords_ + w] & dam);
    const std::uint64_t paternal = (f[w] & ~sire) | (f[lethalWords_ + w] & sire);
    out[lethalAt_ + w] = maternal;
    out[lethalAt_ + lethalWords_ + w] = paternal;
    lethals += Popcount(maternal) + Popcount(paternal);
    // Whether both haplotypes carry a lethal cannot be predicted: the
    // alleles of all the word's loci are compared instead.
    const int loci = std::min(64, shape_.lethalLoci - 64 * static_cast<int>(w));
    viable &= (maternal & paternal & AlikeLoci<Bits>(out, static_cast<int>(first), loci)) == 0;
  }
  return {static_cast<std::uint8_t>(std::min(lethals, 255)), viable};
}

double GenomePool::kinship(std::uint32_t a, std::uint32_t b) const {
  const int shared = wide_ ? sharedAlleles<32>(a, b) : sharedAlleles<16>(a, b);
  return shared / (4.0 * shape_.ibdLoci);
}

// The four pairings of the two genomes' haplotypes compared a block at a
// time: mean kinships of large populations take many of these.
template <int Bits>
int GenomePool::sharedAlleles(std::uint32_t a, std::uint32_t b) const {
  using Lanes = typename Block<Bits>::Lanes;
  using Same = typename Block<Bits>::Same;
  constexpr std::size_t block = kBlockWords;
  const std::uint64_t* x = genome(a);
  const std::uint64_t* y = genome(b);
  Same same{};  // -1 per identity locus and pairing found identical, lane by lane
  for (std::size_t k = 0; k < blocks_; ++k) {
    const Lanes xm = Load<Lanes>(x + 2 * k * block), xp = Load<Lanes>(x + (2 * k + 1) * block);
    const Lanes ym = Load<Lanes>(y + 2 * k * block), yp = Load<Lanes>(y + (2 * k + 1) * block);
    const Same ibd = Load<Same>(&ibdLanes_[k * block]);
    same += ((xm == ym) & ibd) + ((xm == yp) & ibd) + ((xp == ym) & ibd) + ((xp == yp) & ibd);
  }
  int shared = 0;
  for (int k = 0; k < kLanes<Bits>; ++k) shared -= same[k];
  return shared;
}

}  // namespace tamsic::sim
