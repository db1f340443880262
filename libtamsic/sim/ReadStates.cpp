#include "sim/ReadStates.h"

#include "model/TextSplit.h"

namespace tamsic::sim {

void ReadStateVariables(const CellReader& in, Model& m) {
  const Field individual = F("gridIndividualStateParams");
  for (std::size_t k = 1; k <= static_cast<std::size_t>(in.Whole(F("txtNumIndividualStateParams"), 0)); ++k) {
    IndividualStateVar v;
    v.name = std::string(Trim(in.GridText(individual, 1, k)));
    v.initial = in.GridRate(individual, 2, k, 0.0);
    v.birth = in.GridRate(individual, 3, k, 0.0);
    if (!Trim(in.GridText(individual, 4, k)).empty()) v.transition = in.GridRate(individual, 4, k, 0.0);
    m.individualStates.push_back(std::move(v));
  }
  const auto populationStates = static_cast<std::size_t>(in.Whole(F("txtNumPopStateVars"), 0));
  for (std::size_t p = 0; p < m.pops.size(); ++p)
    for (std::size_t k = 1; k <= populationStates; ++k)
      m.pops[p].states.push_back(in.GridRate(F("gridPopLabels"), p + 1, k + 1, 0.0));
  for (std::size_t k = 1; k <= static_cast<std::size_t>(in.Whole(F("txtNumGlobalVars"), 0)); ++k)
    m.globalStates.push_back(in.GridRate(F("gridGlobalVars"), 1, k, 0.0));
}

}  // namespace tamsic::sim
