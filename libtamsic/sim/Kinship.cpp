#include "sim/Kinship.h"

#include <algorithm>

#include "sim/World.h"

namespace tamsic::sim {

bool KinshipMatrix::room(std::uint32_t slot) {
  if (slot < size_) return true;
  if (slot >= limit_) {
    exact_ = false;
    return false;
  }
  const std::size_t grown = std::min<std::size_t>(limit_, std::max<std::size_t>({2 * size_, slot + 1, 64}));
  std::vector<float> cells(grown * grown, 0.0f);
  for (std::size_t r = 0; r < size_; ++r) std::copy_n(&cells_[r * size_], size_, &cells[r * grown]);
  cells_ = std::move(cells);
  size_ = grown;
  return true;
}

void KinshipMatrix::addFounder(std::uint32_t slot) {
  if (room(slot)) arrivals_.push_back({slot, kNoParent, kNoParent});
}

float KinshipMatrix::addChild(std::uint32_t slot, std::uint32_t dam, std::uint32_t sire) {
  const float inbreeding = at(dam, sire);
  if (room(slot)) arrivals_.push_back({slot, dam, sire});
  return inbreeding;
}

void KinshipMatrix::settle() {
  if (!exact_) arrivals_.clear();
  if (arrivals_.empty()) return;
  // Rows over the settled columns: 0 for a founder, the mean of the parents' rows for a newborn.
  for (const Arrival& a : arrivals_) {
    float* r = row(a.slot);
    if (a.dam == kNoParent) {
      std::fill_n(r, size_, 0.0f);
      continue;
    }
    const float* mother = row(a.dam);
    const float* father = row(a.sire);
    for (std::size_t j = 0; j < size_; ++j) r[j] = 0.5f * (mother[j] + father[j]);
  }
  // Between arrivals, through the parents of one and the row of the other
  // (parents have settled, so neither is the other's parent).
  for (std::size_t b = 0; b < arrivals_.size(); ++b) {
    const Arrival& a = arrivals_[b];
    const bool founder = a.dam == kNoParent;
    row(a.slot)[a.slot] = founder ? 0.5f : 0.5f * (1.0f + at(a.dam, a.sire));
    for (std::size_t c = b + 1; c < arrivals_.size(); ++c) {
      const std::uint32_t other = arrivals_[c].slot;
      const float k = founder ? 0.0f : 0.5f * (at(other, a.dam) + at(other, a.sire));
      row(a.slot)[other] = k;
      row(other)[a.slot] = k;
    }
  }
  // The arrivals' columns, one row at a time.
  for (std::size_t j = 0; j < size_; ++j) {
    float* r = &cells_[j * size_];
    for (const Arrival& a : arrivals_) r[a.slot] = at(a.slot, static_cast<std::uint32_t>(j));
  }
  arrivals_.clear();
}

void KinshipMatrix::set(std::uint32_t a, std::uint32_t b, float kinship) {
  settle();
  if (!room(std::max(a, b))) return;
  row(a)[b] = kinship;
  row(b)[a] = kinship;
}

double PairKinship(const World& world, const Individual& a, const Individual& b) {
  if (world.kinship.exact()) return world.kinship.at(a.genome, b.genome);
  return world.genomes.kinship(a.genome, b.genome);
}

void MeanKinships(const World& world, const std::vector<Individual>& members, std::vector<double>& out) {
  const std::size_t n = members.size();
  out.assign(n, 0.0);
  if (n == 0) return;
  if (world.kinship.exact()) {
    for (std::size_t i = 0; i < n; ++i) {
      double sum = 0.0;
      for (const Individual& other : members) sum += world.kinship.at(members[i].genome, other.genome);
      out[i] = sum / static_cast<double>(n);
    }
    return;
  }
  const GenomePool& g = world.genomes;
  const GenomeShape& shape = g.shape();
  std::vector<std::uint32_t> copies(g.alleleCount(), 0);
  for (int l = shape.ibdFirst; l < shape.lethalFirst(); ++l) {
    for (const Individual& ind : members)
      for (int h = 0; h < 2; ++h) ++copies[g.allele(ind.genome, h, l)];
    for (std::size_t i = 0; i < n; ++i)
      for (int h = 0; h < 2; ++h) out[i] += copies[g.allele(members[i].genome, h, l)];
    for (const Individual& ind : members)
      for (int h = 0; h < 2; ++h) copies[g.allele(ind.genome, h, l)] = 0;
  }
  for (double& mk : out) mk /= 4.0 * static_cast<double>(n) * shape.ibdLoci;
}

}  // namespace tamsic::sim
