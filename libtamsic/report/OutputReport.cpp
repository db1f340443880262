// The text report (.out): the run's settings, the deterministic rates, and
// for each population and the metapopulation a table every 10 years and a
// final summary in words and numbers.
#include <algorithm>

#include "report/Outcome.h"
#include "report/TextFile.h"

namespace tamsic::report {

namespace {

std::string Pad(std::string text, std::size_t width) {
  if (text.size() < width) text.insert(0, width - text.size(), ' ');
  return text;
}

void Rates(const Outcome& o, TextFile& file) {
  file.line("Deterministic rates (life table of the mean rates):");
  for (int p = 0; p < o.model.populations; ++p) {
    const sim::LifeTable& t = o.lifeTables[static_cast<std::size_t>(p)];
    file.line("  " + o.blockName(p) + ": r " + Num(t.r) + ", lambda " + Num(t.lambda) + ", R0 " + Num(t.R0) +
              ", generation time " + Num(t.generationTime));
  }
  file.line();
}

// The final year's mean of each state variable of the block: PS1, ... of a population, GS1, ... of the metapopulation.
void States(const Outcome& o, int block, TextFile& file) {
  const bool population = block < o.model.populations;
  const int count = population ? o.model.populationStates() : static_cast<int>(o.model.globalStates.size());
  std::string line;
  for (int v = 0; v < count; ++v) {
    const sim::Moments& m = o.results.user(block, o.model.years, v);
    line += (line.empty() ? "" : ", ") + std::string(population ? "PS" : "GS") + std::to_string(v + 1) + " " +
            Num(m.mean()) + " (SD " + Num(m.sd()) + ")";
  }
  if (!line.empty()) file.line("State variables in the final year: " + line + ".");
}

void Block(const Outcome& o, int block, TextFile& file) {
  const sim::Results& r = o.results;
  file.line(o.blockName(block));
  file.line("   Year  P[survive]   N[extant]          SD     GeneDiv  Inbreeding");
  for (int y = 0; y <= o.model.years; y = y < o.model.years ? std::min(y + 10, o.model.years) : y + 1) {
    const sim::YearStats& s = r.at(block, y);
    const double survive = 1.0 - static_cast<double>(r.extinctBy(block, y)) / r.iterations();
    file.line(Pad(std::to_string(y), 7) + Pad(Num(survive), 12) + Pad(Num(s.extant.mean()), 12) +
              Pad(Num(s.extant.sd()), 12) + Pad(Num(s.geneDiversity.mean()), 12) + Pad(Num(s.inbreeding.mean()), 12));
  }
  const int last = o.model.years;
  const sim::YearStats& s = r.at(block, last);
  const int extinct = r.extinctBy(block, last);
  file.line("In " + std::to_string(extinct) + " of " + std::to_string(r.iterations()) +
            " iterations the population went extinct within " + std::to_string(last) + " years (P[extinct] " +
            Num(static_cast<double>(extinct) / r.iterations()) + ")" +
            (extinct > 0 ? ", on average in year " + Num(r.extinctionYears(block, last).mean()) : std::string()) +
            ".");
  file.line("Final size of the extant populations " + Num(s.extant.mean()) + " (SD " + Num(s.extant.sd()) +
            "), of all " + Num(s.all.mean()) + " (SD " + Num(s.all.sd()) + "); gene diversity " +
            Num(s.geneDiversity.mean()) + ", inbreeding " + Num(s.inbreeding.mean()) + ", alleles per locus " +
            Num(s.alleles.mean()) + ".");
  if (r.medianExtinction(block, last) > 0)
    file.line("Half of the iterations were extinct by year " + std::to_string(r.medianExtinction(block, last)) + ".");
  States(o, block, file);
  file.line();
}

}  // namespace

void WriteOutputReport(const Outcome& o, const std::string& path) {
  TextFile file(path);
  file.line("Tamsic simulation report");
  file.line("Scenario: " + o.model.name);
  file.line("Run: " + o.date);
  file.line("Random seed: " + std::to_string(o.seed));
  file.line("Iterations: " + std::to_string(o.results.iterations()) + ", years: " + std::to_string(o.model.years) +
            ", populations: " + std::to_string(o.model.populations));
  file.line();
  Rates(o, file);
  for (int b = 0; b < o.results.blocks(); ++b) Block(o, b, file);
  file.close();
}

}  // namespace tamsic::report
