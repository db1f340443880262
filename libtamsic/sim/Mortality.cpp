// Deaths and ageing. Each individual survives the year with 1 - mortality of
// its sex, age class and population, the mortality shifted by this year's
// EV deviate and truncated to 0..100 %, times the catastrophe severities, and
// for the young of the year times exp(-b F), the part of inbreeding
// depression that is not carried by recessive lethals. Individuals at the
// maximum age die; the survivors are a year older.
#include <algorithm>
#include <cmath>
#include <vector>

#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

double Survival(double mortality, double sd, const YearConditions& year) {
  const double m = std::clamp(mortality - sd * year.survivalDeviate, 0.0, 100.0);
  return std::clamp((1.0 - m / 100.0) * year.survivalFactor, 0.0, 1.0);
}

// This year's chance of surviving by sex and age below the maximum age
// (index sex * maxAge + age), NaN where a rate is evaluated per individual:
// one look-up an individual instead of its mortality class and a table per sex.
std::vector<double> SurvivalByAge(const Model& m, const PopulationModel& p, const YearConditions& year,
                                  SimContext& context) {
  std::vector<double> byAge(2 * static_cast<std::size_t>(m.maxAge));
  for (int sex : {kFemale, kMale})
    for (std::size_t c = 0; c < p.mortality[sex].size(); ++c) {
      const Rate& mean = p.mortality[sex][c];
      const Rate& sd = p.mortalitySD[sex][c];
      const double s = mean.perIndividual() || sd.perIndividual()
                           ? std::nan("")
                           : Survival(mean.value(context), sd.value(context), year);
      for (int age = 0; age < m.maxAge; ++age)
        if (static_cast<std::size_t>(m.mortalityClass(sex, age)) == c)
          byAge[static_cast<std::size_t>(sex * m.maxAge + age)] = s;
    }
  return byAge;
}

void SurvivePopulation(const Model& m, const PopulationModel& p, PopulationState& pop, World& world,
                       SimContext& context) {
  const std::vector<double> survival = SurvivalByAge(m, p, pop.year, context);
  const double depression =
      m.inbreedingDepression ? m.lethalEquivalents * (1.0 - m.percentLethal / 100.0) : 0.0;
  const int maxAge = m.maxAge;
  Individual* const members = pop.members.data();
  const std::size_t n = pop.members.size();
  std::size_t kept = 0;
  LocalStream random(world.random);
  for (std::size_t i = 0; i < n; ++i) {
    Individual& ind = members[i];
    bool lives = ind.age < maxAge;
    if (lives) {
      double s = survival[static_cast<std::size_t>(ind.sex * maxAge + ind.age)];
      if (std::isnan(s)) {
        const auto c = static_cast<std::size_t>(m.mortalityClass(ind.sex, ind.age));
        context.setIndividual(&ind);
        s = random.lend([&] {
          return Survival(p.mortality[ind.sex][c].value(context), p.mortalitySD[ind.sex][c].value(context),
                          pop.year);
        });
      }
      // exp(-0) is 1: the outbred young are spared the call.
      if (ind.age == 0 && depression > 0.0 && ind.inbreeding != 0.0f) s *= std::exp(-depression * ind.inbreeding);
      lives = random.chance(s);
    }
    // Everyone is copied to the end of the survivors and only the survivors
    // advance that end, since whether one lives cannot be predicted. Copy
    // first, then age the copy: a copy read right after a narrow write to
    // the same record would wait for that write.
    world.genomes.releaseIf(ind.genome, !lives);
    Individual& survivor = members[kept];
    if (&survivor != &ind) survivor = ind;
    ++survivor.age;
    kept += lives;
  }
  pop.members.resize(kept);
  context.setIndividual(nullptr);
}

}  // namespace

void SurviveAndAge(const Model& model, World& world, SimContext& context) {
  for (int p = 0; p < model.populations; ++p) {
    context.setPopulation(p);
    SurvivePopulation(model, model.pops[static_cast<std::size_t>(p)], world.pops[static_cast<std::size_t>(p)],
                      world, context);
  }
}

}  // namespace tamsic::sim
