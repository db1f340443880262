#include "sim/Genome.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>

namespace tamsic::sim {

namespace {

template <int Bits>
constexpr int kLanes = 64 / Bits;
constexpr std::size_t kLineWords = 8;

template <int Bits>
constexpr std::uint64_t Repeat(std::uint64_t lane) {
  std::uint64_t word = 0;
  for (int k = 0; k < kLanes<Bits>; ++k) word |= lane << (Bits * k);
  return word;
}

// The mask that takes lane k from the second haplotype when bit k of a group
// of random bits is set, for every such group.
template <int Bits>
constexpr std::array<std::uint64_t, (1u << kLanes<Bits>)> MakeMasks() {
  std::array<std::uint64_t, (1u << kLanes<Bits>)> masks{};
  for (std::uint32_t bits = 0; bits < masks.size(); ++bits)
    for (int k = 0; k < kLanes<Bits>; ++k)
      if ((bits >> k) & 1u) masks[bits] |= ((1ULL << Bits) - 1) << (Bits * k);
  return masks;
}

template <int Bits>
constexpr auto kMasks = MakeMasks<Bits>();

// The lanes of x that are zero, counting only lanes whose top bit is set in `valid`.
template <int Bits>
int ZeroLanes(std::uint64_t x, std::uint64_t valid) {
  constexpr std::uint64_t high = Repeat<Bits>(1ULL << (Bits - 1));
  constexpr std::uint64_t low = ~high;
  const std::uint64_t nonzero = (((x & low) + low) | x) & high;
  // Sum the lanes' top bits with one multiplication (no popcount instruction on every machine).
  constexpr std::uint64_t ones = Repeat<Bits>(1);
  return static_cast<int>((((~nonzero & valid) >> (Bits - 1)) * ones) >> (64 - Bits));
}

}  // namespace

void GenomePool::reset(const GenomeShape& shape, std::uint64_t seed) {
  shape_ = shape;
  seed_ = seed;
  nextAllele_ = 0;
  const double share = std::clamp(shape.lethalShare, 0.0, 1.0);
  lethalThreshold_ = share >= 1.0 ? ~0ULL : static_cast<std::uint64_t>(share * 0x1.0p64);
  layout(false);
  words_.clear();
  free_.clear();
}

void GenomePool::layout(bool wide) {
  wide_ = wide;
  const int lanes = wide ? kLanes<32> : kLanes<16>;
  const int bits = 64 / lanes;
  haplotypeWords_ = static_cast<std::size_t>((shape_.loci() + lanes - 1) / lanes);
  stride_ = (2 * haplotypeWords_ + kLineWords - 1) / kLineWords * kLineWords;
  // Top bits of the lanes that hold identity loci, word by word.
  ibdLanes_.assign(haplotypeWords_, 0);
  for (int l = 0; l < shape_.ibdLoci; ++l)
    ibdLanes_[static_cast<std::size_t>(l / lanes)] |= 1ULL << (bits * (l % lanes) + bits - 1);
}

void GenomePool::reserve(const GenomeShape& shape, std::size_t genomes) {
  const std::size_t perGenome = (2 * static_cast<std::size_t>((shape.loci() + kLanes<16> - 1) / kLanes<16>) +
                                 kLineWords - 1) / kLineWords * kLineWords;
  if (genomes > words_.max_size() / perGenome) throw std::bad_alloc();
  words_.reserve(genomes * perGenome);
  free_.reserve(genomes);
}

// Founder alleles no longer fit 16 bits: repack every slot with 32-bit alleles.
void GenomePool::widen() {
  const auto narrow = std::move(words_);
  const std::size_t narrowStride = stride_;
  const std::size_t slots = narrowStride ? narrow.size() / narrowStride : 0;
  layout(true);
  words_.assign(slots * stride_, 0);
  for (std::size_t slot = 0; slot < slots; ++slot) {
    const std::uint64_t* from = &narrow[slot * narrowStride];
    std::uint64_t* to = &words_[slot * stride_];
    for (int h = 0; h < 2; ++h)
      for (int l = 0; l < shape_.loci(); ++l)
        to[2 * (l / 2) + h] |= static_cast<std::uint64_t>(Lane<16>(from, h, l)) << (32 * (l % 2));
  }
}

std::uint32_t GenomePool::take() {
  if (!free_.empty()) {
    const std::uint32_t slot = free_.back();
    free_.pop_back();
    return slot;
  }
  const auto slot = static_cast<std::uint32_t>(words_.size() / stride_);
  words_.resize(words_.size() + stride_);
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
    for (std::size_t w = 0; w < haplotypeWords_; ++w) out[2 * w + h] = word;
  }
  int count = 0;
  for (int l = shape_.ibdLoci; l < shape_.loci(); ++l) count += lethal(first, l) + lethal(first + 1, l);
  lethals = static_cast<std::uint8_t>(std::min(count, 255));
  return slot;
}

