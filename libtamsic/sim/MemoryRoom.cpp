#include "sim/MemoryRoom.h"

#include <sys/resource.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <sstream>
#include <string>

namespace tamsic::sim {

namespace {

namespace fs = std::filesystem;

constexpr double kKiB = 1024.0;
// Control groups without a limit show one near 2^63.
constexpr double kNoLimit = 1e18;

// The number after `key` on its line of a "key value" file such as /proc/meminfo or memory.stat.
std::optional<double> Field(const fs::path& file, const std::string& key) {
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.starts_with(key)) continue;
    std::istringstream rest(line.substr(key.size()));
    double value = 0.0;
    if (rest >> value) return value;
  }
  return std::nullopt;
}

std::optional<double> Number(const fs::path& file) {
  std::ifstream in(file);
  double value = 0.0;
  if (in >> value) return value;
  return std::nullopt;  // also "max", a v2 group without a limit
}

struct GroupFiles {
  fs::path mount;
  const char* limit;
  const char* usage;
  const char* inactiveCache;  // the key of the page cache it may drop in memory.stat
};

// The room a group's limit leaves, and those of the groups above it: a
// group is held by its ancestors' limits too. Inside a container the group's
// own folder is the mount's root, so the root is tried as well.
double GroupRoom(const GroupFiles& files, fs::path group) {
  double room = std::numeric_limits<double>::infinity();
  for (;;) {
    const fs::path folder = files.mount / group.relative_path();
    const auto limit = Number(folder / files.limit);
    const auto usage = Number(folder / files.usage);
    if (limit && usage && *limit < kNoLimit) {
      const double cache = Field(folder / "memory.stat", std::string(files.inactiveCache) + " ").value_or(0.0);
      room = std::min(room, *limit - std::max(0.0, *usage - cache));
    }
    if (group == group.root_path() || group.empty()) return room;
    group = group.parent_path();
  }
}

// Lines of /proc/self/cgroup: "0::/path" in v2, "4:memory:/path" for the v1 memory controller.
double ControlGroupRoom() {
  std::ifstream in("/proc/self/cgroup");
  std::string line;
  double room = std::numeric_limits<double>::infinity();
  while (std::getline(in, line)) {
    const auto first = line.find(':');
    const auto second = line.find(':', first + 1);
    if (first == std::string::npos || second == std::string::npos) continue;
    const std::string controllers = line.substr(first + 1, second - first - 1);
    const fs::path group = line.substr(second + 1);
    if (controllers.empty())
      room = std::min(room, GroupRoom({"/sys/fs/cgroup", "memory.max", "memory.current", "inactive_file"}, group));
    else if ((',' + controllers + ',').find(",memory,") != std::string::npos)
      room = std::min(room, GroupRoom({"/sys/fs/cgroup/memory", "memory.limit_in_bytes", "memory.usage_in_bytes",
                                       "total_inactive_file"},
                                      group));
  }
  return room;
}

double AddressSpaceRoom() {
  rlimit limit{};
  if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
    return std::numeric_limits<double>::infinity();
  const double size = Field("/proc/self/status", "VmSize:").value_or(0.0) * kKiB;
  return static_cast<double>(limit.rlim_cur) - size;
}

}  // namespace

MemoryRoom MeasureMemoryRoom() {
  MemoryRoom room;
  room.baseline = Field("/proc/self/status", "VmRSS:").value_or(0.0) * kKiB;
  const double system = Field("/proc/meminfo", "MemAvailable:").value_or(kNoLimit / kKiB) * kKiB;
  const double left = std::min({system, ControlGroupRoom(), AddressSpaceRoom()});
  room.available = room.baseline + std::max(0.0, left);
  return room;
}

}  // namespace tamsic::sim
