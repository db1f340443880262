#pragma once
// The values a function sees during a run: those of the iteration, year and
// population being worked on, and of one individual when a rate is asked
// for an individual. A global state variable sees no population of its own:
// its IMEAN and the like take the whole metapopulation.
#include <array>
#include <cstdint>
#include <optional>

#include "formula/EvalContext.h"
#include "sim/IdIndex.h"
#include "sim/Model.h"
#include "sim/World.h"

namespace tamsic::sim {

class SimContext final : public formula::EvalContext {
 public:
  SimContext(const Model& model, World& world, std::uint64_t runSeed)
      : model_(model), world_(world), runSeed_(runSeed) {}

  // `states`, while the population's state variables are worked out: where
  // its own PS1, PS2, ... are read from instead.
  void setPopulation(int pop, const double* states = nullptr) {
    pop_ = pop;
    global_ = false;
    individual_ = nullptr;
    populationStates_ = states;
    globalStates_ = nullptr;
    forget();
  }
  // For the global state variables, with their new values being worked out in `states`.
  void setGlobal(const double* states) {
    pop_ = 0;
    global_ = true;
    individual_ = nullptr;
    populationStates_ = nullptr;
    globalStates_ = states;
    forget();
  }
  // `states`, while the individual's state variables are worked out: where its own IS1, IS2, ... are read.
  void setIndividual(const Individual* individual, const double* states = nullptr) {
    individual_ = individual;
    individualStates_ = states;
  }
  // A batch of individuals for Rate::values: item i is members[i], whose own IS1, IS2, ... are read from
  // states + i * stride, or from its row when `states` is null.
  void setBatch(const Individual* members, const double* states, std::size_t stride) {
    batch_ = members;
    batchStates_ = states;
    batchStride_ = stride;
  }
  void select(std::size_t item) override {
    setIndividual(batch_ + item, batchStates_ ? batchStates_ + item * batchStride_ : nullptr);
  }
  void setDispersal(double rate, int recipient) {
    dispersal_ = rate;
    recipient_ = recipient;
  }
  // Individuals were created: an id may name another genome slot than before.
  void individualsCreated() { ids_.invalidate(); }
  int year() const { return world_.year; }
  int population() const { return pop_; }
  bool global() const { return global_; }

  double variable(formula::Var var) override;
  void fetchBatch(const formula::Var* vars, std::size_t count, std::size_t first, std::size_t items, double* values,
                  std::size_t stride) override;
  double indexed(formula::IndexedVar var, double argument) override;
  double kinship(double first, double second) override;
  double uniform() override { return world_.random.uniform(); }
  double normal() override { return world_.random.normal(); }
  double seededUniform(double seed) override;
  double seededNormal(double seed) override;

 private:
  // IMEAN, ITOT, IMIN and IMAX of one individual state variable.
  struct Summary {
    double mean = 0.0, total = 0.0, least = 0.0, most = 0.0;
  };

  // What was worked out for one population and step is not kept past it.
  void forget() {
    ids_.invalidate();
    summarized_ = 0;
  }
  double stateVariable(int index) const;
  double otherIndividual(formula::IndexedVar var, double argument);
  const PopulationState& populationAt(formula::IndexedVar var, double number) const;
  const Summary& summary(formula::IndexedVar var, double number);
  std::optional<std::uint32_t> slotOf(double id);

  const Model& model_;
  World& world_;
  std::uint64_t runSeed_;
  int pop_ = 0;
  bool global_ = false;
  const Individual* individual_ = nullptr;
  const double* individualStates_ = nullptr;
  const double* populationStates_ = nullptr;
  const double* globalStates_ = nullptr;
  const Individual* batch_ = nullptr;
  const double* batchStates_ = nullptr;
  std::size_t batchStride_ = 0;
  double dispersal_ = 0.0;
  int recipient_ = 0;
  IdIndex ids_;
  std::array<Summary, 10> summaries_;
  std::uint32_t summarized_ = 0;  // bit k: summaries_[k] is of this population and step
};

}  // namespace tamsic::sim
