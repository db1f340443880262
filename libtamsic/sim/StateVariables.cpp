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

// Whether a yearly function reads other individuals' values (IIS1(MATE), IMEAN(1) ...).
bool TransitionsReadOthers(const Model& m) {
  using formula::IndexedVar;
  for (const IndividualStateVar& v : m.individualStates) {
    const formula::Program* program = v.transition ? v.transition->program() : nullptr;
    if (!program) continue;
    for (const formula::Instruction& in : program->code()) {
      const auto var = static_cast<IndexedVar>(in.b);
      if (in.op == formula::Op::Indexed && (var >= IndexedVar::IIS1 || var == IndexedVar::IMEAN ||
                                            var == IndexedVar::ITOT || var == IndexedVar::IMIN ||
                                            var == IndexedVar::IMAX))
        return true;
    }
  }
  return false;
}

// The new values of a population's members, a variable at a time for all of them together, which is much
// faster than one individual after another. `own` holds each member's row (stride: the number of
// variables), or is null to work in the rows themselves.
void NewValues(const Model& m, World& world, SimContext& context, int p, double* own) {
  const std::vector<Individual>& members = world.pops[static_cast<std::size_t>(p)].members;
  const std::size_t count = IndividualCount(m);
  context.setPopulation(p);
  context.setBatch(members.data(), own, count);
  std::vector<double>& column = world.stateColumn;
  column.resize(members.size());
  for (std::size_t k = 0; k < count; ++k) {
    const auto& transition = m.individualStates[k].transition;
    if (!transition) continue;
    transition->values(context, members.size(), column.data());
    for (std::size_t i = 0; i < members.size(); ++i)
      (own ? own + i * count : world.individualStates.at(members[i].genome))[k] = column[i];
  }
}

// When the yearly functions read other individuals, everyone's new values go to world.nextStates first and
// into place once all are known; otherwise nobody can tell the difference, and they go into place at once.
void Transitions(const Model& m, World& world, SimContext& context) {
  if (!AnyTransition(m)) return;
  if (!TransitionsReadOthers(m)) {
    for (int p = 0; p < m.populations; ++p) NewValues(m, world, context, p, nullptr);
    context.setIndividual(nullptr);
    return;
  }
  const std::size_t count = IndividualCount(m);
  std::size_t living = 0;
  for (const PopulationState& pop : world.pops) living += pop.members.size();
  std::vector<double>& next = world.nextStates;
  next.resize(living * count);
  double* own = next.data();
  for (const PopulationState& pop : world.pops)
    for (const Individual& ind : pop.members) own = std::copy_n(world.individualStates.at(ind.genome), count, own);
  own = next.data();
  for (int p = 0; p < m.populations; ++p) {
    NewValues(m, world, context, p, own);
    own += world.pops[static_cast<std::size_t>(p)].members.size() * count;
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

void BirthStates(const Model& m, World& world, SimContext& context, const std::vector<Individual>& members,
                 const std::vector<std::uint32_t>& mothers, const std::vector<Individual>& newborns) {
  const std::size_t count = IndividualCount(m);
  std::size_t f = 0;
  for (const Individual& born : newborns) {
    while (members[mothers[f]].id != born.dam) ++f;
    double* own = world.individualStates.add(born.genome);
    std::copy_n(world.individualStates.at(members[mothers[f]].genome), count, own);
  }
  context.setBatch(newborns.data(), nullptr, 0);
  std::vector<double>& column = world.stateColumn;
  column.resize(newborns.size());
  for (std::size_t k = 0; k < count; ++k) {
    m.individualStates[k].birth.values(context, newborns.size(), column.data());
    for (std::size_t i = 0; i < newborns.size(); ++i) world.individualStates.at(newborns[i].genome)[k] = column[i];
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
