#pragma once
// The values a function sees during a run: those of the iteration, year and
// population being worked on, and of one individual when a rate is asked
// for an individual. Variables of features that come later (state
// variables) are 0.
#include <cstdint>

#include "formula/EvalContext.h"
#include "sim/Model.h"
#include "sim/World.h"

namespace tamsic::sim {

class SimContext : public formula::EvalContext {
 public:
  SimContext(const Model& model, World& world, std::uint64_t runSeed)
      : model_(model), world_(world), runSeed_(runSeed) {}

  void setPopulation(int pop) {
    pop_ = pop;
    individual_ = nullptr;
  }
  void setIndividual(const Individual* individual) { individual_ = individual; }
  void setDispersal(double rate, int recipient) {
    dispersal_ = rate;
    recipient_ = recipient;
  }
  int year() const { return world_.year; }
  int population() const { return pop_; }

  double variable(formula::Var var) override;
  double indexed(formula::IndexedVar var, double argument) override;
  double kinship(double first, double second) override;
  double uniform() override { return world_.random.uniform(); }
  double normal() override { return world_.random.normal(); }
  double seededUniform(double seed) override;
  double seededNormal(double seed) override;

 private:
  const PopulationState* populationAt(double number) const;
  const Individual* findById(double id, std::uint32_t* slot) const;

  const Model& model_;
  World& world_;
  std::uint64_t runSeed_;
  int pop_ = 0;
  const Individual* individual_ = nullptr;
  double dispersal_ = 0.0;
  int recipient_ = 0;
};

}  // namespace tamsic::sim
