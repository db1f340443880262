#pragma once
// Where a function's variables get their values. The simulation implements
// this for the individual, population, year and iteration being worked on;
// the random draws come from the context's own stream so that a run with the
// same seed gives the same numbers.
#include "formula/Names.h"

namespace tamsic::formula {

class EvalContext {
 public:
  virtual ~EvalContext() = default;

  virtual double variable(Var var) = 0;
  // FF(p), IIS3(id), CAT(type) ...: the argument as the function gave it.
  virtual double indexed(IndexedVar var, double argument) = 0;
  virtual double kinship(double first, double second) = 0;

  virtual double uniform() = 0;  // RAND, in [0, 1)
  virtual double normal() = 0;   // NRAND
  // SRAND(seed) and SNRAND(seed): the same seed gives the same number within
  // a run, so that for example SRAND(O) is fixed for an individual.
  virtual double seededUniform(double seed) = 0;
  virtual double seededNormal(double seed) = 0;
};

}  // namespace tamsic::formula
