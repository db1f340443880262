#pragma once
// Designs of sensitivity tests, written as ordinary ST items so that the
// project file holds them like any other: a range of one variable, a full
// factorial over two or three ranges, and a Latin hypercube sample. Values are
// plain number texts, rounded for variables that take whole numbers; labels
// are "Range 1", "Factorial 1", "LHS 1", ...
#include <cstdint>
#include <string>
#include <vector>

#include "st/STScheme.h"

namespace tamsic {

struct STRange {
  std::string name;
  double from = 0;
  double to = 0;
  int steps = 2;
};

// `steps` evenly spaced values from `from` to `to`, both included; one item per
// value. std::invalid_argument for fewer than 2 steps.
std::vector<STItem> RangeItems(int baseline, const STRange& range);

// Every combination of the ranges' values (the first range varying slowest),
// one item per combination with one variable per range.
// std::invalid_argument unless there are 2 or 3 ranges of at least 2 steps.
std::vector<STItem> FactorialItems(int baseline, const std::vector<STRange>& ranges);

// `samples` items: each range cut into `samples` equal strata, one value drawn
// uniformly within each stratum, the strata put in an order of their own for
// each variable. The same seed gives the same items. std::invalid_argument
// unless there are 1 to 10 ranges and at least one sample.
std::vector<STItem> LatinHypercubeItems(int baseline, const std::vector<STRange>& ranges, int samples,
                                        std::uint64_t seed);

// Whether the variable takes whole numbers only (ages, years, counts and
// switches), so that designs round its values.
bool STVariableTakesWholeNumbers(const std::string& name);

}  // namespace tamsic
