#include "results/ResultChoices.h"

#include "files/TextCodec.h"
#include "model/TextSplit.h"

namespace tamsic {

std::vector<std::string> BlockTitles(const clsScenario& scenario, const IStringTable& strings) {
  const YearlyDataShape shape = ShapeOf(scenario);
  const Grid& labels = scenario.GetGrid(F("gridPopLabels"));
  std::vector<std::string> titles;
  for (int p = 1; p <= shape.populations; ++p) {
    const bool labelled = static_cast<std::size_t>(p) < labels.rows() && labels.cols() > 1 &&
                          !Trim(labels.at(p, 1)).empty();
    titles.push_back(labelled ? Cp1252ToUtf8(Trim(labels.at(p, 1)))
                              : strings.text(207) + " " + std::to_string(p));
  }
  if (shape.populations > 1) titles.push_back(strings.text(1924));
  return titles;
}

std::vector<int> ChosenBlocks(const PopulationChoice& choice, const YearlyDataShape& shape) {
  switch (choice.kind) {
    case PopulationChoice::Kind::Population:
      if (choice.block >= 0 && choice.block < shape.populations) return {choice.block};
      return {};
    case PopulationChoice::Kind::Metapopulation: return {shape.metapopulationBlock()};
    case PopulationChoice::Kind::Within: {
      std::vector<int> blocks;
      for (int b = 0; b < shape.populations; ++b) blocks.push_back(b);
      return blocks;
    }
  }
  return {};
}

std::vector<PopulationEntry> PopulationEntries(const clsScenario& scenario, const IStringTable& strings) {
  const auto titles = BlockTitles(scenario, strings);
  const int populations = ShapeOf(scenario).populations;
  std::vector<PopulationEntry> entries;
  for (int b = 0; b < populations; ++b)
    entries.push_back({titles[b], {PopulationChoice::Kind::Population, b}});
  if (populations > 1) {
    entries.push_back({titles.back(), {PopulationChoice::Kind::Metapopulation, populations}});
    entries.push_back({strings.text(1925), {PopulationChoice::Kind::Within, 0}});
  }
  return entries;
}

std::vector<int> ChosenYears(int step, int years) {
  std::vector<int> chosen;
  if (step > 0)
    for (int y = 0; y < years; y += step) chosen.push_back(y);
  chosen.push_back(years);
  return chosen;
}

std::vector<int> YearSteps() { return {0, 1, 5, 10, 25, 50}; }

std::string YearStepText(int step, const IStringTable& strings) {
  if (step == 0) return strings.text(1930);
  if (step == 1) return strings.text(1931);
  return strings.text(1932) + std::to_string(step) + strings.text(1933);
}

}  // namespace tamsic
