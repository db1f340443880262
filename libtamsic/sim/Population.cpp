// Founders and the counts of each population.
#include "sim/Steps.h"

namespace tamsic::sim {

std::uint32_t FounderGenome(World& world, std::uint8_t& lethals) {
  const std::uint32_t slot = world.genomes.addFounder(lethals);
  if (world.founderAlleles)
    for (int h = 0; h < 2; ++h)
      for (std::size_t l = 0; l < world.founderAlleles->size(); ++l)
        world.genomes.setAllele(slot, h, static_cast<int>(l),
                                static_cast<std::uint32_t>((*world.founderAlleles)[l].draw(world.random)));
  if (world.kinship.exact()) world.kinship.addFounder(slot);
  return slot;
}

Individual MakeFounder(World& world, int sex, int age, int population, Origin origin) {
  Individual ind;
  ind.id = world.nextId++;
  ind.sex = static_cast<std::uint8_t>(sex);
  ind.age = static_cast<std::uint16_t>(age);
  ind.genome = FounderGenome(world, ind.lethals);
  world.noteCreated(ind, population, origin);
  return ind;
}

void Recount(const Model& m, World& world) {
  for (PopulationState& pop : world.pops) {
    Counts c;
    double inbreeding = 0.0;
    for (const Individual& ind : pop.members) {
      const bool male = ind.sex == kMale;
      c.males += male;
      const bool adult = ind.age >= m.firstBreeding[ind.sex];
      c.adultMales += male && adult;
      c.adultFemales += !male && adult;
      c.juveniles += ind.age <= 1;
      c.subadults += ind.age > 1 && !adult;
      inbreeding += ind.inbreeding;
    }
    c.n = static_cast<int>(pop.members.size());
    c.females = c.n - c.males;
    c.meanInbreeding = c.n > 0 ? inbreeding / c.n : 0.0;
    pop.counts = c;
  }
}

}  // namespace tamsic::sim
