#pragma once
// Everything the result files of one scenario are made from.
#include <cstdint>
#include <string>
#include <vector>

#include "sim/LifeTable.h"
#include "sim/Model.h"
#include "sim/Results.h"

namespace tamsic::report {

struct Outcome {
  const sim::Model& model;
  const sim::Results& results;
  const std::vector<sim::LifeTable>& lifeTables;  // one per population
  std::uint64_t seed;
  std::string date;  // when the run started, "2026-11-22 12:00"

  // Det.r of a block: the population's, or for the metapopulation the mean
  // of the populations' weighted by their initial sizes.
  double deterministicR(int block) const;
  // "Population 1 (Northern ridge)" or "Metapopulation".
  std::string blockName(int block) const;
};

// File names in the current directory: project title and scenario name, both trimmed.
std::string ScenarioFile(const std::string& project, const std::string& scenario, const std::string& extension);

void WriteYearlyData(const Outcome& outcome, const std::string& path);
void WriteRunTable(const Outcome& outcome, const std::string& path);
void WriteOutputReport(const Outcome& outcome, const std::string& path);
// The project summary with the scenario's line replaced (or added): writes to
// `path` the lines of the summary at `from`, when there is one, but this
// scenario's, then this scenario's new line.
void UpdateSummary(const Outcome& outcome, const std::string& from, const std::string& path);
// The summary line of the scenario (without the line end): the final year of
// the metapopulation, or of the only population.
std::string SummaryLine(const Outcome& outcome);

}  // namespace tamsic::report
