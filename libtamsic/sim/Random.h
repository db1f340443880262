#pragma once
// The random stream of one iteration: a PCG generator whose seed and stream
// come from the run's seed and the iteration's number, so that an iteration
// draws the same numbers whichever thread runs it and whenever.
#include <cmath>
#include <cstdint>

#include <pcg_random.hpp>

namespace tamsic::sim {

inline std::uint64_t Mix(std::uint64_t x) {
  x += 0x9e3779b97f4a7c15ULL;
  x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
  x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
  return x ^ (x >> 31);
}

class Random {
 public:
  Random(std::uint64_t seed, std::uint64_t iteration)
      : engine_(Mix(seed ^ Mix(iteration)), iteration) {}

  std::uint32_t bits() { return engine_(); }
  std::uint64_t bits64() { return (static_cast<std::uint64_t>(engine_()) << 32) | engine_(); }
  // [0, 1) with 32 bits of resolution: enough for every probability here.
  double uniform() { return engine_() * 0x1.0p-32; }
  bool chance(double p) { return uniform() < p; }
  // 0 .. n-1 without modulo bias worth mentioning for n far below 2^32.
  std::uint32_t below(std::uint32_t n) {
    return static_cast<std::uint32_t>((static_cast<std::uint64_t>(engine_()) * n) >> 32);
  }
  double normal() {
    if (hasSpare_) {
      hasSpare_ = false;
      return spare_;
    }
    const double u1 = 1.0 - uniform();
    const double u2 = uniform();
    const double radius = std::sqrt(-2.0 * std::log(u1));
    spare_ = radius * std::sin(6.283185307179586 * u2);
    hasSpare_ = true;
    return radius * std::cos(6.283185307179586 * u2);
  }

 private:
  pcg32 engine_;
  double spare_ = 0.0;
  bool hasSpare_ = false;
};

// A hot loop's copy of the iteration's stream. The stream reached through
// the world is loaded and stored at every draw, since the compiler cannot
// tell it apart from the records the loop writes; the copy stays in
// registers. It goes home when it goes out of scope, and for the length of
// a call to anything else that may draw (lend).
class LocalStream : public Random {
 public:
  explicit LocalStream(Random& home) : Random(home), home_(home) {}
  LocalStream(const LocalStream&) = delete;
  LocalStream& operator=(const LocalStream&) = delete;
  ~LocalStream() { home_ = *this; }

  template <class Draws>
  auto lend(Draws&& draws) {
    home_ = *this;
    auto result = draws();
    static_cast<Random&>(*this) = home_;
    return result;
  }

 private:
  Random& home_;
};

}  // namespace tamsic::sim
