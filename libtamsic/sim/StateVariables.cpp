#include "sim/StateVariables.h"

#include <algorithm>

#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

std::size_t IndividualCount(const Model& m) { return m.individualStates.size(); }

void Reset(const Model& m, World& world) {
  world.individualStates.reset(static_cast<int>(IndividualCount(m)));
  for (PopulationState& pop : world.pops) pop.states.assign(static_cast<std::size_t>(m.populationStates()), 0.0);
  world.globalStates.assign(m.globalStates.size(), 0.0);
}

void Initial(const Model& m, World& world, SimContext& context, const Individual& ind) {
  double* own = world.individualStates.add(ind.genome);
  std::fill_n(own, IndividualCount(m), 0.0);
  context.setIndividual(&ind);
  for (std::size_t k = 0; k < IndividualCount(m); ++k) own[k] = m.individualStates[k].initial.value(context);
}

bool AnyTransition(const Model& m) {
  return std::any_of(m.individualStates.begin(), m.individualStates.end(),
                     [](const IndividualStateVar& v) { return v.transition.has_value(); });
}

// Everyone's new values go to world.nextStates first and into place once all are known.
void Transitions(const Model& m, World& world, SimContext& context) {
  if (!AnyTransition(m)) return;
  const std::size_t count = IndividualCount(m);
  std::size_t living = 0;
  for (const PopulationState& pop : world.pops) living += pop.members.size();
  std::vector<double>& next = world.nextStates;
  next.resize(living * count);
  double* own = next.data();
  for (int p = 0; p < m.populations; ++p) {
    context.setPopulation(p);
    for (const Individual& ind : world.pops[static_cast<std::size_t>(p)].members) {
      std::copy_n(world.individualStates.at(ind.genome), count, own);
      context.setIndividual(&ind, own);
      for (std::size_t k = 0; k < count; ++k)
        if (const auto& transition = m.individualStates[k].transition) own[k] = transition->value(context);
      own += count;
    }
  }
  const double* done = next.data();
  for (const PopulationState& pop : world.pops)
    for (const Individual& ind : pop.members) {
      std::copy_n(done, count, world.individualStates.at(ind.genome));
      done += count;
    }
  context.setIndividual(nullptr);
}

void PopulationStates(const Model& m, World& world, SimContext& context) {
  const auto count = static_cast<std::size_t>(m.populationStates());
  if (count == 0) return;
  std::vector<double>& next = world.nextStates;
  next.resize(world.pops.size() * count);
  for (std::size_t p = 0; p < world.pops.size(); ++p) {
    double* own = next.data() + p * count;
    std::copy_n(world.pops[p].states.data(), count, own);
    context.setPopulation(static_cast<int>(p), own);
    for (std::size_t k = 0; k < count; ++k) own[k] = m.pops[p].states[k].value(context);
  }
  for (std::size_t p = 0; p < world.pops.size(); ++p)
    std::copy_n(next.data() + p * count, count, world.pops[p].states.data());
}

void GlobalStates(const Model& m, World& world, SimContext& context) {
  if (m.globalStates.empty()) return;
  std::vector<double>& next = world.nextStates;
  next = world.globalStates;
  context.setGlobal(next.data());
  for (std::size_t k = 0; k < m.globalStates.size(); ++k) next[k] = m.globalStates[k].value(context);
  world.globalStates = next;
}

void GroupStates(const Model& m, World& world, SimContext& context) {
  PopulationStates(m, world, context);
  GlobalStates(m, world, context);
  context.setPopulation(0);  // no longer reading the values being worked out
}

}  // namespace

void StartStates(const Model& m, World& world, SimContext& context) {
  Reset(m, world);
  if (!m.hasStates()) return;
  if (m.needsCounts) Recount(m, world);
  if (IndividualCount(m) > 0)
    for (int p = 0; p < m.populations; ++p) {
      context.setPopulation(p);
      for (const Individual& ind : world.pops[static_cast<std::size_t>(p)].members) Initial(m, world, context, ind);
    }
  GroupStates(m, world, context);
}

void StartGroupStates(const Model& m, World& world, SimContext& context) {
  Reset(m, world);
  GroupStates(m, world, context);
}

void StartIndividual(const Model& m, World& world, SimContext& context, const Individual& ind) {
  context.individualsCreated();
  if (IndividualCount(m) == 0) return;
  Initial(m, world, context, ind);
  context.setIndividual(nullptr);
}

void BirthStates(const Model& m, World& world, SimContext& context, const std::vector<Individual>& newborns) {
  const std::size_t count = IndividualCount(m);
  for (const Individual& born : newborns) {
    double* own = world.individualStates.add(born.genome);
    std::copy_n(world.individualStates.at(*context.livingSlot(born.dam)), count, own);
    context.setIndividual(&born);
    for (std::size_t k = 0; k < count; ++k) own[k] = m.individualStates[k].birth.value(context);
  }
}

void AdvanceStates(const Model& m, World& world, SimContext& context) {
  if (!m.hasStates()) return;
  Transitions(m, world, context);
  GroupStates(m, world, context);
}

void RecordStates(const Model& m, const World& world, IterationRecord& record) {
  const auto columns = static_cast<std::size_t>(m.userVariables);
  if (columns == 0) return;
  const auto fill = [&](const std::vector<double>& states, double* values) {
    for (std::size_t v = 0; v < columns; ++v) values[v] = v < states.size() ? states[v] : 0.0;
  };
  for (int p = 0; p < m.populations; ++p)
    fill(world.pops[static_cast<std::size_t>(p)].states, record.userValues(p, world.year));
  if (m.populations > 1) fill(world.globalStates, record.userValues(m.populations, world.year));
}

}  // namespace tamsic::sim
