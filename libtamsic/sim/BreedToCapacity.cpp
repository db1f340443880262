// Breeding to keep K. This year's young should bring the population to this
// year's K at the census, after the year's deaths. With the mean rates of the
// year (no EV, catastrophes or inbreeding depression, as a manager would
// plan), the members are expected to leave S survivors, and a breeding female
// Y young that live through their first year: ceil((K - S) / Y) females
// breed, none when S reaches K. Dispersal, harvest and supplements are not
// foreseen; a function of the individual is taken for each member, and for
// a newborn in the young's survival.
#include <algorithm>
#include <cmath>

#include "sim/Distribution.h"
#include "sim/ManagedBreeding.h"

namespace tamsic::sim {

namespace {

double Share(double percent) { return std::clamp(percent, 0.0, 100.0) / 100.0; }

double YoungPerFemale(const Model& m, const PopulationModel& p, SimContext& context) {
  std::vector<double> broods, progeny;
  for (const Rate& r : m.broodPercent) broods.push_back(r.value(context));
  if (m.broodByMeanSD) progeny = RoundedNormal(p.broodMean.value(context), p.broodSD.value(context), m.maxProgeny);
  else
    for (const Rate& r : m.progenyPercent) progeny.push_back(r.value(context));
  return Discrete(1, broods).mean() * Discrete(0, progeny).mean();
}

double FirstYearSurvival(const Model& m, const PopulationModel& p, SimContext& context) {
  const double males = m.sexual() ? Share(m.sexRatio.value(context)) : 0.0;
  return (1.0 - males) * (1.0 - Share(p.mortality[kFemale][0].value(context))) +
         males * (1.0 - Share(p.mortality[kMale][0].value(context)));
}

}  // namespace

std::size_t FemalesToKeepCapacity(const Model& m, const PopulationModel& p, const PopulationState& pop,
                                  SimContext& context) {
  double survivors = 0.0;
  for (const Individual& ind : pop.members) {
    if (ind.age >= m.maxAge) continue;
    const Rate& mortality = p.mortality[ind.sex][static_cast<std::size_t>(m.mortalityClass(ind.sex, ind.age))];
    context.setIndividual(mortality.perIndividual() ? &ind : nullptr);
    survivors += 1.0 - Share(mortality.value(context));
  }
  context.setIndividual(nullptr);
  const double missing = pop.year.capacity - survivors;
  if (missing <= 0.0) return 0;
  const double young = YoungPerFemale(m, p, context) * FirstYearSurvival(m, p, context);
  if (young <= 0.0) return pop.members.size();
  return static_cast<std::size_t>(std::ceil(missing / young));
}

}  // namespace tamsic::sim
