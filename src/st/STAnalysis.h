#pragma once
// The results of a sensitivity test, read for its analysis: for each item
// of the scheme its ST scenario's yearly data (item i owns the scenario at
// position Count - NumItems + 1 + i) and the number each of its varied
// inputs took; for each baseline its own yearly data and the numbers of the
// inputs the items vary. Every varied input of the scheme has a value in
// every ST scenario: the item's own where it varies it, the baseline's
// elsewhere. An item without readable results stays in the list with the
// reason, so that the user is told.
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "engine/Engine.h"
#include "files/ProjectState.h"
#include "results/ResultChoices.h"
#include "results/YearlyData.h"
#include "st/STScheme.h"

namespace tamsic {

enum class STMissing {
  None,
  NoScenario,  // no ST scenario stands at the item's place: the scenarios were not generated
  NotRun,      // its yearly data file does not exist
  Unreadable   // the file is there but cannot be read
};

struct STVariedValue {
  std::string variable;
  std::string typed;              // as the item holds it (Windows-1252 bytes)
  std::optional<double> number;   // see STValueNumber
};

struct STItemResults {
  std::size_t item = 0;         // from 0
  std::string label;            // UTF-8
  std::size_t scenario = 0;     // its ST scenario's number, 0 when there is none
  std::string scenarioName;     // UTF-8
  std::size_t baseline = 0;     // the baseline's number, 0 when outside the collection
  std::vector<STVariedValue> values;
  std::optional<YearlyData> data;
  STMissing missing = STMissing::None;
  std::string detail;           // the missing file's path, or why the file cannot be read (UTF-8)
};

struct STBaselineResults {
  std::string name;                                          // UTF-8
  std::optional<YearlyData> data;                            // nothing when it cannot be read
  std::map<std::string, std::optional<double>> numbers;      // of the varied inputs, by variable
};

struct STAnalysisData {
  std::vector<STItemResults> items;
  std::map<std::size_t, STBaselineResults> baselines;  // by the baseline's number
  std::vector<std::string> variables;                  // varied anywhere, in order of first appearance
  std::string engineFault;  // why functions could not be worked out, when the engine is missing
  int years = 0;            // the most years of any item's scenario
  int userVariables = 0;    // the most user variables of any item's scenario (see YearlyDataShape)
  std::vector<PopulationEntry> populations;  // of the first item's scenario or baseline, no "Within"
};

// Reads every file anew. Functions are worked out by the engine; when it
// cannot be loaded, they stay without numbers and engineFault says why.
STAnalysisData ReadSTResults(const ProjectState& state, const STScheme& scheme, Engine& engine,
                             const IStringTable& strings);

// What to read of each scenario's yearly data.
struct STResultChoice {
  std::string variable = "N[extant]";  // a base label of ResultVariables
  int modifier = 0;                    // kMean, kStandardError or kStandardDeviation
  int year = 0;
  PopulationChoice population;         // a population's block or the metapopulation
};

// The chosen result in that data; nothing when the data have no such value
// (the year or the population is beyond the scenario, the variable has no column).
std::optional<double> STResult(const YearlyData& data, const STResultChoice& choice);

// The number of a varied input in an item's scenario: the item's own value
// when it varies it, else its baseline's.
std::optional<double> STInputNumber(const STAnalysisData& analysis, const STItemResults& item,
                                    const std::string& variable);

}  // namespace tamsic
