#pragma once
// The values a function is graphed with when no scenario supplies them:
// N = K = 100, A = 1, Y = 1, P = the population and all else 0, one chosen
// variable taking the x value of each point.
#include <array>
#include <optional>

#include "RandomStream.h"
#include "formula/EvalContext.h"

namespace tamsic {

// The variable on the x axis: a plain one, one that takes arguments, or KIN.
struct GraphVariable {
  std::optional<formula::Var> plain;
  std::optional<formula::IndexedVar> indexed;
  bool kinship = false;
};

class GraphContext : public formula::EvalContext {
 public:
  GraphContext(GraphVariable x, int population);

  void setX(double x);

  double variable(formula::Var var) override;
  double indexed(formula::IndexedVar var, double argument) override;
  double kinship(double first, double second) override;
  double uniform() override { return random_.uniform(); }
  double normal() override { return random_.normal(); }
  double seededUniform(double seed) override { return random_.seededUniform(seed); }
  double seededNormal(double seed) override { return random_.seededNormal(seed); }

 private:
  GraphVariable xVariable_;
  double x_ = 0.0;
  std::array<double, static_cast<std::size_t>(formula::Var::Count)> values_{};
  RandomStream random_;
};

}  // namespace tamsic
