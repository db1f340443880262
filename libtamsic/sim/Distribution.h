#pragma once
// Discrete distributions of brood sizes and brood counts, drawn by one
// uniform number through a cumulative table.
#include <vector>

#include "sim/Random.h"

namespace tamsic::sim {

class Discrete {
 public:
  Discrete() = default;
  // Probabilities (any scale) of the values first, first + 1, ...
  Discrete(int first, const std::vector<double>& weights);

  int draw(Random& random) const {
    if (cumulative_.size() <= 1) return first_;
    const double u = random.uniform() * cumulative_.back();
    // The table rises, so the values passed are the first k: counted
    // without a branch, since which value a draw gives cannot be predicted.
    int k = 0;
    for (std::size_t j = 0; j + 1 < cumulative_.size(); ++j) k += u >= cumulative_[j];
    return first_ + k;
  }
  double mean() const { return mean_; }

 private:
  int first_ = 0;
  std::vector<double> cumulative_;
  double mean_ = 0.0;
};

// Offspring per brood from a mean and SD: the normal distribution rounded to
// whole numbers, the tails beyond 0 and `max` gathered at 0 and `max`. With
// SD 0 the two whole numbers around the mean share it so that the mean holds.
std::vector<double> RoundedNormal(double mean, double sd, int max);

}  // namespace tamsic::sim
