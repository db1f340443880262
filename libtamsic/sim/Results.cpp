#include "sim/Results.h"

#include <cmath>

namespace tamsic::sim {

double Moments::sd() const {
  if (n < 2) return 0.0;
  const double variance = (sumSq - sum * sum / n) / (n - 1.0);
  return variance > 0 ? std::sqrt(variance) : 0.0;
}

double Moments::se() const { return n > 0 ? sd() / std::sqrt(n) : 0.0; }

Results::Results(int blocks, int years, int userVariables)
    : blocks_(blocks),
      years_(years),
      userVariables_(userVariables),
      stats_(static_cast<std::size_t>(blocks) * static_cast<std::size_t>(years + 1)),
      user_(stats_.size() * static_cast<std::size_t>(userVariables)) {}

void Results::add(int iteration, const IterationRecord& record) {
  ++iterations_;
  for (int b = 0; b < blocks_; ++b) {
    int first = -1;
    for (int y = 0; y <= years_; ++y) {
      const Census& c = record.at(b, y);
      YearStats& s = stats_[index(b, y)];
      // State variables have values in every year, extinct or not.
      for (int v = 0; v < userVariables_; ++v) user_[userIndex(b, y, v)].add(record.userValues(b, y)[v]);
      if (c.extinct && first < 0) {
        first = y;
        ++s.firstExtinctions;
      }
      s.all.add(c.n);
      if (c.extinct || c.n == 0) continue;
      s.extant.add(c.n);
      s.geneDiversity.add(c.geneDiversity);
      s.inbreeding.add(c.inbreeding);
      s.alleles.add(c.alleles);
      s.lethals.add(c.lethals);
      if (y > 0) {
        const Census& before = record.at(b, y - 1);
        if (!before.extinct && before.n > 0) s.stochasticR.add(std::log(static_cast<double>(c.n) / before.n));
      }
    }
    finals_.push_back({iteration, b, first, record.at(b, years_)});
  }
}

int Results::extinctBy(int block, int year) const {
  int count = 0;
  for (int y = 0; y <= year; ++y) count += at(block, y).firstExtinctions;
  return count;
}

Moments Results::extinctionYears(int block, int year) const {
  Moments m;
  for (int y = 0; y <= year; ++y) {
    const int k = at(block, y).firstExtinctions;
    m.n += k;
    m.sum += static_cast<double>(k) * y;
    m.sumSq += static_cast<double>(k) * y * y;
  }
  return m;
}

int Results::medianExtinction(int block, int year) const {
  int count = 0;
  for (int y = 0; y <= year; ++y) {
    count += at(block, y).firstExtinctions;
    if (2 * count >= iterations_ && iterations_ > 0) return y;
  }
  return 0;
}

}  // namespace tamsic::sim
