#include "sim/Genome.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace tamsic::sim {

void GenomePool::reset(const GenomeShape& shape, std::uint64_t seed) {
  shape_ = shape;
  loci_ = static_cast<std::size_t>(shape.loci());
  stride_ = 2 * loci_;
  seed_ = seed;
  nextAllele_ = 0;
  const double share = std::clamp(shape.lethalShare, 0.0, 1.0);
  lethalThreshold_ = share >= 1.0 ? ~0ULL : static_cast<std::uint64_t>(share * 0x1.0p64);
  alleles_.clear();
  free_.clear();
}

void GenomePool::reserve(const GenomeShape& shape, std::size_t genomes) {
  if (genomes > alleles_.max_size() / (2 * static_cast<std::size_t>(shape.loci()))) throw std::bad_alloc();
  alleles_.reserve(genomes * 2 * static_cast<std::size_t>(shape.loci()));
  free_.reserve(genomes);
}

std::uint32_t GenomePool::take() {
  if (!free_.empty()) {
    const std::uint32_t slot = free_.back();
    free_.pop_back();
    return slot;
  }
  const auto slot = static_cast<std::uint32_t>(alleles_.size() / stride_);
  alleles_.resize(alleles_.size() + stride_);
  return slot;
}

bool GenomePool::lethal(std::uint32_t allele, int locus) const {
  return Mix(seed_ ^ Mix((static_cast<std::uint64_t>(allele) << 16) ^ static_cast<std::uint64_t>(locus))) <
         lethalThreshold_;
}

std::uint32_t GenomePool::addFounder(std::uint8_t& lethals) {
  const std::uint32_t slot = take();
  std::uint32_t* out = &alleles_[slot * stride_];
  const std::uint32_t first = nextAllele_;
  nextAllele_ += 2;
  for (std::size_t l = 0; l < loci_; ++l) {
    out[2 * l] = first;
    out[2 * l + 1] = first + 1;
  }
  int count = 0;
  for (int l = shape_.ibdLoci; l < shape_.loci(); ++l) count += lethal(first, l) + lethal(first + 1, l);
  lethals = static_cast<std::uint8_t>(std::min(count, 255));
  return slot;
}

Newborn GenomePool::addChild(std::uint32_t dam, std::uint32_t sire, Random& random) {
  const std::uint32_t slot = take();
  const std::uint32_t* mother = &alleles_[dam * stride_];
  const std::uint32_t* father = &alleles_[sire * stride_];
  std::uint32_t* out = &alleles_[slot * stride_];
  // One random bit per locus and parent says which of the parent's two alleles passes on.
  int identical = 0;
  for (std::size_t base = 0; base < loci_; base += 64) {
    const std::uint64_t fromDam = random.bits64();
    const std::uint64_t fromSire = random.bits64();
    const std::size_t end = std::min(loci_, base + 64);
    for (std::size_t l = base; l < end; ++l) {
      const std::size_t bit = l - base;
      const std::uint32_t m = mother[2 * l + ((fromDam >> bit) & 1u)];
      const std::uint32_t p = father[2 * l + ((fromSire >> bit) & 1u)];
      out[2 * l] = m;
      out[2 * l + 1] = p;
      identical += l < static_cast<std::size_t>(shape_.ibdLoci) && m == p;
    }
  }
  Newborn child{slot, static_cast<float>(identical) / static_cast<float>(shape_.ibdLoci), 0, true};
  int lethals = 0;
  for (int l = shape_.ibdLoci; l < shape_.loci(); ++l) {
    const std::uint32_t m = out[2 * l];
    const std::uint32_t p = out[2 * l + 1];
    const bool lethalM = lethal(m, l);
    lethals += lethalM + lethal(p, l);
    if (lethalM && m == p) child.viable = false;
  }
  child.lethals = static_cast<std::uint8_t>(std::min(lethals, 255));
  return child;
}

double GenomePool::kinship(std::uint32_t a, std::uint32_t b) const {
  const std::uint32_t* x = &alleles_[a * stride_];
  const std::uint32_t* y = &alleles_[b * stride_];
  int shared = 0;
  for (int l = 0; l < shape_.ibdLoci; ++l)
    for (int i = 0; i < 2; ++i)
      for (int j = 0; j < 2; ++j) shared += x[2 * l + i] == y[2 * l + j];
  return shared / (4.0 * shape_.ibdLoci);
}

}  // namespace tamsic::sim
