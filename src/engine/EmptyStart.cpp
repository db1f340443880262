#include "engine/EmptyStart.h"

#include "model/TextNumbers.h"

namespace tamsic {

std::vector<std::string> PopulationsStartingEmpty(const clsScenario& scenario) {
  if (scenario.Check(F("chkGenMgtImportStudbookFile")) == 1) return {};
  const int populations = LeadingInt(scenario.Text(F("txtNumPop")));
  const Grid& labels = scenario.GetGrid(F("gridPopLabels"));
  const bool stable = scenario.Truth(F("optStartWith_0"));
  std::vector<std::string> empty;
  for (int p = 1; p <= populations; ++p) {
    const auto row = static_cast<std::size_t>(p);
    double size = 0;
    if (stable) {
      const Grid& sizes = scenario.GetGrid(F("gridInitPopStable"));
      if (row < sizes.rows() && sizes.cols() > 1) size = LeadingNumber(sizes.at(row, 1));
    } else {
      for (const Field grid : {F("gridInitPopFemale"), F("gridInitPopMale")}) {
        const Grid& ages = scenario.GetGrid(grid);
        for (std::size_t c = 1; row < ages.rows() && c < ages.cols(); ++c) size += LeadingNumber(ages.at(row, c));
      }
    }
    if (size < 1) empty.push_back(row < labels.rows() && labels.cols() > 1 ? labels.at(row, 1) : std::to_string(p));
  }
  return empty;
}

}  // namespace tamsic
