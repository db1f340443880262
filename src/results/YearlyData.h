#pragma once
// The yearly data of a scenario's run (P_S.dat) as numbers: one block per
// population, then the metapopulation when there are several; in each block
// one line per year from 0 to the scenario's number of years; in each line
// the year (field 0), the 30 result variables (fields 1-30) and the mean, SE
// and SD of each user variable.
//
// Result variables 31 and 32, P[extinct] and its SE, have no columns of
// their own: P[extinct] is the share of iterations extinct by that year,
// 1 - P[survive], and its SE is the SE of P[survive] (the same binomial
// spread). Variables 33-62 (Var1..Var10 with their SE and SD) are the three
// fields per user variable after field 30.
#include <cstddef>
#include <filesystem>
#include <istream>
#include <optional>
#include <vector>

#include "model/clsScenario.h"

namespace tamsic {

inline constexpr int kYearField = 0;
inline constexpr int kFixedFields = 31;  // the year and result variables 1-30

// The size of the data, from the scenario's inputs.
struct YearlyDataShape {
  int populations = 1;
  int years = 0;
  int userVariables = 0;  // the larger of the global and population state variables, at most 10

  int blocks() const { return populations > 1 ? populations + 1 : populations; }
  int fields() const { return kFixedFields + 3 * userVariables; }
  // The block of the whole system: the metapopulation, or the only population.
  int metapopulationBlock() const { return populations > 1 ? populations : 0; }
};

YearlyDataShape ShapeOf(const clsScenario& scenario);

class YearlyData {
 public:
  explicit YearlyData(YearlyDataShape shape);

  const YearlyDataShape& shape() const { return shape_; }
  // A field that the file did not hold (user variables of a shorter line) is NaN.
  double at(int block, int year, int field) const { return values_.at(index(block, year, field)); }
  void set(int block, int year, int field, double value) { values_.at(index(block, year, field)) = value; }

  // The value of a result variable (1-62) in a block and year; nothing when
  // the variable has no column here.
  std::optional<double> Value(int block, int year, int number) const;

 private:
  std::size_t index(int block, int year, int field) const;

  YearlyDataShape shape_;
  std::vector<double> values_;
};

// Reads the file of a scenario. The data begin after the line that is the
// scenario's name, which must be among the first 31 lines; each block then
// has one line per year whose first field is that year, with at least the 31
// fixed fields, every field a number. Throws FileError naming what is wrong.
YearlyData LoadYearlyData(const std::filesystem::path& file, const clsScenario& scenario);
// The same from a stream; `origin` names it in the errors.
YearlyData ReadYearlyData(std::istream& in, const std::string& origin, const clsScenario& scenario);

}  // namespace tamsic
