#pragma once
// The values of the individual state variables of an iteration's living,
// one row per genome slot: a slot belongs to one individual for its life and
// moves with its record, so the records stay small, the values need no
// moving, and a scenario without state variables pays nothing.
#include <algorithm>
#include <cstdint>
#include <vector>

namespace tamsic::sim {

class IndividualStates {
 public:
  void reset(int count) {
    count_ = static_cast<std::size_t>(count);
    values_.clear();
  }
  int count() const { return static_cast<int>(count_); }

  // The row of a slot being given to a new individual; rows of other slots may move.
  double* add(std::uint32_t slot) {
    const std::size_t end = (static_cast<std::size_t>(slot) + 1) * count_;
    if (end > values_.size()) values_.resize(std::max(end, 2 * values_.size()));
    return at(slot);
  }
  // The row of a living individual's slot.
  double* at(std::uint32_t slot) { return values_.data() + static_cast<std::size_t>(slot) * count_; }
  const double* at(std::uint32_t slot) const { return values_.data() + static_cast<std::size_t>(slot) * count_; }
  std::size_t bytes() const { return values_.capacity() * sizeof(double); }

 private:
  std::size_t count_ = 0;
  std::vector<double> values_;
};

}  // namespace tamsic::sim
