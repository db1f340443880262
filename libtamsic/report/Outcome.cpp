#include "report/Outcome.h"

#include "files/OutputNames.h"

namespace tamsic::report {

std::string ScenarioFile(const std::string& project, const std::string& scenario, const std::string& extension) {
  return ScenarioFileName(project, scenario, extension);
}

double Outcome::deterministicR(int block) const {
  if (block < model.populations) return lifeTables[static_cast<std::size_t>(block)].r;
  double weighted = 0.0, total = 0.0;
  for (int p = 0; p < model.populations; ++p) {
    const double n = results.at(p, 0).all.mean();
    weighted += n * lifeTables[static_cast<std::size_t>(p)].r;
    total += n;
  }
  return total > 0 ? weighted / total : lifeTables.front().r;
}

std::string Outcome::blockName(int block) const {
  if (block >= model.populations) return "Metapopulation";
  return "Population " + std::to_string(block + 1) + " (" + model.pops[static_cast<std::size_t>(block)].label + ")";
}

}  // namespace tamsic::report
