#include "sim/RunMonitor.h"

namespace tamsic::sim {

RunMonitor& RunMonitor::get() {
  static RunMonitor monitor;
  return monitor;
}

}  // namespace tamsic::sim
