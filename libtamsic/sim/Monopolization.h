#pragma once
// The three equivalent measures of how unevenly males father the young, for
// a population held at K in its stable age distribution: the % of adult
// males in the breeding pool (what the simulation uses), the % of adult
// males that father young in a year, and the mean number of young per such
// male. Knowing one gives the other two.
#include <array>

#include "sim/LifeTable.h"
#include "sim/Model.h"

namespace tamsic::sim {

struct Monopolization {
  double inPool = 0.0;     // % of adult males
  double siring = 0.0;     // % of adult males
  double perSire = 0.0;    // mean young per siring male
};

// `which` says which measure is known (0 in the pool, 1 siring, 2 young per sire) and `value` its value.
// Throws SimError when the measure cannot be reached or the mating system has no males.
Monopolization Equivalents(const Model& model, const LifeTable& table, int pop, int which, double value);

}  // namespace tamsic::sim
