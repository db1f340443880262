#include "sim/LifeTable.h"

#include <Eigen/Eigenvalues>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "sim/Distribution.h"
#include "sim/SimContext.h"
#include "sim/StateVariables.h"

namespace tamsic::sim {

namespace {

// A world holding only counts and the first values of the population and
// global state variables, so that functions of N, K and PS1 can be evaluated.
// Individual state variables are 0 here, as are A and the other variables of
// an individual.
World StartingWorld(const Model& m) {
  World world(0, 0);
  world.year = 1;
  world.pops.resize(static_cast<std::size_t>(m.populations));
  for (std::size_t p = 0; p < world.pops.size(); ++p) {
    const PopulationModel& inputs = m.pops[p];
    int n = inputs.initialSize;
    for (int sex : {kFemale, kMale})
      n += std::accumulate(inputs.initial[sex].begin(), inputs.initial[sex].end(), 0);
    world.pops[p].counts.n = n;
    world.pops[p].lastCatastrophe.assign(inputs.catastrophes.size(), -1);
  }
  SimContext context(m, world, 0);
  // As in year 0 of a run: state variables first, before any K is known.
  StartGroupStates(m, world, context);
  for (std::size_t p = 0; p < world.pops.size(); ++p) {
    context.setPopulation(static_cast<int>(p));
    world.pops[p].year.capacity = m.pops[p].capacity.value(context);
  }
  return world;
}

double Share(double percent) { return std::clamp(percent, 0.0, 100.0) / 100.0; }

// Mean offspring per breeding female per year.
double YoungPerBreeder(const Model& m, const PopulationModel& p, SimContext& context) {
  std::vector<double> broods;
  for (const Rate& r : m.broodPercent) broods.push_back(r.value(context));
  std::vector<double> progeny;
  if (m.broodByMeanSD) progeny = RoundedNormal(p.broodMean.value(context), p.broodSD.value(context), m.maxProgeny);
  else
    for (const Rate& r : m.progenyPercent) progeny.push_back(r.value(context));
  return Discrete(1, broods).mean() * Discrete(0, progeny).mean();
}

double Lambda(const LifeTable& t) {
  const int n = t.maxAge;
  const std::vector<double> a = ProjectionMatrix(t);
  Eigen::MatrixXd matrix(n, n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) matrix(i, j) = a[static_cast<std::size_t>(i * n + j)];
  const Eigen::VectorXcd values = matrix.eigenvalues();
  double best = 0.0;
  for (int i = 0; i < values.size(); ++i) best = std::max(best, values[i].real());
  return best;
}

void Stable(LifeTable& t) {
  const double lambda = t.lambda > 0 ? t.lambda : 1.0;
  double total = 0.0;
  for (int sex : {kFemale, kMale}) {
    const double births = sex == kMale ? t.maleShare : 1.0 - t.maleShare;
    double reach = births;  // young reaching age x, per young born, discounted by growth
    t.stable[sex].assign(static_cast<std::size_t>(t.maxAge), 0.0);
    for (int x = 1; x <= t.maxAge; ++x) {
      reach *= t.survival[sex][static_cast<std::size_t>(x - 1)] / lambda;
      t.stable[sex][static_cast<std::size_t>(x - 1)] = reach;
      total += reach;
    }
  }
  for (int sex : {kFemale, kMale})
    for (double& share : t.stable[sex]) share = total > 0 ? share / total : 0.0;
}

void Summaries(LifeTable& t) {
  double reach = 1.0, r0 = 0.0, weighted = 0.0, discounted = 0.0;
  const double lambda = t.lambda > 0 ? t.lambda : 1.0;
  for (int x = 1; x <= t.maxAge; ++x) {
    reach *= t.survival[kFemale][static_cast<std::size_t>(x - 1)];
    const double born = reach * t.fecundity[static_cast<std::size_t>(x)];
    r0 += born;
    discounted += born * std::pow(lambda, -x);
    weighted += x * born * std::pow(lambda, -x);
  }
  t.R0 = r0;
  t.generationTime = discounted > 0 ? weighted / discounted : 0.0;
  t.r = std::log(std::max(t.lambda, 1e-9));
}

}  // namespace

LifeTable BuildLifeTable(const Model& m, int pop) {
  World world = StartingWorld(m);
  SimContext context(m, world, 0);
  context.setPopulation(pop);
  const PopulationModel& p = m.pops[static_cast<std::size_t>(pop)];
  LifeTable t;
  t.maxAge = m.maxAge;
  double breedFactor = 1.0, surviveFactor = 1.0;
  for (const Catastrophe& c : p.catastrophes) {
    const double f = Share(c.frequency.value(context));
    breedFactor *= 1.0 - f + f * c.reproduction.value(context);
    surviveFactor *= 1.0 - f + f * c.survival.value(context);
  }
  t.maleShare = m.sexual() ? Share(m.sexRatio.value(context)) : 0.0;
  t.capacity = world.pops[static_cast<std::size_t>(pop)].year.capacity;
  t.breeders = Share(p.breeding.value(context)) * breedFactor;
  t.youngPerBreeder = YoungPerBreeder(m, p, context);
  const double young = t.breeders * t.youngPerBreeder;
  for (int sex : {kFemale, kMale})
    for (int x = 0; x <= m.maxAge; ++x) {
      const Rate& mortality = p.mortality[sex][static_cast<std::size_t>(m.mortalityClass(sex, x))];
      t.survival[sex].push_back(x < m.maxAge ? std::min(1.0, (1.0 - Share(mortality.value(context))) * surviveFactor) : 0.0);
    }
  for (int x = 0; x <= m.maxAge; ++x)
    t.fecundity.push_back(x >= m.firstBreeding[kFemale] ? young * (1.0 - t.maleShare) : 0.0);
  t.lambda = Lambda(t);
  Summaries(t);
  Stable(t);
  return t;
}

std::vector<double> ProjectionMatrix(const LifeTable& t) {
  const auto n = static_cast<std::size_t>(t.maxAge);
  std::vector<double> a(n * n, 0.0);
  // Row 0: young of the year that survive to age 1; below it, survival to the next age.
  for (std::size_t x = 1; x <= n; ++x) a[x - 1] = t.fecundity[x] * t.survival[kFemale][0];
  for (std::size_t x = 1; x < n; ++x) a[x * n + (x - 1)] = t.survival[kFemale][x];
  return a;
}

void StableNumbers(const LifeTable& t, int size, std::vector<int> (&out)[2]) {
  struct Part {
    double remainder;
    int sex;
    std::size_t age;
  };
  std::vector<Part> parts;
  int placed = 0;
  for (int sex : {kFemale, kMale}) out[sex].assign(t.stable[sex].size(), 0);
  // Female and male classes of each age side by side, so that tied remainders go to both sexes in turn.
  for (std::size_t a = 0; a < t.stable[kFemale].size(); ++a)
    for (int sex : {kFemale, kMale}) {
      const double exact = t.stable[sex][a] * size;
      out[sex][a] = static_cast<int>(std::floor(exact));
      placed += out[sex][a];
      parts.push_back({exact - std::floor(exact), sex, a});
    }
  std::stable_sort(parts.begin(), parts.end(), [](const Part& x, const Part& y) { return x.remainder > y.remainder; });
  for (std::size_t k = 0; placed < size && !parts.empty(); ++placed, k = (k + 1) % parts.size())
    ++out[parts[k].sex][parts[k].age];
}

std::vector<double> Projection(const LifeTable& t, double size, double capacity, int years) {
  std::vector<double> numbers[2];
  for (int sex : {kFemale, kMale})
    for (double share : t.stable[sex]) numbers[sex].push_back(share * size);
  std::vector<double> totals{size};
  const auto n = static_cast<std::size_t>(t.maxAge);
  for (int y = 1; y <= years; ++y) {
    double young = 0.0;
    for (std::size_t x = 1; x <= n; ++x) young += t.fecundity[x] * numbers[kFemale][x - 1];
    young /= (1.0 - t.maleShare) > 0 ? (1.0 - t.maleShare) : 1.0;  // all young, both sexes
    double total = 0.0;
    for (int sex : {kFemale, kMale}) {
      auto& v = numbers[sex];
      for (std::size_t x = n; x-- > 1;) v[x] = v[x - 1] * t.survival[sex][x];
      v[0] = young * (sex == kMale ? t.maleShare : 1.0 - t.maleShare) * t.survival[sex][0];
      total += std::accumulate(v.begin(), v.end(), 0.0);
    }
    if (total > capacity && total > 0)
      for (int sex : {kFemale, kMale})
        for (double& v : numbers[sex]) v *= capacity / total;
    totals.push_back(std::min(total, capacity));
  }
  return totals;
}

}  // namespace tamsic::sim
