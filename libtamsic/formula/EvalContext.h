#pragma once
// Where a function's variables get their values. The simulation implements
// this for the individual, population, year and iteration being worked on;
// the random draws come from the context's own stream so that a run with the
// same seed gives the same numbers.
#include <cstddef>

#include "formula/Names.h"

namespace tamsic::formula {

class EvalContext {
 public:
  virtual ~EvalContext() = default;

  virtual double variable(Var var) = 0;
  // The values of several variables at once, as a compiled function asks for
  // them before each evaluation; a context may answer faster than one call
  // of variable() each.
  virtual void fetch(const Var* vars, std::size_t count, double* values) {
    for (std::size_t i = 0; i < count; ++i) values[i] = variable(vars[i]);
  }
  // FF(p), IIS3(id), CAT(type) ...: the argument as the function gave it.
  // Batch evaluation: the item (individual, population...) of the batch that
  // the following calls concern. A single evaluation does not call it.
  virtual void select(std::size_t item) { static_cast<void>(item); }
  // Batch evaluation: the variables of items first .. first + items - 1; the
  // value of vars[v] for item first + i goes to values[v * stride + i].
  virtual void fetchBatch(const Var* vars, std::size_t count, std::size_t first,
                          std::size_t items, double* values, std::size_t stride) {
    double item[static_cast<std::size_t>(Var::Count)];
    for (std::size_t i = 0; i < items; ++i) {
      select(first + i);
      fetch(vars, count, item);
      for (std::size_t v = 0; v < count; ++v) values[v * stride + i] = item[v];
    }
  }

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
