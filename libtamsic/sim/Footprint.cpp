#include "sim/Footprint.h"

#include <vector>

namespace tamsic::sim {

namespace {

template <class T, class Allocator>
std::size_t Bytes(const std::vector<T, Allocator>& items) {
  return items.capacity() * sizeof(T);
}

std::size_t Bytes(const PopulationState& pop) {
  return Bytes(pop.members) + Bytes(pop.lastCatastrophe) + Bytes(pop.states);
}

}  // namespace

std::size_t HeldBytes(const World& world) {
  std::size_t bytes = world.genomes.bytes() + world.kinship.bytes() + world.individualStates.bytes();
  bytes += Bytes(world.pops) + Bytes(world.globalStates);
  for (const PopulationState& pop : world.pops) bytes += Bytes(pop);
  bytes += Bytes(world.scratchA) + Bytes(world.scratchB) + Bytes(world.scratchC) + Bytes(world.moving);
  bytes += Bytes(world.arrivals);
  for (const auto& arriving : world.arrivals) bytes += Bytes(arriving);
  bytes += Bytes(world.destinations) + Bytes(world.nextStates) + Bytes(world.stateColumn);
  bytes += Bytes(world.alleleCounts) + Bytes(world.narrowCounts);
  return bytes;
}

std::size_t HeldBytes(const IterationRecord& record) {
  const auto cells = static_cast<std::size_t>(record.blocks()) * static_cast<std::size_t>(record.years() + 1);
  const Journal& journal = record.journal;
  const Genotypes& genotypes = journal.genotypes;
  return cells * (sizeof(Census) + static_cast<std::size_t>(record.userVariables()) * sizeof(double)) +
         Bytes(journal.living) + Bytes(journal.livingStates) + Bytes(journal.created) + Bytes(journal.census) +
         Bytes(genotypes.population) + Bytes(genotypes.id) + Bytes(genotypes.alleles);
}

}  // namespace tamsic::sim
