#pragma once
// Reads the texts of a scenario record as numbers and rates. What each input
// may hold comes from the input description that the input pages check
// against too; a value that breaks it is an InputError naming the input, the
// population and the cell.
#include <filesystem>
#include <string>

#include "model/InputRules.h"
#include "model/clsScenario.h"
#include "sim/Rate.h"
#include "sim/SimError.h"

namespace tamsic::sim {

// A value of the scenario that breaks its rule.
class InputError : public SimError {
 public:
  explicit InputError(InputFault fault) : SimError(fault.Text()), fault_(std::move(fault)) {}
  const InputFault& fault() const { return fault_; }

 private:
  InputFault fault_;
};

// Throws InputError for the first value of the scenario that breaks its rule.
void CheckInputs(const clsScenario& scenario);

class CellReader {
 public:
  CellReader(const clsScenario& scenario, std::filesystem::path folder)
      : scenario_(scenario), folder_(std::move(folder)) {}

  // A whole number in a text field; empty reads as `empty`.
  int Whole(Field field, int empty) const;
  // A number in a text field; empty reads as `empty`.
  double Number(Field field, double empty) const;
  bool Truth(Field field) const { return scenario_.Truth(field); }
  bool Checked(Field field) const { return scenario_.Check(field) != 0; }
  Rate TextRate(Field field, double empty) const;

  // A cell of a grid; a number or a file value outside the cell's rule is an
  // error, a function is clamped where its value is used.
  Rate GridRate(Field grid, std::size_t row, std::size_t col, double empty) const;
  std::string GridText(Field grid, std::size_t row, std::size_t col) const;
  // A whole number in a grid cell; empty reads as 0.
  int GridWhole(Field grid, std::size_t row, std::size_t col) const;

  const clsScenario& scenario() const { return scenario_; }
  // Whether a rate read so far is a function of the counts of a population.
  bool countsUsed() const { return countsUsed_; }

  InputPlace Where(Field grid, std::size_t row, std::size_t col) const;

 private:
  const Grid& CheckedGrid(Field grid, std::size_t row, std::size_t col) const;
  Rate ReadRate(const std::string& text, const ValueRule& rule, const InputPlace& place, double empty) const;

  const clsScenario& scenario_;
  std::filesystem::path folder_;
  mutable bool countsUsed_ = false;
};

}  // namespace tamsic::sim
