#include "pages/MatesEquivalents.h"

#include <array>
#include <cmath>
#include <vector>

#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

constexpr std::size_t kMeasures = 3;  // rows 1..3: in the pool, siring, young per sire

// The one measure of population column c that changed to a plain number, if exactly one did.
std::optional<std::size_t> ChangedMeasure(const Grid& before, const Grid& after, std::size_t c) {
  std::optional<std::size_t> changed;
  for (std::size_t r = 1; r <= kMeasures && r < after.rows(); ++r) {
    const bool same = r < before.rows() && c < before.cols() && before.at(r, c) == after.at(r, c);
    if (same) continue;
    if (changed || !ExactNumber(after.at(r, c)) || *ExactNumber(after.at(r, c)) <= 0) return std::nullopt;
    changed = r;
  }
  return changed;
}

std::vector<std::pair<std::size_t, std::size_t>> Changes(const clsScenario& before, const clsScenario& after) {
  const Grid& old = before.GetGrid(F("gridDegMonop"));
  const Grid& now = after.GetGrid(F("gridDegMonop"));
  std::vector<std::pair<std::size_t, std::size_t>> changes;
  for (std::size_t c = 1; c < now.cols(); ++c)
    if (const auto r = ChangedMeasure(old, now, c)) changes.emplace_back(c, *r);
  return changes;
}

std::string Shown(double value) { return NumberToText(std::round(value * 100) / 100); }

}  // namespace

bool MatesMeasureChanged(const clsScenario& before, const clsScenario& after) {
  return !Changes(before, after).empty();
}

std::optional<std::string> ApplyMatesEquivalents(const clsScenario& before, clsScenario& after, std::size_t number,
                                                 const std::string& workFile, Engine& engine) {
  const auto changes = Changes(before, after);
  if (changes.empty()) return std::nullopt;
  const std::string loaded = engine.tcheckin(workFile + " {" + std::to_string(number) + "}", 0);
  if (loaded.rfind("Error", 0) == 0) return loaded;
  Grid grid = after.GetGrid(F("gridDegMonop"));
  std::optional<std::string> error;
  for (const auto& [c, r] : changes) {
    std::array<double, 4> values{};
    values[r - 1] = *ExactNumber(grid.at(r, c));
    values[3] = static_cast<double>(c);
    // Asking for a measure other than the known one makes the engine compute all three from it.
    const auto other = static_cast<std::int16_t>(r == 1 ? 1 : 0);
    const std::string reply = engine.findpolyg(other, values);
    const auto parts = Split(reply, ';');
    if (reply.rfind("Error", 0) == 0 || parts.size() < kMeasures) {
      if (!error) error = reply;
      continue;
    }
    for (std::size_t m = 1; m <= kMeasures; ++m)
      if (m != r) grid.at(m, c) = Shown(ExactNumber(parts[m - 1]).value_or(0));
  }
  after.SetGrid(F("gridDegMonop"), std::move(grid));
  return error;
}

}  // namespace tamsic
