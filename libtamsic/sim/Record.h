#pragma once
// What one iteration leaves for the results: for every population (and the
// metapopulation when there are several) and every year 0..NumYears, the
// census of that year.
#include <vector>

namespace tamsic::sim {

struct Census {
  int n = 0;
  bool extinct = false;
  float geneDiversity = 0.0f;
  float inbreeding = 0.0f;
  float alleles = 0.0f;  // mean per neutral locus
  float lethals = 0.0f;  // mean lethal alleles per individual
};

class IterationRecord {
 public:
  void reset(int blocks, int years) {
    blocks_ = blocks;
    years_ = years;
    cells_.assign(static_cast<std::size_t>(blocks) * static_cast<std::size_t>(years + 1), Census{});
  }
  Census& at(int block, int year) { return cells_[index(block, year)]; }
  const Census& at(int block, int year) const { return cells_[index(block, year)]; }
  int blocks() const { return blocks_; }
  int years() const { return years_; }

 private:
  std::size_t index(int block, int year) const {
    return static_cast<std::size_t>(block) * static_cast<std::size_t>(years_ + 1) + static_cast<std::size_t>(year);
  }
  int blocks_ = 0;
  int years_ = 0;
  std::vector<Census> cells_;
};

}  // namespace tamsic::sim
