#pragma once
// The two reports made on demand by tcheckin: the inputs of a scenario in
// readable form (.inp), and its life tables with their deterministic rates,
// stable distributions and projection (.det).
#include <string>
#include <vector>

#include "model/clsScenario.h"
#include "sim/LifeTable.h"
#include "sim/Model.h"

namespace tamsic::report {

void WriteInputReport(const clsScenario& scenario, const std::string& path);
void WriteDeterministicReport(const sim::Model& model, const std::vector<sim::LifeTable>& tables,
                              const std::string& path);
// N of all populations together by year 0..years (the scenario's years when 0 or less).
std::vector<double> ProjectAll(const sim::Model& model, const std::vector<sim::LifeTable>& tables, int years);

}  // namespace tamsic::report
