#include "sim/Journal.h"

namespace tamsic::sim {

namespace {

void AddCounts(const Counts& c, CensusEntry& e) {
  e.females += c.females;
  e.males += c.males;
  e.adultFemales += c.adultFemales;
  e.adultMales += c.adultMales;
  e.juveniles += c.juveniles;
  e.subadults += c.subadults;
}

void NoteCensusLines(const Model& m, const World& world, IterationRecord& record) {
  const int tallied = m.options.excludeLastPopulation ? m.populations - 1 : m.populations;
  CensusEntry meta;
  meta.year = world.year;
  meta.block = m.populations;
  for (int p = 0; p < m.populations; ++p) {
    const PopulationState& pop = world.pops[static_cast<std::size_t>(p)];
    CensusEntry e;
    e.year = world.year;
    e.block = p;
    AddCounts(pop.counts, e);
    e.capacity = pop.year.capacity;
    e.census = record.at(p, world.year);
    record.journal.census.push_back(e);
    if (p >= tallied) continue;
    AddCounts(pop.counts, meta);
    meta.capacity += pop.year.capacity;
  }
  if (m.populations == 1) return;
  meta.census = record.at(m.populations, world.year);
  record.journal.census.push_back(meta);
}

}  // namespace

void NoteCensus(const Model& m, World& world, IterationRecord& record) {
  if (m.options.censusOf(world.iteration)) NoteCensusLines(m, world, record);
  if (!world.created) return;
  // Ids are handed out one by one as individuals are created and noted, so
  // individual id sits at index id - 1.
  std::vector<CreatedEntry>& created = *world.created;
  for (const PopulationState& pop : world.pops)
    for (const Individual& ind : pop.members)
      if (ind.id >= 1 && ind.id <= created.size()) created[ind.id - 1].lastCensus = world.year;
}

void NoteLiving(const Model& m, const World& world, IterationRecord& record) {
  if (!m.options.livingFile) return;
  const int states = world.individualStates.count();
  for (int p = 0; p < m.populations; ++p)
    for (const Individual& ind : world.pops[static_cast<std::size_t>(p)].members) {
      record.journal.living.push_back({p, ind});
      const double* values = states > 0 ? world.individualStates.at(ind.genome) : nullptr;
      record.journal.livingStates.insert(record.journal.livingStates.end(), values, values + states);
    }
}

}  // namespace tamsic::sim
