// Harvest and supplementation, in the years from first to last at the given
// interval, when the optional criterion function is true (not 0). Harvest
// removes the numbers of the harvest grids by sex and age class (as many as
// there are), chosen at random; supplementation adds new unrelated
// individuals of the given sexes and ages. With the option "T" supplements
// are the individuals harvested this year (from any population), each
// surviving the translocation with the option's %, and no new ones are made.
#include <algorithm>
#include <cmath>

#include "sim/StateVariables.h"
#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

bool Due(const Schedule& s, int year, SimContext& context) {
  if (!s.active || year < s.first || year > s.last || (year - s.first) % s.interval != 0) return false;
  return !s.criterion || s.criterion->value(context) != 0.0;
}

// Ages of an age class: 1 .. a-1 one each, the last class all adults.
bool InClass(const Individual& ind, int sex, std::size_t ageClass, std::size_t classes) {
  if (ind.sex != sex) return false;
  return ageClass + 1 == classes ? ind.age >= classes : ind.age == ageClass + 1;
}

int Count(const Rate& rate, SimContext& context) { return static_cast<int>(std::max(0.0, std::round(rate.value(context)))); }

void Harvest(const AgeClassCounts& counts, PopulationState& pop, World& world, SimContext& context,
             std::vector<Individual>& taken) {
  for (int sex : {kFemale, kMale}) {
    const auto& classes = sex == kFemale ? counts.females : counts.males;
    for (std::size_t c = 0; c < classes.size(); ++c) {
      const int wanted = Count(classes[c], context);
      if (wanted == 0) continue;
      std::vector<std::uint32_t>& match = world.scratchA;
      match.clear();
      for (std::uint32_t i = 0; i < pop.members.size(); ++i)
        if (InClass(pop.members[i], sex, c, classes.size())) match.push_back(i);
      const std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(wanted), match.size());
      for (std::size_t k = 0; k < n; ++k)
        std::swap(match[k], match[k + world.random.below(static_cast<std::uint32_t>(match.size() - k))]);
      std::sort(match.begin(), match.begin() + static_cast<long>(n));
      for (std::size_t k = n; k-- > 0;) {
        taken.push_back(pop.members[match[k]]);
        pop.members.erase(pop.members.begin() + match[k]);
      }
    }
  }
}

void Supplement(const Model& m, const AgeClassCounts& counts, int population, World& world, SimContext& context,
                std::vector<Individual>& harvested) {
  PopulationState& pop = world.pops[static_cast<std::size_t>(population)];
  for (int sex : {kFemale, kMale}) {
    const auto& classes = sex == kFemale ? counts.females : counts.males;
    for (std::size_t c = 0; c < classes.size(); ++c) {
      const int wanted = Count(classes[c], context);
      for (int k = 0; k < wanted; ++k) {
        if (!m.options.translocate) {
          pop.members.push_back(MakeFounder(world, sex, static_cast<int>(c) + 1, population, Origin::Supplement));
          StartIndividual(m, world, context, pop.members.back());
          continue;
        }
        const auto found = std::find_if(harvested.begin(), harvested.end(), [&](const Individual& ind) {
          return InClass(ind, sex, c, classes.size());
        });
        if (found == harvested.end()) break;
        const Individual moved = *found;
        harvested.erase(found);
        if (world.random.chance(m.options.translocationSurvival / 100.0)) pop.members.push_back(moved);
        else world.genomes.release(moved.genome);
      }
    }
  }
}

}  // namespace

void HarvestAndSupplement(const Model& m, World& world, SimContext& context) {
  std::vector<Individual>& harvested = world.moving;
  harvested.clear();
  for (int p = 0; p < m.populations; ++p) {
    context.setPopulation(p);
    const PopulationModel& inputs = m.pops[static_cast<std::size_t>(p)];
    if (Due(inputs.harvest, world.year, context))
      Harvest(inputs.harvested, world.pops[static_cast<std::size_t>(p)], world, context, harvested);
  }
  for (int p = 0; p < m.populations; ++p) {
    context.setPopulation(p);
    const PopulationModel& inputs = m.pops[static_cast<std::size_t>(p)];
    if (Due(inputs.supplement, world.year, context))
      Supplement(m, inputs.supplemented, p, world, context, harvested);
  }
  for (const Individual& gone : harvested) world.genomes.release(gone.genome);
}

}  // namespace tamsic::sim
