#include "st/STDesigns.h"

#include <pcg_random.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numeric>
#include <stdexcept>

#include "st/STTargets.h"

namespace tamsic {

namespace {

// Ten significant digits keep 0.1 + 0.2 from being written 0.30000000000000004.
std::string NumberText(double value) {
  if (value == 0) value = 0;  // no "-0"
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.10g", value);
  return buffer;
}

std::string ValueText(const STRange& range, double value) {
  return NumberText(STVariableTakesWholeNumbers(range.name) ? std::round(value) : value);
}

std::vector<double> Levels(const STRange& range) {
  if (range.steps < 2) throw std::invalid_argument("a range needs at least 2 steps: " + range.name);
  std::vector<double> levels;
  for (int k = 0; k < range.steps; ++k)
    levels.push_back(range.from + (range.to - range.from) * k / (range.steps - 1));
  return levels;
}

STItem Item(int baseline, const std::string& design, std::size_t number) {
  STItem item;
  item.ScenarioIndex = static_cast<std::int16_t>(baseline);
  item.Label = design + " " + std::to_string(number);
  return item;
}

void AddVariable(STItem& item, const STRange& range, double value) {
  item.Vars.push_back(range.name);
  item.Vals.push_back(ValueText(range, value));
}

// A shuffle of 0..n-1 of our own, since std::shuffle may differ between
// standard libraries and the same seed must give the same design everywhere.
std::vector<int> Permutation(int n, pcg32& random) {
  std::vector<int> order(static_cast<std::size_t>(n));
  std::iota(order.begin(), order.end(), 0);
  for (int i = n - 1; i > 0; --i)
    std::swap(order[static_cast<std::size_t>(i)], order[random(static_cast<std::uint32_t>(i + 1))]);
  return order;
}

// Uniform in (0, 1).
double Uniform(pcg32& random) { return (static_cast<double>(random()) + 0.5) / 4294967296.0; }

}  // namespace

std::vector<STItem> RangeItems(int baseline, const STRange& range) {
  std::vector<STItem> items;
  for (const double value : Levels(range)) {
    items.push_back(Item(baseline, "Range", items.size() + 1));
    AddVariable(items.back(), range, value);
  }
  return items;
}

std::vector<STItem> FactorialItems(int baseline, const std::vector<STRange>& ranges) {
  if (ranges.size() < 2 || ranges.size() > 3) throw std::invalid_argument("a factorial design needs 2 or 3 ranges");
  std::vector<std::vector<double>> levels;
  std::size_t combinations = 1;
  for (const STRange& range : ranges) {
    levels.push_back(Levels(range));
    combinations *= levels.back().size();
  }
  std::vector<STItem> items;
  for (std::size_t n = 0; n < combinations; ++n) {
    STItem item = Item(baseline, "Factorial", n + 1);
    // n written in the mixed radix of the ranges' level counts, the last range the fastest digit.
    std::vector<std::size_t> digits(ranges.size());
    std::size_t rest = n;
    for (std::size_t r = ranges.size(); r-- > 0;) {
      digits[r] = rest % levels[r].size();
      rest /= levels[r].size();
    }
    for (std::size_t r = 0; r < ranges.size(); ++r) AddVariable(item, ranges[r], levels[r][digits[r]]);
    items.push_back(std::move(item));
  }
  return items;
}

std::vector<STItem> LatinHypercubeItems(int baseline, const std::vector<STRange>& ranges, int samples,
                                        std::uint64_t seed) {
  if (ranges.empty() || ranges.size() > 10) throw std::invalid_argument("a Latin hypercube needs 1 to 10 ranges");
  if (samples < 1) throw std::invalid_argument("a Latin hypercube needs at least one sample");
  pcg32 random(seed);
  std::vector<STItem> items;
  for (int s = 1; s <= samples; ++s) items.push_back(Item(baseline, "LHS", static_cast<std::size_t>(s)));
  for (const STRange& range : ranges) {
    const std::vector<int> strata = Permutation(samples, random);
    const double width = (range.to - range.from) / samples;
    for (std::size_t s = 0; s < items.size(); ++s)
      AddVariable(items[s], range, range.from + width * (strata[s] + Uniform(random)));
  }
  return items;
}

bool STVariableTakesWholeNumbers(const std::string& name) {
  static constexpr std::string_view kWhole[] = {
      "MinAgeReproMales", "MinAgeReproFemales", "MaxAgeRepro",      "NumberPopulations", "InitPopSize",
      "KChangeYears",     "HarvestFirstYear",   "HarvestLastYear",  "HarvestInterval",   "SupplFirstYear",
      "SupplLastYear",    "SupplInterval",      "FemalesHarvested", "MalesHarvested",    "FemalesSupplemented",
      "MalesSupplemented", "EVConcordance?",    "Harvest?",         "Supplement?"};
  const auto base = AppliedBaseName(name);
  return base && std::find(std::begin(kWhole), std::end(kWhole), *base) != std::end(kWhole);
}

}  // namespace tamsic
