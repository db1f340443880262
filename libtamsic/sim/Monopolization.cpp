#include "sim/Monopolization.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "report/TextFile.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

double Adults(const LifeTable& table, int sex, int firstAge) {
  const auto& shares = table.stable[sex];
  return std::accumulate(shares.begin() + std::min<std::ptrdiff_t>(firstAge - 1, std::ssize(shares)), shares.end(),
                         0.0);
}

// Males that father young when `females` breeders each take one male at
// random from a pool of `pool` (polygamy: with replacement), or one male
// each while males last (monogamy).
double Sires(const Model& model, double pool, double females) {
  if (pool <= 0 || females <= 0) return 0.0;
  const bool monogamous = model.mating == Mating::Monogamous || model.mating == Mating::LongTermMonogamous;
  if (monogamous) return std::min(pool, females);
  if (pool <= 1) return pool;
  return pool * (1.0 - std::pow(1.0 - 1.0 / pool, females));
}

// The pool that gives `sires`: Sires grows with the pool, so halving the interval finds it.
double PoolFor(const Model& model, double sires, double males, double females) {
  double low = 0.0, high = males;
  for (int step = 0; step < 100; ++step) {
    const double middle = (low + high) / 2;
    (Sires(model, middle, females) < sires ? low : high) = middle;
  }
  return high;
}

}  // namespace

Monopolization Equivalents(const Model& model, const LifeTable& table, int pop, int which, double value) {
  if (!model.sexual()) throw SimError("hermaphrodites have no males to monopolize mates");
  const double capacity = table.capacity;
  const double males = capacity * Adults(table, kMale, model.firstBreeding[kMale]);
  const double females = capacity * Adults(table, kFemale, model.firstBreeding[kFemale]) * table.breeders;
  const double young = females * table.youngPerBreeder;
  const std::string where = "population " + std::to_string(pop + 1);
  if (males < 1 || females <= 0)
    throw SimError(where + " at K (" + report::Num(capacity) + ") has no adult males or no breeding females");
  const double most = Sires(model, males, females);
  double sires = 0.0;
  switch (which) {
    case 0: sires = Sires(model, males * std::clamp(value, 0.0, 100.0) / 100, females); break;
    case 1: sires = males * value / 100; break;
    case 2: sires = value > 0 ? young / value : males + 1; break;
    default: throw SimError("the measure to start from must be 0, 1 or 2, not " + std::to_string(which));
  }
  if (sires > most * (1 + 1e-9) || sires <= 0)
    throw SimError(where + ": at most " + report::Num(100 * most / males) + " % of adult males can sire young, " +
                   report::Num(young / most) + " young each at the least");
  const double inPool =
      which == 0 ? std::clamp(value, 0.0, 100.0) : 100 * PoolFor(model, sires, males, females) / males;
  return {inPool, 100 * sires / males, young / sires};
}

}  // namespace tamsic::sim
