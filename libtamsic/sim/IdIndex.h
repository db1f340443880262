#pragma once
// The living individuals by id, for the functions that name another
// individual (IIS1(MATE), KIN(ID;DAM)). Records move whenever someone dies,
// so the index is made again, from every population and everyone on the
// move, when it is first asked after it was told that things changed.
#include <cstdint>
#include <optional>
#include <vector>

#include "sim/World.h"

namespace tamsic::sim {

class IdIndex {
 public:
  void invalidate() { fresh_ = false; }
  // The genome slot of the living individual with this id, if there is one.
  std::optional<std::uint32_t> slotOf(const World& world, std::uint32_t id);

 private:
  void build(const World& world);
  void insert(const Individual& ind);

  std::vector<std::uint64_t> table_;  // id in the high half, slot in the low one; 0 is free
  int shift_ = 64;
  bool fresh_ = false;
};

}  // namespace tamsic::sim
