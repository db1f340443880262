#include "GraphContext.h"

namespace tamsic {

namespace {

// Graphs draw from the same stream every time, so a redraw does not jump.
constexpr std::uint64_t kGraphSeed = 20241;

}  // namespace

using formula::IndexedVar;
using formula::Var;

GraphContext::GraphContext(GraphVariable x, int population)
    : xVariable_(x), random_(kGraphSeed) {
  values_[static_cast<std::size_t>(Var::N)] = 100.0;
  values_[static_cast<std::size_t>(Var::K)] = 100.0;
  values_[static_cast<std::size_t>(Var::A)] = 1.0;
  values_[static_cast<std::size_t>(Var::Y)] = 1.0;
  values_[static_cast<std::size_t>(Var::P)] = population;
}

void GraphContext::setX(double x) { x_ = x; }

double GraphContext::variable(Var var) {
  if (xVariable_.plain == var) return x_;
  return values_[static_cast<std::size_t>(var)];
}

double GraphContext::indexed(IndexedVar var, double) {
  return xVariable_.indexed == var ? x_ : 0.0;
}

double GraphContext::kinship(double, double) { return xVariable_.kinship ? x_ : 0.0; }

}  // namespace tamsic
