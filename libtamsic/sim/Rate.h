#pragma once
// One input cell as the simulation uses it: a number, a compiled function
// ("=...") or a file of yearly values ("file=NAME"). Functions are compiled
// once when the scenario is read; a number is answered without the formula
// machinery, which matters in the per-individual loops.
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "formula/EvalContext.h"
#include "formula/FileSeries.h"
#include "formula/Program.h"

namespace tamsic::sim {

class SimContext;

class Rate {
 public:
  Rate() = default;
  static Rate Number(double value) {
    Rate rate;
    rate.value_ = value;
    return rate;
  }
  // Reads a cell. `emptyValue` stands for an empty cell; `where` names the
  // input in error messages. File references are looked for in `folder`.
  // Throws SimError for a function that does not compile, a missing file or
  // a text that is neither.
  static Rate Read(std::string_view text, double emptyValue, const std::string& where,
                   const std::filesystem::path& folder);

  bool isConstant() const { return !program_ && !series_; }
  double constant() const { return value_; }
  // The values of a file reference; null for a number or a function.
  const formula::FileSeries* series() const { return series_.get(); }
  // Whether the value can differ between individuals of one population.
  bool perIndividual() const { return perIndividual_; }
  bool usesPopulationCounts() const { return usesCounts_; }
  // The compiled function; null for a number or a file reference.
  const formula::Program* program() const { return program_.get(); }
  const std::string& where() const { return where_; }

  // The value in the context's population, year and individual. Throws
  // SimError naming the input when a function gives NaN or infinity, or
  // names what does not exist (FF(9) of a scenario with two populations).
  double value(SimContext& context) const;
  // The values for the items 0 .. count-1 of the context's batch (SimContext::setBatch), worked out together.
  void values(SimContext& context, std::size_t count, double* out) const;

 private:
  // The input, population and year, for messages.
  std::string place(const SimContext& context) const;
  void checkFinite(const SimContext& context, double result) const;

  double value_ = 0.0;
  std::shared_ptr<const formula::Program> program_;
  std::shared_ptr<const formula::FileSeries> series_;
  bool perIndividual_ = false;
  bool usesCounts_ = false;
  std::string where_;
};

}  // namespace tamsic::sim
