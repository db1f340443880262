#include "sim/VariableScopes.h"

#include <string>

#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

using formula::IndexedVar;
using formula::Var;

enum class Scope {
  Individual,  // a rate of one individual, in its population
  Disperser,   // the dispersal modifier: an individual, with D and PP
  Newborn,     // the sex ratio: a newborn before it has state variables
  Initial,     // the initial value of an individual state variable
  Population,
  Global,
};

struct Rules {
  Scope scope;
  int individualStates;
  int populationStates;
  int globalStates;
  int initialized = 0;  // for Scope::Initial: the variables before this one
};

// The number of a state variable (IS3: 3) within its kind, or 0.
int Number(int index, int first) { return index >= first && index < first + 10 ? index - first + 1 : 0; }

bool OfIndividual(Var var) {
  switch (var) {
    case Var::A: case Var::O: case Var::S: case Var::V: case Var::Z: case Var::PARITY: case Var::ID:
    case Var::DAM: case Var::SIRE: case Var::MATE: case Var::NMATES:
      return true;
    default:
      return Number(static_cast<int>(var), static_cast<int>(Var::IS1)) > 0;
  }
}

bool OfPopulation(Var var) {
  switch (var) {
    case Var::F: case Var::G: case Var::I: case Var::J: case Var::K: case Var::M: case Var::N: case Var::P:
    case Var::U: case Var::W: case Var::X:
      return true;
    default:
      return Number(static_cast<int>(var), static_cast<int>(Var::PS1)) > 0;
  }
}

std::string Count(int count, const char* kind) {
  return count == 1 ? "1 " + std::string(kind) + " state variable"
                    : std::to_string(count) + " " + kind + " state variables";
}

// Why a state variable of this kind and number does not exist, or "".
std::string Missing(int number, int count, const char* kind) {
  if (number == 0 || number <= count) return {};
  return "the scenario has " + Count(count, kind);
}

// The words for a value that is not one individual's.
std::string Whole(Scope scope) {
  return "it belongs to an individual, and this value is one of the whole " +
         std::string(scope == Scope::Global ? "metapopulation" : "population");
}

constexpr const char* kOnePopulation =
    "it belongs to one population, and a global state variable is one of all populations";

std::string ProblemWith(Var var, const Rules& r) {
  const int is = Number(static_cast<int>(var), static_cast<int>(Var::IS1));
  const int ps = Number(static_cast<int>(var), static_cast<int>(Var::PS1));
  const int gs = Number(static_cast<int>(var), static_cast<int>(Var::GS1));
  if (auto why = Missing(is, r.individualStates, "individual"); !why.empty()) return why;
  if (auto why = Missing(ps, r.populationStates, "population"); !why.empty()) return why;
  if (auto why = Missing(gs, r.globalStates, "global"); !why.empty()) return why;
  if (var == Var::Q) return "Q is not used by the model";
  if ((var == Var::D || var == Var::PP) && r.scope != Scope::Disperser)
    return "only the dispersal modifier function has it (the dispersal rate and the recipient population)";
  const bool ofAll = r.scope == Scope::Population || r.scope == Scope::Global;
  if (OfIndividual(var) && ofAll) return Whole(r.scope);
  if (OfPopulation(var) && r.scope == Scope::Global) return std::string(kOnePopulation) + "; name one, as in NN(1)";
  if (is > 0 && r.scope == Scope::Newborn) return "a newborn takes its state variables after its sex is drawn";
  if (is > 0 && r.scope == Scope::Initial && is > r.initialized)
    return "it is not set yet: an initial value may use the individual state variables before its own";
  return {};
}

