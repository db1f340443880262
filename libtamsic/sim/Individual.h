#pragma once
// The record of one living individual. Records sit in a flat array per
// population; the genotype lives in the iteration's genome pool, so moving
// a record (death, dispersal) copies 32 bytes, not the genotype.
#include <cstdint>

namespace tamsic::sim {

enum : std::uint8_t { kFemale = 0, kMale = 1 };

struct Individual {
  std::uint32_t id = 0;
  std::uint32_t dam = 0;   // 0 for a founder
  std::uint32_t sire = 0;
  std::uint32_t mate = 0;  // id of the first (or long-term) mate, 0 if none
  std::uint32_t genome = 0;
  float inbreeding = 0.0f;
  std::uint16_t age = 0;
  std::uint16_t parity = 0;  // offspring produced so far
  std::uint8_t sex = kFemale;
  std::uint8_t lethals = 0;  // recessive lethal alleles carried
  std::uint16_t mates = 0;   // number of mates so far
};

}  // namespace tamsic::sim
