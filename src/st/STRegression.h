#pragma once
// Which varied inputs matter most: standardised regression coefficients of
// a result on the inputs over the ST scenarios. Each input and the result
// are turned into z-scores (mean 0, standard deviation 1) and the result is
// fitted to the inputs by least squares, so the coefficient of an input is
// how many standard deviations the result moves when that input moves by
// one of its own, the others held still; R-squared is the share of the
// result's variance the inputs explain together.
//
// Inputs that do not vary are left out. Inputs that move in step with an
// earlier one (the same input of several populations changed together) can
// not be told apart, so they are ranked as one group under the first one's
// sign. A fit needs more scenarios than inputs plus one, or its R-squared
// would be 1 whatever the result.
#include <string>
#include <vector>

namespace tamsic {

struct RegressionData {
  std::vector<std::string> inputs;
  std::vector<std::vector<double>> rows;  // one per scenario, a value per input
  std::vector<double> results;            // one per scenario
};

struct RankedInput {
  std::vector<std::string> names;  // one input, or a group that moves in step
  double coefficient = 0;
};

struct Ranking {
  enum class Outcome {
    Ranked,
    NothingVaries,    // no input varies
    TooFewScenarios,  // scenarios <= inputs + 1
    ResultConstant,   // the result is the same everywhere
    Dependent         // an input follows from several others
  };
  Outcome outcome = Outcome::NothingVaries;
  std::vector<RankedInput> inputs;        // largest absolute coefficient first
  std::vector<std::string> constant;      // left out: they do not vary
  double rSquared = 0;
  int scenarios = 0;
  int needed = 0;                         // scenarios needed for the inputs that vary
};

Ranking RankInputs(const RegressionData& data);

}  // namespace tamsic
