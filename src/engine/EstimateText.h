#pragma once
// The estimate of a run told to people, for the command line and the
// messages of the desktop program: "about 2 min 10 s and 350 MB at the peak,
// from a pilot of 12 iterations". Names stay in the engine's bytes.
#include <string>
#include <vector>

#include "engine/RunEstimate.h"

namespace tamsic {

// "under 1 s", "42 s", "2 min 10 s", "3 h 5 min", "2 days 4 h".
std::string Duration(double seconds);

// The whole run: "about 2 min 10 s and 350 MB at the peak, from a pilot of 12 iterations".
std::string DescribeEstimate(const RunEstimate& estimate);

// One scenario: "about 43 s and 120 MB at the peak".
std::string DescribeScenario(const ScenarioEstimate& scenario);

// For each scenario the run would refuse: "scenario "Big" needs about 38.2 GB at its peak, more than ...".
std::vector<std::string> Refusals(const RunEstimate& estimate);

}  // namespace tamsic
