#pragma once
// Reads the texts of a scenario record as numbers and rates, checking each
// against its valid range and naming the input (file key, population,
// column heading) in the error when it is not.
#include <filesystem>
#include <string>

#include "model/clsScenario.h"
#include "sim/Rate.h"

namespace tamsic::sim {

struct Range {
  double low;
  double high;
};
inline constexpr Range kPercent{0.0, 100.0};
inline constexpr Range kNonNegative{0.0, 1e300};

class CellReader {
 public:
  CellReader(const clsScenario& scenario, std::filesystem::path folder)
      : scenario_(scenario), folder_(std::move(folder)) {}

  // A whole number in a text field; empty reads as `empty`.
  int Whole(Field field, int low, int high, int empty) const;
  // A number in a text field; empty reads as `empty`.
  double Number(Field field, Range range, double empty) const;
  bool Truth(Field field) const { return scenario_.Truth(field); }
  bool Checked(Field field) const { return scenario_.Check(field) != 0; }
  Rate TextRate(Field field, Range range, double empty) const;

  // A cell of a grid; a constant outside the range is an error, a function
  // is clamped to it where it is used.
  Rate GridRate(Field grid, std::size_t row, std::size_t col, Range range, double empty) const;
  std::string GridText(Field grid, std::size_t row, std::size_t col) const;
  int GridWhole(Field grid, std::size_t row, std::size_t col, int low, int high) const;

  const clsScenario& scenario() const { return scenario_; }
  // Whether a rate read so far is a function of the counts of a population.
  bool countsUsed() const { return countsUsed_; }

  // "MortFemales, Northern ridge, Mortality From Age 0 to 1"
  std::string Where(Field grid, std::size_t row, std::size_t col) const;

 private:
  const Grid& CheckedGrid(Field grid, std::size_t row, std::size_t col) const;

  const clsScenario& scenario_;
  std::filesystem::path folder_;
  mutable bool countsUsed_ = false;
};

// "is 120, outside 0 .. 100"
std::string OutOfRange(double value, Range range);

}  // namespace tamsic::sim
