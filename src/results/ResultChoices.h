#pragma once
// The choices of the results tab that do not depend on a variable: which
// blocks of the yearly data (a population, the metapopulation, or each
// population within the system) and which years.
#include <string>
#include <vector>

#include "model/Messages.h"
#include "model/clsScenario.h"
#include "results/YearlyData.h"

namespace tamsic {

// The titles of a scenario's blocks: each population's label from PopLabels
// (or "Population n" when it has none), then "Metapopulation" when there
// are several populations. UTF-8.
std::vector<std::string> BlockTitles(const clsScenario& scenario, const IStringTable& strings);

struct PopulationChoice {
  enum class Kind {
    Population,      // one population, by its block
    Metapopulation,  // the whole system (the only population when there is one)
    Within           // every population on its own
  };
  Kind kind = Kind::Metapopulation;
  int block = 0;
};

// The blocks a choice means for a scenario of that shape; none when the
// chosen population is beyond the scenario's populations.
std::vector<int> ChosenBlocks(const PopulationChoice& choice, const YearlyDataShape& shape);

// The entries of cboPops for a scenario, with the choice each stands for:
// its populations, then "Metapopulation" and "Within population" when there
// are several.
struct PopulationEntry {
  std::string text;
  PopulationChoice choice;
};
std::vector<PopulationEntry> PopulationEntries(const clsScenario& scenario, const IStringTable& strings);

// Years of a table: step 0 is the final year only; a step k > 0 is every
// k-th year from 0, and the final year.
std::vector<int> ChosenYears(int step, int years);
// The steps cboYears offers, and the text of each.
std::vector<int> YearSteps();
std::string YearStepText(int step, const IStringTable& strings);

}  // namespace tamsic
