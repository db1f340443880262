#pragma once
// The scenario checked in by tcheckin, kept for agedist and detGraphValues
// until the next check-in or tamsdllclose. This is engine state that the
// calling contract keeps between calls; it lives in this one class, behind
// a lock.
#include <array>
#include <cstdint>
#include <string>

namespace tamsic::sim {

// "path{n}" or "path {n}": loads and checks scenario n; flag 1 also writes
// the input report (.inp) and the deterministic report (.det). The reply.
std::string CheckIn(const std::string& text, std::int32_t flag);
// The stable age and sex distribution of population 1 for `size`: females by age ";", ":", males.
std::string AgeDistribution(int size);
// The deterministic projection of N (all populations) by year, joined by ";".
std::string DeterministicValues(const std::string& text, std::int32_t years);
// The three mate-monopolization measures of population values[3] (from 1; 0
// for the first) at K: all three computed from the first measure given other
// than the one at `index`, joined by ";" with the population's number.
std::string MatesEquivalents(int index, const std::array<double, 4>& values);
// Forgets the checked-in scenario.
void ForgetCheckIn();

}  // namespace tamsic::sim
