#pragma once
// The date of a run to the minute, as the output report shows it.
#include <string>

namespace tamsic::sim {

// "2026-11-22 12:00": now in local time, or, when SOURCE_DATE_EPOCH is set
// (seconds since 1970, the variable that build and test tools set so that
// files made at different times compare equal), that time in UTC. Throws
// SimError when the variable holds no such number.
std::string RunDate();

}  // namespace tamsic::sim
