#include "model/MemoryWords.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace tamsic {

std::string MemoryAmount(double bytes) {
  static const char* const units[] = {"bytes", "KB", "MB", "GB", "TB", "PB"};
  std::size_t unit = 0;
  bytes = std::max(0.0, bytes);
  // 999.5 MB rounds to "1000 MB" at three figures; it is told as "0.98 GB" instead.
  while (bytes >= 999.5 && unit + 1 < std::size(units)) bytes /= 1024.0, ++unit;
  char text[32];
  const int decimals = unit == 0 || bytes >= 99.95 ? 0 : bytes >= 9.995 ? 1 : 2;
  std::snprintf(text, sizeof text, "%.*f %s", decimals, bytes, units[unit]);
  return text;
}

std::string MemoryShortfall(double neededBytes, double availableBytes) {
  return "needs about " + MemoryAmount(neededBytes) + " at its peak, more than the " + MemoryAmount(availableBytes) +
         " this machine has available; lower its iterations' size (K) or the threads";
}

}  // namespace tamsic
