#pragma once
// How much memory a run may take. The process as it stands (its resident
// set) is the baseline every figure of a run starts from; it may grow by the
// least of what the system has available (MemAvailable, which counts the
// cache the kernel can drop), what its control group's limit leaves (v2 or
// v1, the group and those above it, dropping cache counted too) and what its
// address-space limit (RLIMIT_AS) leaves of its address space. A figure the
// system does not give limits nothing.
namespace tamsic::sim {

struct MemoryRoom {
  double baseline = 0.0;   // bytes resident now
  double available = 0.0;  // the most the process may hold: the baseline and the room left
};

MemoryRoom MeasureMemoryRoom();

}  // namespace tamsic::sim
