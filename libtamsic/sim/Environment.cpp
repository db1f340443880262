#include <algorithm>
#include <cmath>

#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

// Deviates of all populations correlated by `rho`. A correlation of 0 or
// more is a shared part and an own part. A negative one takes from each
// population's own draw a share of the mean draw, which makes every pair
// correlated by `rho`; n populations cannot all be more opposed than
// -1/(n-1), so a correlation below that is taken as that bound.
void Correlated(Random& random, double rho, std::vector<double>& out) {
  if (rho >= 0.0 || out.size() < 2) {
    const double shared = random.normal();
    const double a = std::sqrt(std::max(rho, 0.0));
    const double b = std::sqrt(1.0 - std::max(rho, 0.0));
    for (double& z : out) z = a * shared + b * random.normal();
    return;
  }
  const double n = static_cast<double>(out.size());
  rho = std::max(rho, -1.0 / (n - 1.0));
  double mean = 0.0;
  for (double& e : out) mean += (e = random.normal()) / n;
  // z = a e + c mean has variance 1 and pairwise covariance rho when
  // a^2 = 1 - rho and c^2 + 2ac = n rho.
  const double a = std::sqrt(1.0 - rho);
  const double c = -a + std::sqrt(std::max(a * a + n * rho, 0.0));
  for (double& z : out) z = a * z + c * mean;
}

double Capacity(const PopulationModel& p, const YearConditions& year, int currentYear, SimContext& context) {
  double k = p.capacity.value(context);
  if (p.trend) k *= std::pow(1.0 + p.trendPercent.value(context) / 100.0, std::min(currentYear, p.trendYears));
  k += p.capacitySD.value(context) * year.capacityDeviate;
  return std::max(0.0, std::round(k));
}

void Catastrophes(const Model& model, World& world, SimContext& context) {
  const std::size_t types = model.pops.front().catastrophes.size();
  for (std::size_t c = 0; c < types; ++c) {
    const double globalDraw = world.random.uniform();
    for (int p = 0; p < model.populations; ++p) {
      context.setPopulation(p);
      const Catastrophe& cat = model.pops[static_cast<std::size_t>(p)].catastrophes[c];
      const double chance = std::clamp(cat.frequency.value(context), 0.0, 100.0) / 100.0;
      const bool struck = cat.global ? globalDraw < chance : world.random.uniform() < chance;
      if (!struck) continue;
      PopulationState& pop = world.pops[static_cast<std::size_t>(p)];
      pop.year.reproductionFactor *= std::max(0.0, cat.reproduction.value(context));
      pop.year.survivalFactor *= std::max(0.0, cat.survival.value(context));
      pop.lastCatastrophe[c] = world.year;
    }
  }
}

}  // namespace

void DrawEnvironment(const Model& model, World& world, SimContext& context) {
  const auto count = static_cast<std::size_t>(model.populations);
  std::vector<double> breeding(count), survival(count), capacity(count);
  Correlated(world.random, model.correlation, breeding);
  Correlated(world.random, model.correlation, survival);
  Correlated(world.random, model.correlation, capacity);
  for (std::size_t p = 0; p < count; ++p) {
    YearConditions& year = world.pops[p].year;
    const double lastCapacity = year.capacity;  // what K means to functions until this year's is known
    year = YearConditions{};
    year.capacity = lastCapacity;
    year.breedingDeviate = breeding[p];
    // Concordant: a good year for breeding is a good year for survival.
    year.survivalDeviate = model.concordance ? breeding[p] : survival[p];
    year.capacityDeviate = capacity[p];
  }
  Catastrophes(model, world, context);
  for (std::size_t p = 0; p < count; ++p) {
    context.setPopulation(static_cast<int>(p));
    world.pops[p].year.capacity = Capacity(model.pops[p], world.pops[p].year, world.year, context);
  }
}

}  // namespace tamsic::sim
