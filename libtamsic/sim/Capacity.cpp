#include <algorithm>

#include "sim/Steps.h"

namespace tamsic::sim {

// Every individual has the same chance to be among those removed, whatever its age and sex.
void TruncateToCapacity(World& world) {
  for (PopulationState& pop : world.pops) {
    const auto k = static_cast<std::size_t>(pop.year.capacity);
    const std::size_t n = pop.members.size();
    if (n <= k) continue;
    // Partial shuffle from the end: the last n - k are the ones that die, a
    // draw for each of them rather than for each survivor.
    for (std::size_t i = n; i > k; --i)
      std::swap(pop.members[world.random.below(static_cast<std::uint32_t>(i))], pop.members[i - 1]);
    for (std::size_t i = k; i < n; ++i) world.genomes.release(pop.members[i].genome);
    pop.members.resize(k);
  }
}

}  // namespace tamsic::sim
