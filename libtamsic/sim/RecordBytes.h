#pragma once
// An iteration's record as bytes, so that a process of a team can send it to
// rank 0. Both ends are this program on machines of one kind, so numbers go
// as they lie in memory and a record comes back exactly as it was.
#include <string>
#include <string_view>

#include "sim/Record.h"

namespace tamsic::sim {

std::string Pack(const IterationRecord& record);
// Throws SimError when the bytes are not a whole record.
void Unpack(std::string_view bytes, IterationRecord& record);

}  // namespace tamsic::sim
