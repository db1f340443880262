#include "engine/EstimateText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "model/MemoryWords.h"

namespace tamsic {

namespace {

// "2 min 10 s": a large unit and the next one, both whole.
std::string TwoUnits(long long total, long long big, const char* bigName, long long small, const char* smallName) {
  const long long second = (total % big) / small;
  char text[64];
  if (second > 0) std::snprintf(text, sizeof text, "%lld %s %lld %s", total / big, bigName, second, smallName);
  else std::snprintf(text, sizeof text, "%lld %s", total / big, bigName);
  return text;
}

std::string PeakAndTime(double seconds, double peakBytes) {
  return (seconds < 1.0 ? "" : "about ") + Duration(seconds) + " and " + MemoryAmount(peakBytes) + " at the peak";
}

}  // namespace

std::string Duration(double seconds) {
  if (seconds < 1.0) return "under 1 s";
  const auto s = std::llround(seconds);
  if (s < 60) return std::to_string(s) + " s";
  if (s < 3600) return TwoUnits(s, 60, "min", 1, "s");
  if (s < 86400) return TwoUnits(s, 3600, "h", 60, "min");
  return TwoUnits(s, 86400, s < 2 * 86400 ? "day" : "days", 3600, "h");
}

std::string DescribeEstimate(const RunEstimate& e) {
  // Nothing is piloted when no scenario would fit: only the model's figure is known.
  if (e.piloted == 0) return "about " + MemoryAmount(e.peakBytes) + " at the peak by the model, nothing piloted";
  return PeakAndTime(e.seconds, e.peakBytes) + ", from a pilot of " + std::to_string(e.piloted) +
         (e.piloted == 1 ? " iteration" : " iterations");
}

std::string DescribeScenario(const ScenarioEstimate& s) { return PeakAndTime(s.seconds, s.peakBytes); }

std::vector<std::string> Refusals(const RunEstimate& e) {
  std::vector<std::string> lines;
  for (const ScenarioEstimate* s : e.refused())
    lines.push_back("scenario \"" + s->name + "\" " +
                    MemoryShortfall(std::max(s->peakBytes, s->checkedBytes), e.availableBytes));
  return lines;
}

}  // namespace tamsic
