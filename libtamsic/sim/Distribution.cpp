#include "sim/Distribution.h"

#include <algorithm>
#include <cmath>

namespace tamsic::sim {

Discrete::Discrete(int first, const std::vector<double>& weights) : first_(first) {
  double total = 0.0;
  double weighted = 0.0;
  for (std::size_t k = 0; k < weights.size(); ++k) {
    const double w = std::max(weights[k], 0.0);
    total += w;
    weighted += w * (first + static_cast<double>(k));
    cumulative_.push_back(total);
  }
  mean_ = total > 0 ? weighted / total : first;
  if (total <= 0) cumulative_.assign(1, 1.0);
}

std::vector<double> RoundedNormal(double mean, double sd, int max) {
  std::vector<double> p(static_cast<std::size_t>(max) + 1, 0.0);
  mean = std::clamp(mean, 0.0, static_cast<double>(max));
  if (sd <= 0.0) {
    const double low = std::floor(mean);
    const auto k = static_cast<std::size_t>(low);
    p[k] = 1.0 - (mean - low);
    if (k + 1 < p.size()) p[k + 1] += mean - low;
    return p;
  }
  const auto cdf = [&](double x) { return 0.5 * std::erfc(-(x - mean) / (sd * std::sqrt(2.0))); };
  for (int k = 0; k <= max; ++k) {
    const double low = k == 0 ? 0.0 : cdf(k - 0.5);
    const double high = k == max ? 1.0 : cdf(k + 0.5);
    p[static_cast<std::size_t>(k)] = high - low;
  }
  return p;
}

}  // namespace tamsic::sim
