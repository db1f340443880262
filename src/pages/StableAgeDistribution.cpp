#include "pages/StableAgeDistribution.h"

#include <algorithm>
#include <vector>

#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

bool IsError(const std::string& reply) { return reply.rfind("Error", 0) == 0; }

// One population's row from "f1;f2;...:m1;m2;...", ages from column 1.
void FillRow(Grid& grid, std::size_t row, std::string_view counts) {
  const auto ages = Split(counts, ';');
  for (std::size_t c = 1; c < grid.cols(); ++c) grid.at(row, c) = c <= ages.size() ? std::string(ages[c - 1]) : "0";
}

}  // namespace

std::optional<std::string> ApplyStableAgeDistribution(clsScenario& scenario, std::size_t number,
                                                      const std::string& workFile, Engine& engine) {
  // This call site separates the path and the brace with one blank.
  const std::string loaded = engine.tcheckin(workFile + " {" + std::to_string(number) + "}", 0);
  if (IsError(loaded)) return loaded;
  const Grid& sizes = scenario.GetGrid(F("gridInitPopStable"));
  Grid females = scenario.GetGrid(F("gridInitPopFemale"));
  Grid males = scenario.GetGrid(F("gridInitPopMale"));
  const std::size_t populations = std::min({sizes.rows(), females.rows(), males.rows()});
  for (std::size_t p = 1; p < populations; ++p) {
    const auto size = static_cast<std::int16_t>(std::clamp(LeadingInt(sizes.at(p, 1)), 0, 30000));
    const std::string reply = engine.agedist(size);
    if (IsError(reply)) return reply;
    const auto sexes = Split(reply, ':');
    FillRow(females, p, sexes[0]);
    FillRow(males, p, sexes.size() > 1 ? sexes[1] : std::string_view());
  }
  scenario.SetGrid(F("gridInitPopFemale"), std::move(females));
  scenario.SetGrid(F("gridInitPopMale"), std::move(males));
  return std::nullopt;
}

}  // namespace tamsic
