#pragma once
// Kinship for the captive-management options. While an iteration holds few
// genomes, a kinship matrix indexed by genome slot gives exact pedigree
// values: a founder's row is 0 but for its self-kinship 1/2, a newborn's row
// is the mean of its parents' rows, and its self-kinship is (1 + F) / 2.
// Arrivals (founders and the young of a year) are queued and settled
// together: their rows first, then their columns in one pass over the rows,
// since a column written arrival by arrival would miss the cache at every
// row. A year then costs about N operations per arrival, and mean kinships
// N^2. Past kExactKinshipSlots genomes the matrix would cost more time and
// memory than the rest of the simulation, so the iteration drops it and
// estimates kinship from the alleles shared at the identity-by-descent
// loci, as it does for inbreeding.
#include <cstdint>
#include <vector>

#include "sim/Individual.h"

namespace tamsic::sim {

struct World;

// 1024 genomes at once (the living and this year's young): a float matrix of
// 4 MB per thread, which stays in the processor's cache; populations of up
// to about 600 at K.
inline constexpr std::uint32_t kExactKinshipSlots = 1024;

class KinshipMatrix {
 public:
  // Starts an iteration: exact when asked for, until the genomes outgrow the limit.
  void reset(bool exact, std::uint32_t limit = kExactKinshipSlots) {
    exact_ = exact;
    limit_ = limit;
    arrivals_.clear();
  }
  bool exact() const { return exact_; }

  // Queue an arrival; its kinships can be read once the matrix has settled.
  void addFounder(std::uint32_t slot);
  // Answers the newborn's inbreeding, the kinship of its parents (who must
  // have settled; the same slot twice for selfing).
  float addChild(std::uint32_t slot, std::uint32_t dam, std::uint32_t sire);
  void settle();
  // Sets the kinship of two settled slots.
  void set(std::uint32_t a, std::uint32_t b, float kinship);
  float at(std::uint32_t a, std::uint32_t b) const { return cells_[a * size_ + b]; }
  std::size_t bytes() const { return cells_.capacity() * sizeof(float) + arrivals_.capacity() * sizeof(Arrival); }

 private:
  static constexpr std::uint32_t kNoParent = UINT32_MAX;
  struct Arrival {
    std::uint32_t slot, dam, sire;
  };
  // Room for the slot; false (and the matrix dropped) when it is past the limit.
  bool room(std::uint32_t slot);
  float* row(std::uint32_t slot) { return &cells_[slot * size_]; }

  bool exact_ = false;
  std::uint32_t limit_ = kExactKinshipSlots;
  std::size_t size_ = 0;  // rows (and columns) held
  std::vector<float> cells_;
  std::vector<Arrival> arrivals_;
};

// The kinship of two living individuals: exact while the matrix is kept,
// else from their shared alleles at the identity loci.
double PairKinship(const World& world, const Individual& a, const Individual& b);

// Each member's mean kinship with all members of the group, itself included.
// From the identity loci: the copies in the group of each of its alleles,
// over 4 N per locus.
void MeanKinships(const World& world, const std::vector<Individual>& members, std::vector<double>& out);

}  // namespace tamsic::sim
