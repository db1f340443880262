#include "sim/SimContext.h"

#include <bit>
#include <cmath>

namespace tamsic::sim {

using formula::IndexedVar;
using formula::Var;

namespace {

double Unit(std::uint64_t bits) { return static_cast<double>(bits >> 11) * 0x1.0p-53; }

std::uint64_t Key(std::uint64_t seed, double argument) {
  return Mix(seed ^ Mix(std::bit_cast<std::uint64_t>(argument + 0.0)));
}

}  // namespace

double SimContext::variable(Var var) {
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
    default: return 0.0;  // Q is unused; state variables come later
  }
}

const PopulationState* SimContext::populationAt(double number) const {
  const auto p = static_cast<long>(std::lround(number)) - 1;
  if (p < 0 || p >= static_cast<long>(world_.pops.size())) return nullptr;
  return &world_.pops[static_cast<std::size_t>(p)];
}

double SimContext::indexed(IndexedVar var, double argument) {
  if (var == IndexedVar::VV || var == IndexedVar::ZZ) {
    const long locus = std::lround(argument) - 1;
    if (!individual_ || locus < 0 || locus >= world_.genomes.shape().neutralLoci) return 0.0;
    return world_.genomes.allele(individual_->genome, var == IndexedVar::VV ? 0 : 1, static_cast<int>(locus));
  }
  if (var == IndexedVar::CAT) {
    const long type = std::lround(argument) - 1;
    const auto& last = world_.pops[static_cast<std::size_t>(pop_)].lastCatastrophe;
    if (type < 0 || type >= static_cast<long>(last.size())) return 0.0;
    const int when = last[static_cast<std::size_t>(type)];
    return when < 0 ? world_.year : world_.year - when;
  }
  const PopulationState* pop = populationAt(argument);
  if (!pop) return 0.0;
  const Counts& c = pop->counts;
  switch (var) {
    case IndexedVar::FF: return c.adultFemales;
    case IndexedVar::GG: return pop->geneDiversity;
    case IndexedVar::JJ: return c.juveniles;
    case IndexedVar::KK: return pop->year.capacity;
    case IndexedVar::MM: return c.adultMales;
    case IndexedVar::NN: return c.n;
    case IndexedVar::II: return 100.0 * c.meanInbreeding;
    case IndexedVar::WW: return c.males;
    case IndexedVar::XX: return c.females;
    default: return 0.0;  // state-variable summaries come later
  }
}

const Individual* SimContext::findById(double id, std::uint32_t* slot) const {
  const auto wanted = static_cast<std::uint32_t>(std::lround(id));
  for (const PopulationState& pop : world_.pops)
    for (const Individual& i : pop.members)
      if (i.id == wanted) {
        *slot = i.genome;
        return &i;
      }
  return nullptr;
}

// Rarely used in functions, so a search is good enough. Exact while the iteration keeps the kinship matrix.
double SimContext::kinship(double first, double second) {
  std::uint32_t a = 0, b = 0;
  if (!findById(first, &a) || !findById(second, &b)) return 0.0;
  world_.kinship.settle();
  return world_.kinship.exact() ? world_.kinship.at(a, b) : world_.genomes.kinship(a, b);
}

double SimContext::seededUniform(double seed) { return Unit(Key(runSeed_, seed)); }

double SimContext::seededNormal(double seed) {
  const std::uint64_t key = Key(runSeed_, seed);
  return std::sqrt(-2.0 * std::log(1.0 - Unit(key))) * std::cos(6.283185307179586 * Unit(Mix(key)));
}

}  // namespace tamsic::sim
