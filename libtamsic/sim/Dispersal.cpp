// Dispersal. Individuals of the dispersing sexes and ages leave their
// population for another with the % per year of the dispersal matrix
// (source row, recipient column), changed by the modifier function (which
// sees the matrix rate as D and the recipient as PP), and survive the move
// with the % survival of dispersers. With the option "M" nobody moves into a
// population at its K. Arrivals join after everyone has had the chance to
// leave, so nobody moves twice in a year.
#include <algorithm>

#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

// Whether the chance to move, or to survive the move, depends on the disperser.
bool PerDisperser(const Model& m, const PopulationModel& source) {
  const auto each = [](const Rate& r) { return r.perIndividual(); };
  return std::any_of(source.dispersal.begin(), source.dispersal.end(), each) || each(m.dispersalSurvival) ||
         (m.dispersalModifier && each(*m.dispersalModifier));
}

// Cumulative chances of moving to each population from population p.
void Destinations(const Model& m, const World& world, int p, SimContext& context, std::vector<double>& cumulative) {
  const PopulationModel& source = m.pops[static_cast<std::size_t>(p)];
  cumulative.clear();
  double total = 0.0;
  const bool tooFew = m.dispersalMinimum && world.pops[static_cast<std::size_t>(p)].counts.n < *m.dispersalMinimum;
  for (int q = 0; q < m.populations; ++q) {
    double rate = q == p || tooFew ? 0.0 : source.dispersal[static_cast<std::size_t>(q)].value(context);
    if (rate > 0.0 && m.dispersalModifier) {
      context.setDispersal(rate, q);
      rate = m.dispersalModifier->value(context);
    }
    const PopulationState& target = world.pops[static_cast<std::size_t>(q)];
    if (m.options.noDispersalIntoFull && target.counts.n >= target.year.capacity) rate = 0.0;
    total += std::clamp(rate, 0.0, 100.0) / 100.0;
    cumulative.push_back(total);
  }
  // Rates from functions may add up to more than 100 %: scale them down to certainty.
  if (total > 1.0)
    for (double& c : cumulative) c /= total;
}

double SurvivalOfMove(const Model& m, SimContext& context) {
  return std::clamp(m.dispersalSurvival.value(context), 0.0, 100.0) / 100.0;
}

// Whether an individual is of a dispersing sex and age cannot be predicted
// from one to the next: the list is written without a branch on it.
void ListWhoMayDisperse(const Model& m, const std::vector<Individual>& members, std::vector<std::uint32_t>& out) {
  out.resize(members.size());
  std::size_t count = 0;
  for (std::uint32_t i = 0; i < members.size(); ++i) {
    const Individual& ind = members[i];
    out[count] = i;
    count += m.dispersing[ind.sex] & (ind.age >= m.dispersalYoung) & (ind.age <= m.dispersalOld);
  }
  out.resize(count);
}

// Closes the gaps the leavers (by index, in order) leave among the members.
void RemoveLeaving(const std::vector<std::uint32_t>& leaving, std::vector<Individual>& members) {
  if (leaving.empty()) return;
  auto kept = members.begin() + leaving.front();
  for (std::size_t k = 0; k < leaving.size(); ++k) {
    const auto from = members.begin() + leaving[k] + 1;
    const auto to = k + 1 < leaving.size() ? members.begin() + leaving[k + 1] : members.end();
    kept = std::copy(from, to, kept);
  }
  members.erase(kept, members.end());
}

}  // namespace

void Disperse(const Model& m, World& world, SimContext& context) {
  if (m.populations < 2 || !(m.dispersing[kFemale] || m.dispersing[kMale])) return;
  auto& arrivals = world.arrivals;
  arrivals.resize(static_cast<std::size_t>(m.populations));
  for (auto& incoming : arrivals) incoming.clear();
  for (int p = 0; p < m.populations; ++p) {
    PopulationState& pop = world.pops[static_cast<std::size_t>(p)];
    if (pop.members.empty()) continue;
    context.setPopulation(p);
    const bool each = PerDisperser(m, m.pops[static_cast<std::size_t>(p)]);
    std::vector<double>& cumulative = world.destinations;
    double survival = 0.0;
    if (!each) {
      Destinations(m, world, p, context, cumulative);
      if (cumulative.back() <= 0.0) continue;
      survival = SurvivalOfMove(m, context);
    }
    ListWhoMayDisperse(m, pop.members, world.mayDisperse);
    std::vector<std::uint32_t>& leaving = world.leaving;
    leaving.clear();
    LocalStream random(world.random);
    for (std::uint32_t i : world.mayDisperse) {
      const Individual& ind = pop.members[i];
      if (each) {
        context.setIndividual(&ind);
        survival = random.lend([&] {
          Destinations(m, world, p, context, cumulative);
          return SurvivalOfMove(m, context);
        });
      }
      const double u = random.uniform();
      const auto to = std::upper_bound(cumulative.begin(), cumulative.end(), u) - cumulative.begin();
      if (to == m.populations) continue;
      if (random.chance(survival)) arrivals[static_cast<std::size_t>(to)].push_back(ind);
      else world.genomes.release(ind.genome);
      leaving.push_back(i);
    }
    RemoveLeaving(leaving, pop.members);
    context.setIndividual(nullptr);
  }
  for (int q = 0; q < m.populations; ++q) {
    auto& incoming = arrivals[static_cast<std::size_t>(q)];
    auto& members = world.pops[static_cast<std::size_t>(q)].members;
    members.insert(members.end(), incoming.begin(), incoming.end());
  }
  context.setDispersal(0.0, 0);
}

}  // namespace tamsic::sim
