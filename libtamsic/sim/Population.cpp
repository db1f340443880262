// Founders and the counts of each population.
#include "sim/Steps.h"

namespace tamsic::sim {

Individual MakeFounder(World& world, int sex, int age, int population, Origin origin) {
  Individual ind;
  ind.id = world.nextId++;
  ind.sex = static_cast<std::uint8_t>(sex);
  ind.age = static_cast<std::uint16_t>(age);
  ind.genome = world.genomes.addFounder(ind.lethals);
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
