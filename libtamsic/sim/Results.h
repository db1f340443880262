#pragma once
// The statistics over all iterations of a scenario, by population (and
// metapopulation) and year, folded in iteration order so that the sums, and
// with them the files, do not depend on which thread ran which iteration.
#include <vector>

#include "sim/Record.h"

namespace tamsic::sim {

struct Moments {
  double n = 0.0;
  double sum = 0.0;
  double sumSq = 0.0;
  void add(double x) {
    n += 1.0;
    sum += x;
    sumSq += x * x;
  }
  double mean() const { return n > 0 ? sum / n : 0.0; }
  double sd() const;
  double se() const;
};

struct YearStats {
  int firstExtinctions = 0;  // iterations whose first extinction is this year
  Moments stochasticR;
  Moments extant;  // N over iterations not extinct this year
  Moments all;     // N over all iterations, extinct as 0
  Moments geneDiversity, inbreeding, alleles, lethals;  // over extant iterations
};

// The final state of one population in one iteration, a line of the run table.
struct FinalState {
  int iteration = 0;
  int block = 0;
  int firstExtinction = -1;  // year, -1 when never
  Census census;
};

class Results {
 public:
  Results(int blocks, int years, int userVariables);
  void add(int iteration, const IterationRecord& record);

  int blocks() const { return blocks_; }
  int years() const { return years_; }
  int iterations() const { return iterations_; }
  const YearStats& at(int block, int year) const { return stats_[index(block, year)]; }
  int userVariables() const { return userVariables_; }
  // User variable v (from 0) over all iterations: PS of a population, GS of the metapopulation.
  const Moments& user(int block, int year, int v) const { return user_[userIndex(block, year, v)]; }
  const std::vector<FinalState>& finals() const { return finals_; }

  // Iterations extinct by the year, and the mean, SD and SE of their year of extinction.
  int extinctBy(int block, int year) const;
  Moments extinctionYears(int block, int year) const;
  // The year by which half of the iterations have gone extinct, 0 when they have not by `year`.
  int medianExtinction(int block, int year) const;

 private:
  std::size_t index(int block, int year) const {
    return static_cast<std::size_t>(block) * static_cast<std::size_t>(years_ + 1) + static_cast<std::size_t>(year);
  }
  std::size_t userIndex(int block, int year, int v) const {
    return index(block, year) * static_cast<std::size_t>(userVariables_) + static_cast<std::size_t>(v);
  }
  int blocks_;
  int years_;
  int userVariables_;
  int iterations_ = 0;
  std::vector<YearStats> stats_;
  std::vector<Moments> user_;
  std::vector<FinalState> finals_;
};

}  // namespace tamsic::sim
