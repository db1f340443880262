// Breeding: who breeds, with whom, and how many young. Adult females (all
// adults for hermaphrodites) breed with this year's % breeding; males enter
// the breeding pool with the % of the monopolization grid. Monogamous males
// take one female a year, polygamous males are drawn with replacement,
// long-term pairs stay together while both are alive and in the pool, and a
// hermaphrodite draws its mate from all adults, itself included. Managed
// breeding (ManagedBreeding.h) replaces the choice of mates when asked for.
#include <algorithm>
#include <cmath>

#include "sim/Distribution.h"
#include "sim/ManagedBreeding.h"
#include "sim/StateVariables.h"
#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

double Percent(double value) { return std::clamp(value, 0.0, 100.0) / 100.0; }

struct BroodTables {
  Discrete broods;
  Discrete progeny;
};

BroodTables Tables(const Model& m, const PopulationModel& p, SimContext& context) {
  std::vector<double> broods;
  for (const Rate& r : m.broodPercent) broods.push_back(std::max(0.0, r.value(context)));
  std::vector<double> progeny;
  if (m.broodByMeanSD) {
    progeny = RoundedNormal(p.broodMean.value(context), p.broodSD.value(context), m.maxProgeny);
  } else {
    for (const Rate& r : m.progenyPercent) progeny.push_back(std::max(0.0, r.value(context)));
  }
  return {Discrete(1, broods), Discrete(0, progeny)};
}

// Whether the number of broods or young depends on the mother.
bool BroodsPerMother(const Model& m, const PopulationModel& p) {
  const auto each = [](const Rate& r) { return r.perIndividual(); };
  return std::any_of(m.broodPercent.begin(), m.broodPercent.end(), each) ||
         std::any_of(m.progenyPercent.begin(), m.progenyPercent.end(), each) ||
         (m.broodByMeanSD && (each(p.broodMean) || each(p.broodSD)));
}

// Members (by index) who take part: breeding females in `mothers`, males of the pool in `pool`.
void Candidates(const Model& m, const PopulationModel& p, PopulationState& pop, SimContext& context,
                World& world, std::vector<std::uint32_t>& mothers, std::vector<std::uint32_t>& pool) {
  const YearConditions& year = pop.year;
  const bool each = p.breeding.perIndividual() || p.breedingSD.perIndividual();
  const bool eachMale = p.malesInPool.perIndividual();
  auto chanceOf = [&] {
    return Percent(p.breeding.value(context) + p.breedingSD.value(context) * year.breedingDeviate) *
           year.reproductionFactor;
  };
  const double breeding = each ? 0.0 : chanceOf();
  const double inPool = eachMale ? 0.0 : Percent(p.malesInPool.value(context));
  // Both lists are written for every adult and only the one of its sex and
  // draw advances: neither the sex of the next adult nor whether its draw
  // succeeds can be predicted, and a mispredicted branch costs more. The
  // extra entry takes the write past the last member.
  mothers.resize(pop.members.size() + 1);
  pool.resize(pop.members.size() + 1);
  std::size_t breeders = 0, inBreedingPool = 0;
  LocalStream random(world.random);
  // By sex, so that the sex picks them without a branch.
  const double chances[2] = {breeding, inPool};
  const bool perIndividual[2] = {each, eachMale};
  for (std::uint32_t i = 0; i < pop.members.size(); ++i) {
    const Individual& ind = pop.members[i];
    if (ind.age < m.firstBreeding[ind.sex]) continue;
    const std::size_t male = ind.sex;
    double chance = chances[male];
    if (perIndividual[male]) {
      context.setIndividual(&ind);
      chance = random.lend([&] { return male ? Percent(p.malesInPool.value(context)) : chanceOf(); });
    }
    if (!m.sexual()) pool[inBreedingPool++] = i;
    const std::size_t drawn = random.chance(chance);
    pool[inBreedingPool] = i;
    mothers[breeders] = i;
    inBreedingPool += male & drawn;
    breeders += (male ^ 1) & drawn;
  }
  mothers.resize(breeders);
  pool.resize(inBreedingPool);
  context.setIndividual(nullptr);
}

// The pool member of a male id, or -1.
long PoolIndexOf(const PopulationState& pop, const std::vector<std::uint32_t>& pool, std::uint32_t id) {
  for (std::size_t k = 0; k < pool.size(); ++k)
    if (pop.members[pool[k]].id == id) return static_cast<long>(k);
  return -1;
}

