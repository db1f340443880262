#pragma once
// The genotypes of an iteration's living individuals. Every locus carries
// founder-unique alleles: founder haplotype h has allele h at every locus,
// so two alleles are identical exactly when they descend from the same
// founder allele. Loci 0..ibdLoci-1 measure identity by descent (the first
// neutralLoci of them are the neutral loci whose diversity is reported);
// the lethalLoci after them carry recessive lethals: founder allele h is
// lethal at lethal locus l when a hash of (h, l, seed) falls below the
// lethal share, so no table of lethal alleles is stored. Slots of the dead
// are reused, so a year allocates nothing once the pool has grown. The two
// alleles of a locus sit side by side and the neutral loci come first, so
// that the census reads a few adjacent bytes of each genome.
#include <cstdint>
#include <vector>

#include "sim/Random.h"

namespace tamsic::sim {

struct GenomeShape {
  int ibdLoci = 64;
  int neutralLoci = 1;
  int lethalLoci = 0;
  double lethalShare = 0.0;  // chance that a founder allele is lethal at a lethal locus
  int loci() const { return ibdLoci + lethalLoci; }
};

struct Newborn {
  std::uint32_t slot;
  float inbreeding;
  std::uint8_t lethals;
  bool viable;  // false when homozygous for a lethal
};

class GenomePool {
 public:
  void reset(const GenomeShape& shape, std::uint64_t seed);
  // Room for so many genomes of the shape, so that the pool need not grow.
  void reserve(const GenomeShape& shape, std::size_t genomes);

  // A founder with two new haplotypes.
  std::uint32_t addFounder(std::uint8_t& lethals);
  // A child of two parents (the same slot twice for selfing).
  Newborn addChild(std::uint32_t dam, std::uint32_t sire, Random& random);
  void release(std::uint32_t slot) { free_.push_back(slot); }

  // Allele of haplotype 0 (maternal) or 1 (paternal) at a locus.
  const std::uint32_t* alleles(std::uint32_t slot) const { return &alleles_[static_cast<std::size_t>(slot) * stride_]; }
  std::uint32_t allele(std::uint32_t slot, int haplotype, int locus) const {
    return alleles_[static_cast<std::size_t>(slot) * stride_ + 2 * static_cast<std::size_t>(locus) + haplotype];
  }
  // Kinship from shared alleles at the identity-by-descent loci.
  double kinship(std::uint32_t a, std::uint32_t b) const;
  std::uint32_t alleleCount() const { return nextAllele_; }
  const GenomeShape& shape() const { return shape_; }

 private:
  std::uint32_t take();
  bool lethal(std::uint32_t allele, int locus) const;

  GenomeShape shape_;
  std::size_t loci_ = 0;
  std::size_t stride_ = 0;
  std::uint64_t seed_ = 0;
  std::uint32_t nextAllele_ = 0;
  std::uint64_t lethalThreshold_ = 0;
  std::vector<std::uint32_t> alleles_;
  std::vector<std::uint32_t> free_;
};

}  // namespace tamsic::sim
