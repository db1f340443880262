#include "sim/IdIndex.h"

#include <bit>

namespace tamsic::sim {

namespace {

// Fibonacci hashing: ids come in runs, which this spreads over the table.
std::size_t Home(std::uint32_t id, int shift) {
  return static_cast<std::size_t>((id * 0x9E3779B97F4A7C15ULL) >> shift);
}

}  // namespace

void IdIndex::insert(const Individual& ind) {
  const std::size_t mask = table_.size() - 1;
  std::size_t at = Home(ind.id, shift_);
  while (table_[at] != 0) at = (at + 1) & mask;
  table_[at] = static_cast<std::uint64_t>(ind.id) << 32 | ind.genome;
}

void IdIndex::build(const World& world) {
  std::size_t living = 0;
  for (const PopulationState& pop : world.pops) living += pop.members.size();
  for (const auto& moving : world.arrivals) living += moving.size();
  // At most half full, so that a search ends soon.
  const std::size_t size = std::bit_ceil(2 * living + 2);
  table_.assign(size, 0);
  shift_ = 64 - std::countr_zero(size);
  for (const PopulationState& pop : world.pops)
    for (const Individual& ind : pop.members) insert(ind);
  for (const auto& moving : world.arrivals)
    for (const Individual& ind : moving) insert(ind);
  fresh_ = true;
}

std::optional<std::uint32_t> IdIndex::slotOf(const World& world, std::uint32_t id) {
  if (!fresh_) build(world);
  const std::size_t mask = table_.size() - 1;
  for (std::size_t at = Home(id, shift_); table_[at] != 0; at = (at + 1) & mask)
    if (table_[at] >> 32 == id) return static_cast<std::uint32_t>(table_[at]);
  return std::nullopt;
}

}  // namespace tamsic::sim
