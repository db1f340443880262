#pragma once
// How an amount of memory is told to people, shared by the engine (its
// refusal of a run) and the front ends (the estimate before a run), so that
// both say the same figure the same way.
#include <string>

namespace tamsic {

// "812 bytes", "350 MB", "38.2 GB": three significant figures at most, powers of 1024.
std::string MemoryAmount(double bytes);

// Why a scenario cannot start, after its name: "needs about 38.2 GB at its peak,
// more than the 15.6 GB this machine has available; lower its iterations' size
// (K) or the threads".
std::string MemoryShortfall(double neededBytes, double availableBytes);

}  // namespace tamsic
