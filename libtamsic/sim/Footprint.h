#pragma once
// The bytes a worker thread holds for its iterations, its arrays counted at
// their capacity. A World and a record keep their arrays' capacity from one
// iteration to the next, so after an iteration the count is the most the
// thread has needed in any iteration so far.
#include <cstddef>

#include "sim/Record.h"
#include "sim/World.h"

namespace tamsic::sim {

std::size_t HeldBytes(const World& world);
std::size_t HeldBytes(const IterationRecord& record);

}  // namespace tamsic::sim
