#include "RandomStream.h"

#include <bit>
#include <cmath>
#include <numbers>

namespace tamsic {

namespace {

std::uint64_t SplitMix(std::uint64_t x) {
  x += 0x9e3779b97f4a7c15ULL;
  x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
  x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
  return x ^ (x >> 31);
}

double Unit(std::uint64_t bits) { return static_cast<double>(bits >> 11) * 0x1.0p-53; }

// Box-Muller; 1 - u keeps the logarithm away from 0.
double Gaussian(double u1, double u2) {
  return std::sqrt(-2.0 * std::log(1.0 - u1)) * std::cos(2.0 * std::numbers::pi * u2);
}

std::uint64_t Key(std::uint64_t seed, double argument) {
  // +0.0 so that -0 and 0 give the same draw.
  return SplitMix(seed ^ SplitMix(std::bit_cast<std::uint64_t>(argument + 0.0)));
}

}  // namespace

double RandomStream::uniform() {
  const std::uint64_t high = engine_();
  const std::uint64_t low = engine_();
  return Unit((high << 32) | low);
}

double RandomStream::normal() {
  const double u1 = uniform();
  return Gaussian(u1, uniform());
}

double RandomStream::seededUniform(double argument) const { return Unit(Key(seed_, argument)); }

double RandomStream::seededNormal(double argument) const {
  const std::uint64_t key = Key(seed_, argument);
  return Gaussian(Unit(key), Unit(SplitMix(key)));
}

}  // namespace tamsic
