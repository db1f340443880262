// The deterministic report (.det): per population the life table (survival
// by sex and age, daughters per female), r, lambda, R0 and the generation
// time, the stable age and sex distribution, then the projection of N.
#include <algorithm>
#include <numeric>

#include "report/Outcome.h"
#include "report/Reports.h"
#include "report/TextFile.h"

namespace tamsic::report {

namespace {

double InitialSize(const sim::PopulationModel& p) {
  double n = p.initialSize;
  for (const auto& byAge : p.initial) n += std::accumulate(byAge.begin(), byAge.end(), 0.0);
  return n;
}

double Capacity(const sim::PopulationModel& p) {
  return p.capacity.isConstant() ? p.capacity.constant() : 1e300;  // a function of the run: no cap here
}

void Table(const sim::Model& m, const sim::LifeTable& t, int pop, TextFile& file) {
  file.line("Population " + std::to_string(pop + 1) + " (" + m.pops[static_cast<std::size_t>(pop)].label + ")");
  file.line("  Age;Survival females;Survival males;Daughters per female;Stable share females;Stable share males");
  for (int x = 0; x <= t.maxAge; ++x) {
    const auto a = static_cast<std::size_t>(x);
    const std::string females = x > 0 ? Num(t.stable[0][a - 1]) : "";
    const std::string males = x > 0 ? Num(t.stable[1][a - 1]) : "";
    file.line("  " + std::to_string(x) + ";" + Num(t.survival[0][a]) + ";" + Num(t.survival[1][a]) + ";" +
              Num(t.fecundity[a]) + ";" + females + ";" + males);
  }
  file.line("  r " + Num(t.r) + ", lambda " + Num(t.lambda) + ", R0 " + Num(t.R0) + ", generation time " +
            Num(t.generationTime));
  file.line();
}

}  // namespace

std::vector<double> ProjectAll(const sim::Model& m, const std::vector<sim::LifeTable>& tables, int years) {
  if (years <= 0) years = m.years;
  std::vector<double> total(static_cast<std::size_t>(years) + 1, 0.0);
  for (int p = 0; p < m.populations; ++p) {
    const auto& inputs = m.pops[static_cast<std::size_t>(p)];
    const std::vector<double> n =
        sim::Projection(tables[static_cast<std::size_t>(p)], InitialSize(inputs), Capacity(inputs), years);
    for (std::size_t y = 0; y < total.size(); ++y) total[y] += n[y];
  }
  return total;
}

void WriteDeterministicReport(const sim::Model& m, const std::vector<sim::LifeTable>& tables,
                              const std::string& path) {
  TextFile file(path);
  file.line("Tamsic deterministic report: scenario " + m.name);
  file.line("Mean rates, catastrophes averaged in; no EV, inbreeding depression or shortage of mates.");
  file.line();
  for (int p = 0; p < m.populations; ++p) Table(m, tables[static_cast<std::size_t>(p)], p, file);
  file.line("Deterministic projection (all populations, held at K): Year;N");
  const std::vector<double> n = ProjectAll(m, tables, 0);
  for (std::size_t y = 0; y < n.size(); ++y) file.line(std::to_string(y) + ";" + Num(n[y]));
  file.close();
}

}  // namespace tamsic::report