std::string ProblemWith(IndexedVar var, const Rules& r) {
  const int iis = Number(static_cast<int>(var), static_cast<int>(IndexedVar::IIS1));
  const int pps = Number(static_cast<int>(var), static_cast<int>(IndexedVar::PPS1));
  if (auto why = Missing(iis, r.individualStates, "individual"); !why.empty()) return why;
  if (auto why = Missing(pps, r.populationStates, "population"); !why.empty()) return why;
  const bool others = iis > 0 || var == IndexedVar::IMEAN || var == IndexedVar::ITOT || var == IndexedVar::IMIN ||
                      var == IndexedVar::IMAX;
  if (others && r.individualStates == 0) return "the scenario has no individual state variables";
  const bool ofAll = r.scope == Scope::Population || r.scope == Scope::Global;
  if ((var == IndexedVar::VV || var == IndexedVar::ZZ) && ofAll) return Whole(r.scope);
  if (var == IndexedVar::CAT && r.scope == Scope::Global) return kOnePopulation;
  if (others && r.scope == Scope::Initial)
    return "individuals take their initial values one after another, so the values of others are not settled";
  return {};
}

void Check(const Rate& rate, const Rules& rules) {
  const formula::Program* program = rate.program();
  if (!program) return;
  std::string name, why;
  for (Var var : program->variables()) {
    why = ProblemWith(var, rules);
    if (!why.empty()) {
      name = formula::VarName(var);
      break;
    }
  }
  for (const formula::Instruction& in : program->code()) {
    if (!why.empty()) break;
    if (in.op != formula::Op::Indexed) continue;
    why = ProblemWith(static_cast<IndexedVar>(in.b), rules);
    name = formula::IndexedVarName(static_cast<IndexedVar>(in.b));
  }
  if (!why.empty()) throw SimError(rate.where() + ": the function uses " + name + ", but " + why);
}

void CheckAll(const std::vector<Rate>& rates, const Rules& rules) {
  for (const Rate& rate : rates) Check(rate, rules);
}

void CheckPopulation(const PopulationModel& p, Rules rules) {
  rules.scope = Scope::Individual;
  for (const Rate* rate : {&p.breeding, &p.breedingSD, &p.broodMean, &p.broodSD, &p.malesInPool})
    Check(*rate, rules);
  for (int sex : {kFemale, kMale}) {
    CheckAll(p.mortality[sex], rules);
    CheckAll(p.mortalitySD[sex], rules);
  }
  CheckAll(p.dispersal, rules);
  rules.scope = Scope::Population;
  for (const Catastrophe& c : p.catastrophes)
    for (const Rate* rate : {&c.frequency, &c.reproduction, &c.survival}) Check(*rate, rules);
  for (const Rate* rate : {&p.capacity, &p.capacitySD, &p.trendPercent}) Check(*rate, rules);
  for (const Schedule* s : {&p.harvest, &p.supplement})
    if (s->criterion) Check(*s->criterion, rules);
  for (const AgeClassCounts* counts : {&p.harvested, &p.supplemented}) {
    CheckAll(counts->females, rules);
    CheckAll(counts->males, rules);
  }
  CheckAll(p.states, rules);
}

}  // namespace

void CheckVariableScopes(const Model& m) {
  Rules rules{Scope::Individual, static_cast<int>(m.individualStates.size()), m.populationStates(),
              static_cast<int>(m.globalStates.size())};
  CheckAll(m.broodPercent, rules);
  CheckAll(m.progenyPercent, rules);
  Check(m.dispersalSurvival, rules);
  for (const PopulationModel& p : m.pops) CheckPopulation(p, rules);
  for (std::size_t k = 0; k < m.individualStates.size(); ++k) {
    const IndividualStateVar& v = m.individualStates[k];
    Rules initial = rules;
    initial.scope = Scope::Initial;
    initial.initialized = static_cast<int>(k);
    Check(v.initial, initial);
    Check(v.birth, rules);
    if (v.transition) Check(*v.transition, rules);
  }
  Rules newborn = rules;
  newborn.scope = Scope::Newborn;
  Check(m.sexRatio, newborn);
  Rules disperser = rules;
  disperser.scope = Scope::Disperser;
  if (m.dispersalModifier) Check(*m.dispersalModifier, disperser);
  Rules global = rules;
  global.scope = Scope::Global;
  CheckAll(m.globalStates, global);
}

}  // namespace tamsic::sim
