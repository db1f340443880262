#pragma once
// The random numbers of one run (or one graph): a PCG stream seeded once, so
// the same seed gives the same draws. The seeded draws of SRAND and SNRAND
// are a hash of the run's seed and the function's argument: repeatable
// within the run, independent of how many draws came before.
#include <cstdint>

#include <pcg_random.hpp>

namespace tamsic {

class RandomStream {
 public:
  explicit RandomStream(std::uint64_t seed) : engine_(seed), seed_(seed) {}

  double uniform();  // [0, 1)
  double normal();   // mean 0, SD 1
  double seededUniform(double argument) const;
  double seededNormal(double argument) const;

 private:
  pcg32 engine_;
  std::uint64_t seed_;
};

}  // namespace tamsic