Newborn GenomePool::addChild(std::uint32_t dam, std::uint32_t sire, Random& random) {
  return wide_ ? child<32>(dam, sire, random) : child<16>(dam, sire, random);
}

template <int Bits>
Newborn GenomePool::child(std::uint32_t dam, std::uint32_t sire, Random& random) {
  constexpr int lanes = kLanes<Bits>;
  constexpr std::uint64_t group = (1ULL << lanes) - 1;
  constexpr std::size_t wordsPerDraw = 64 / lanes;
  const std::uint32_t slot = take();  // before the pointers: taking may move the pool
  const std::uint64_t* mother = &words_[dam * stride_];
  const std::uint64_t* father = &words_[sire * stride_];
  std::uint64_t* out = &words_[slot * stride_];
  const std::size_t n = haplotypeWords_;
  // One random bit per locus and parent says which of the parent's two
  // haplotypes passes that locus on; a mask applies a lane's worth at once.
  int identical = 0;
  for (std::size_t base = 0; base < n; base += wordsPerDraw) {
    std::uint64_t fromDam = random.bits64();
    std::uint64_t fromSire = random.bits64();
    const std::size_t end = std::min(n, base + wordsPerDraw);
    for (std::size_t w = base; w < end; ++w) {
      const std::uint64_t m = kMasks<Bits>[fromDam & group];
      const std::uint64_t p = kMasks<Bits>[fromSire & group];
      fromDam >>= lanes;
      fromSire >>= lanes;
      const std::uint64_t maternal = (mother[2 * w] & ~m) | (mother[2 * w + 1] & m);
      const std::uint64_t paternal = (father[2 * w] & ~p) | (father[2 * w + 1] & p);
      out[2 * w] = maternal;
      out[2 * w + 1] = paternal;
      identical += ZeroLanes<Bits>(maternal ^ paternal, ibdLanes_[w]);
    }
  }
  Newborn born{slot, static_cast<float>(identical) / static_cast<float>(shape_.ibdLoci), 0, true};
  if (shape_.lethalLoci > 0) {
    int lethals = 0;
    for (int l = shape_.ibdLoci; l < shape_.loci(); ++l) {
      const std::uint32_t a = Lane<Bits>(out, 0, l);
      const std::uint32_t b = Lane<Bits>(out, 1, l);
      const bool lethalA = lethal(a, l);
      lethals += lethalA + lethal(b, l);
      if (lethalA && a == b) born.viable = false;
    }
    born.lethals = static_cast<std::uint8_t>(std::min(lethals, 255));
  }
  return born;
}

double GenomePool::kinship(std::uint32_t a, std::uint32_t b) const {
  const int shared = wide_ ? sharedAlleles<32>(a, b) : sharedAlleles<16>(a, b);
  return shared / (4.0 * shape_.ibdLoci);
}

template <int Bits>
int GenomePool::sharedAlleles(std::uint32_t a, std::uint32_t b) const {
  const std::uint64_t* x = genome(a);
  const std::uint64_t* y = genome(b);
  int shared = 0;
  for (int l = 0; l < shape_.ibdLoci; ++l)
    for (int i = 0; i < 2; ++i)
      for (int j = 0; j < 2; ++j) shared += Lane<Bits>(x, i, l) == Lane<Bits>(y, j, l);
  return shared;
}

}  // namespace tamsic::sim
