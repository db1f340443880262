// Deaths and ageing. Each individual survives the year with 1 - mortality of
// its sex, age class and population, the mortality shifted by this year's
// EV deviate and truncated to 0..100 %, times the catastrophe severities, and
// for the young of the year times exp(-b F), the part of inbreeding
// depression that is not carried by recessive lethals. Individuals at the
// maximum age die; the survivors are a year older.
#include <algorithm>
#include <cmath>

#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

struct ClassSurvival {
  std::vector<double> mean[2];  // per mortality class; NaN when evaluated per individual
};

double Survival(double mortality, double sd, const YearConditions& year) {
  const double m = std::clamp(mortality - sd * year.survivalDeviate, 0.0, 100.0);
  return std::clamp((1.0 - m / 100.0) * year.survivalFactor, 0.0, 1.0);
}

ClassSurvival ClassRates(const PopulationModel& p, const YearConditions& year, SimContext& context) {
  ClassSurvival rates;
  for (int sex : {kFemale, kMale})
    for (std::size_t c = 0; c < p.mortality[sex].size(); ++c) {
      const Rate& mean = p.mortality[sex][c];
      const Rate& sd = p.mortalitySD[sex][c];
      rates.mean[sex].push_back(mean.perIndividual() || sd.perIndividual()
                                    ? std::nan("")
                                    : Survival(mean.value(context), sd.value(context), year));
    }
  return rates;
}

void SurvivePopulation(const Model& m, const PopulationModel& p, PopulationState& pop, World& world,
                       SimContext& context) {
  const ClassSurvival rates = ClassRates(p, pop.year, context);
  const double depression =
      m.inbreedingDepression ? m.lethalEquivalents * (1.0 - m.percentLethal / 100.0) : 0.0;
  std::size_t kept = 0;
  for (std::size_t i = 0; i < pop.members.size(); ++i) {
    Individual& ind = pop.members[i];
    bool lives = ind.age < m.maxAge;
    if (lives) {
      const auto c = static_cast<std::size_t>(m.mortalityClass(ind.sex, ind.age));
      double s = rates.mean[ind.sex][c];
      if (std::isnan(s)) {
        context.setIndividual(&ind);
        s = Survival(p.mortality[ind.sex][c].value(context), p.mortalitySD[ind.sex][c].value(context), pop.year);
      }
      if (ind.age == 0 && depression > 0.0) s *= std::exp(-depression * ind.inbreeding);
      lives = world.random.chance(s);
    }
    // Everyone is copied to the end of the survivors and only the survivors
    // advance that end, since whether one lives cannot be predicted. Copy
    // first, then age the copy: a copy read right after a narrow write to
    // the same record would wait for that write.
    world.genomes.releaseIf(ind.genome, !lives);
    Individual& survivor = pop.members[kept];
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