// The sire (member index) of each mother, or UINT32_MAX when she finds none.
void Pair(const Model& m, PopulationState& pop, World& world, std::vector<std::uint32_t>& mothers,
          std::vector<std::uint32_t>& pool, std::vector<std::uint32_t>& sires) {
  constexpr std::uint32_t kNone = UINT32_MAX;
  sires.assign(mothers.size(), kNone);
  if (pool.empty()) return;
  const bool longTerm = m.mating == Mating::LongTermMonogamous || m.mating == Mating::LongTermPolygamous;
  const bool oneFemale = m.mating == Mating::Monogamous || m.mating == Mating::LongTermMonogamous;
  std::size_t available = pool.size();  // pool[0 .. available) are still free for one-female systems
  LocalStream random(world.random);
  auto take = [&](std::size_t k) {
    const std::uint32_t male = pool[k];
    if (oneFemale) std::swap(pool[k], pool[--available]);
    return male;
  };
  if (longTerm) {
    for (std::size_t f = 0; f < mothers.size(); ++f) {
      const std::uint32_t mate = pop.members[mothers[f]].mate;
      if (mate == 0) continue;
      const long k = PoolIndexOf(pop, pool, mate);
      if (k >= 0 && static_cast<std::size_t>(k) < available) sires[f] = take(static_cast<std::size_t>(k));
    }
  }
  for (std::size_t f = 0; f < mothers.size(); ++f) {
    if (sires[f] != kNone) continue;
    if (available == 0) break;
    sires[f] = take(random.below(static_cast<std::uint32_t>(available)));
  }
}

// Parents' genomes are asked for a few mothers ahead of their births.
constexpr std::size_t kAhead = 3;

// kPerMother: the broods and young of each mother follow her own tables. Otherwise the tables are one
// constant for the population, which keeps this loop as fast as it can be.
template <bool kPerMother>
void Births(const Model& m, const PopulationModel& p, int population, World& world, SimContext& context,
            const std::vector<std::uint32_t>& mothers, const std::vector<std::uint32_t>& sires) {
  PopulationState& pop = world.pops[static_cast<std::size_t>(population)];
  const BroodTables shared = kPerMother ? BroodTables{} : Tables(m, p, context);
  BroodTables own;
  const bool constantRatio = !m.sexRatio.perIndividual();
  const double maleShare = Percent(m.sexRatio.value(context));
  world.moving.clear();
  for (std::size_t f = 0; f < mothers.size(); ++f) {
    if (f + kAhead < mothers.size() && sires[f + kAhead] != UINT32_MAX) {
      world.genomes.prefetch(pop.members[mothers[f + kAhead]].genome);
      world.genomes.prefetch(pop.members[sires[f + kAhead]].genome);
    }
    if (sires[f] == UINT32_MAX) continue;
    Individual& mother = pop.members[mothers[f]];
    Individual& father = pop.members[sires[f]];
    if (mother.mate != father.id) ++mother.mates, ++father.mates;
    if (mother.mate == 0 || m.mating == Mating::LongTermMonogamous || m.mating == Mating::LongTermPolygamous)
      mother.mate = father.id;
    if (father.mate == 0) father.mate = mother.id;
    if constexpr (kPerMother) {
      context.setIndividual(&mother);
      own = Tables(m, p, context);
    }
    const BroodTables& tables = kPerMother ? own : shared;
    const int broods = tables.broods.draw(world.random);
    for (int b = 0; b < broods; ++b) {
      const int young = tables.progeny.draw(world.random);
      for (int y = 0; y < young; ++y) {
        const Newborn child = world.genomes.addChild(mother.genome, father.genome, world.random);
        ++mother.parity;
        if (&father != &mother) ++father.parity;
        if (!child.viable) {
          world.genomes.release(child.slot);
          continue;
        }
        // Built in place: a record written field by field and then copied whole would stall the copy.
        Individual& born = world.moving.emplace_back();
        born.id = world.nextId++;
        born.dam = mother.id;
        born.sire = father.id;
        born.genome = child.slot;
        born.inbreeding = child.inbreeding;
        if (world.kinship.exact()) born.inbreeding = world.kinship.addChild(child.slot, mother.genome, father.genome);
        born.lethals = child.lethals;
        double share = maleShare;
        if (!constantRatio) {
          context.setIndividual(&born);
          share = Percent(m.sexRatio.value(context));
        }
        born.sex = m.sexual() && world.random.chance(share) ? kMale : kFemale;
        world.noteCreated(born, population, Origin::Born);
      }
    }
  }
  if (!m.individualStates.empty()) BirthStates(m, world, context, pop.members, mothers, world.moving);
  context.setIndividual(nullptr);
  world.kinship.settle();
  pop.members.insert(pop.members.end(), world.moving.begin(), world.moving.end());
}

}  // namespace

void Breed(const Model& model, World& world, SimContext& context) {
  world.kinship.settle();  // the founders and supplements that came since
  std::vector<std::uint32_t>& sires = world.scratchC;
  for (int p = 0; p < model.populations; ++p) {
    PopulationState& pop = world.pops[static_cast<std::size_t>(p)];
    if (pop.members.empty()) continue;
    context.setPopulation(p);
    const PopulationModel& inputs = model.pops[static_cast<std::size_t>(p)];
    Candidates(model, inputs, pop, context, world, world.scratchA, world.scratchB);
    if (model.genetics.managesBreeding())
      ManageBreeding(model, inputs, pop, world, context, world.scratchA, world.scratchB, sires);
    else
      Pair(model, pop, world, world.scratchA, world.scratchB, sires);
    if (BroodsPerMother(model, inputs)) Births<true>(model, inputs, p, world, context, world.scratchA, sires);
    else Births<false>(model, inputs, p, world, context, world.scratchA, sires);
  }
}

}  // namespace tamsic::sim
