#include "sim/SimContext.h"

#include <bit>
#include <cmath>
#include <sstream>

#include "sim/SimError.h"

namespace tamsic::sim {

using formula::IndexedVar;
using formula::Var;

namespace {

double Unit(std::uint64_t bits) { return static_cast<double>(bits >> 11) * 0x1.0p-53; }

std::uint64_t Key(std::uint64_t seed, double argument) {
  return Mix(seed ^ Mix(std::bit_cast<std::uint64_t>(argument + 0.0)));
}

// A function's argument that names nothing: "FF(4): there is no population 4".
SimError NoSuch(IndexedVar var, double argument, const char* what) {
  std::ostringstream text;
  text << formula::IndexedVarName(var) << "(" << argument << "): there is no " << what << " " << argument;
  return SimError(text.str());
}

// The number within 1..count that an argument names, or -1.
long Within(double argument, std::size_t count) {
  const long n = std::lround(argument);
  return n >= 1 && static_cast<std::size_t>(n) <= count ? n - 1 : -1;
}

}  // namespace

double SimContext::variable(Var var) {
  if (var >= Var::IS1) return stateVariable(static_cast<int>(var));
  const PopulationState& pop = world_.pops[static_cast<std::size_t>(pop_)];
  const Counts& c = pop.counts;
  const Individual* i = individual_;
  switch (var) {
    case Var::A: return i ? i->age : 0;
    case Var::D: return dispersal_;
    case Var::F: return c.adultFemales;
    case Var::G:
      return pop.initialGeneDiversity > 0 ? 100.0 * pop.geneDiversity / pop.initialGeneDiversity : 0.0;
    case Var::I: return 100.0 * (i ? i->inbreeding : c.meanInbreeding);
    case Var::J: return c.juveniles;
    case Var::K: return pop.year.capacity;
    case Var::M: return c.adultMales;
    case Var::N: return c.n;
    case Var::O:
    case Var::ID: return i ? i->id : 0;
    case Var::P: return pop_ + 1;
    case Var::R: return world_.iteration;
    case Var::S: return i ? i->sex : 0;
    case Var::U: return c.subadults;
    case Var::V: return i ? world_.genomes.allele(i->genome, 1, 0) : 0;
    case Var::W: return c.males;
    case Var::X: return c.females;
    case Var::Y: return world_.year;
    case Var::Z: return i ? world_.genomes.allele(i->genome, 0, 0) : 0;
    case Var::PP: return recipient_ + 1;
    case Var::PARITY: return i ? i->parity : 0;
    case Var::DAM: return i ? i->dam : 0;
    case Var::SIRE: return i ? i->sire : 0;
    case Var::MATE: return i ? i->mate : 0;
    case Var::NMATES: return i ? i->mates : 0;
    default: return 0.0;  // Q and B, which the reading of a scenario refuses
  }
}

// As the general one, but without a virtual call for each item and variable.
void SimContext::fetchBatch(const Var* vars, std::size_t count, std::size_t first, std::size_t items, double* values,
                            std::size_t stride) {
  for (std::size_t i = 0; i < items; ++i) {
    select(first + i);
    for (std::size_t v = 0; v < count; ++v) values[v * stride + i] = variable(vars[v]);
  }
}

// The life table asks for an individual's rates without an individual: its state variables are 0 there.
double SimContext::stateVariable(int index) const {
  const int ps = static_cast<int>(Var::PS1), gs = static_cast<int>(Var::GS1);
  if (index >= gs) return (globalStates_ ? globalStates_ : world_.globalStates.data())[index - gs];
  if (index >= ps) {
    const auto& own = world_.pops[static_cast<std::size_t>(pop_)].states;
    return (populationStates_ ? populationStates_ : own.data())[index - ps];
  }
  if (!individual_) return 0.0;
  const IndividualStates& states = world_.individualStates;
  const double* row = individualStates_ ? individualStates_ : states.at(individual_->genome);
  return row[index - static_cast<int>(Var::IS1)];
}

const PopulationState& SimContext::populationAt(IndexedVar var, double number) const {
  const long p = Within(number, world_.pops.size());
  if (p < 0) throw NoSuch(var, number, "population");
  return world_.pops[static_cast<std::size_t>(p)];
}

std::optional<std::uint32_t> SimContext::slotOf(double id) {
  if (!(id >= 1.0 && id < 4294967296.0)) return std::nullopt;
  return ids_.slotOf(world_, static_cast<std::uint32_t>(std::lround(id)));
}

// IIS1(id) ...: 0 for an id of no living individual, as DAM is 0 for a founder.
double SimContext::otherIndividual(IndexedVar var, double argument) {
  const auto slot = slotOf(argument);
  if (!slot) return 0.0;
  return world_.individualStates.at(*slot)[static_cast<int>(var) - static_cast<int>(IndexedVar::IIS1)];
}

const SimContext::Summary& SimContext::summary(IndexedVar var, double number) {
  const long k = Within(number, model_.individualStates.size());
  if (k < 0) throw NoSuch(var, number, "individual state variable");
  Summary& s = summaries_[static_cast<std::size_t>(k)];
  if (summarized_ >> k & 1) return s;
  s = Summary{};
  double n = 0.0;
  const auto add = [&](const PopulationState& pop) {
    for (const Individual& ind : pop.members) {
      const double value = world_.individualStates.at(ind.genome)[k];
      s.least = n == 0.0 ? value : std::min(s.least, value);
      s.most = n == 0.0 ? value : std::max(s.most, value);
      s.total += value;
      n += 1.0;
    }
  };
  if (global_)
    for (const PopulationState& pop : world_.pops) add(pop);
  else
    add(world_.pops[static_cast<std::size_t>(pop_)]);
  s.mean = n > 0.0 ? s.total / n : 0.0;
  summarized_ |= 1u << k;
  return s;
}

double SimContext::indexed(IndexedVar var, double argument) {
  const int index = static_cast<int>(var);
  if (index >= static_cast<int>(IndexedVar::PPS1))
    return populationAt(var, argument).states[static_cast<std::size_t>(index - static_cast<int>(IndexedVar::PPS1))];
  if (index >= static_cast<int>(IndexedVar::IIS1)) return otherIndividual(var, argument);
  switch (var) {
    case IndexedVar::VV:
    case IndexedVar::ZZ: {
      const int loci = world_.genomes.shape().neutralLoci;
      const long locus = Within(argument, static_cast<std::size_t>(loci));
      if (locus < 0) throw NoSuch(var, argument, "neutral locus");
      if (!individual_) return 0.0;
      return world_.genomes.allele(individual_->genome, var == IndexedVar::VV ? 0 : 1, static_cast<int>(locus));
    }
    case IndexedVar::CAT: {
      const auto& last = world_.pops[static_cast<std::size_t>(pop_)].lastCatastrophe;
      const long type = Within(argument, last.size());
      if (type < 0) throw NoSuch(var, argument, "catastrophe type");
      const int when = last[static_cast<std::size_t>(type)];
      return when < 0 ? world_.year : world_.year - when;
    }
    case IndexedVar::IMEAN: return summary(var, argument).mean;
    case IndexedVar::ITOT: return summary(var, argument).total;
    case IndexedVar::IMIN: return summary(var, argument).least;
    case IndexedVar::IMAX: return summary(var, argument).most;
    default: break;
  }
  const PopulationState& pop = populationAt(var, argument);
  const Counts& c = pop.counts;
  switch (var) {
    case IndexedVar::FF: return c.adultFemales;
    case IndexedVar::GG: return pop.geneDiversity;
    case IndexedVar::JJ: return c.juveniles;
    case IndexedVar::KK: return pop.year.capacity;
    case IndexedVar::MM: return c.adultMales;
    case IndexedVar::NN: return c.n;
    case IndexedVar::II: return 100.0 * c.meanInbreeding;
    case IndexedVar::WW: return c.males;
    default: return c.females;  // XX
  }
}

// KIN(a;b): 0 unless both are alive. Exact while the iteration keeps the kinship matrix.
double SimContext::kinship(double first, double second) {
  const auto a = slotOf(first);
  const auto b = slotOf(second);
  if (!a || !b) return 0.0;
  world_.kinship.settle();
  return world_.kinship.exact() ? world_.kinship.at(*a, *b) : world_.genomes.kinship(*a, *b);
}

double SimContext::seededUniform(double seed) { return Unit(Key(runSeed_, seed)); }

double SimContext::seededNormal(double seed) {
  const std::uint64_t key = Key(runSeed_, seed);
  return std::sqrt(-2.0 * std::log(1.0 - Unit(key))) * std::cos(6.283185307179586 * Unit(Mix(key)));
}

}  // namespace tamsic::sim
