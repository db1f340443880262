// The yearly data (.dat): heading lines, a line that is the scenario's name,
// then per population (and the metapopulation when there are several) one
// line per year 0..NumYears: the year, the 30 result variables
// (P[survive], its SE, P[extinction], its SE, Det.r, Stoch.r with SE and SD,
// N[extant], N[all], GeneDiv, Inbreeding, #Alleles, #Lethals and TE, each
// with SE and SD, and MedianTE), then mean, SE and SD over all iterations of
// each user variable: PS1, PS2, ... in a population's block and GS1, GS2, ...
// in the metapopulation's, 0 where the block has no such variable.
#include <cmath>

#include "report/Outcome.h"
#include "report/TextFile.h"

namespace tamsic::report {

namespace {

void Triple(std::string& line, const sim::Moments& m) {
  line += ";" + Num(m.mean()) + ";" + Num(m.se()) + ";" + Num(m.sd());
}

std::string YearLine(const Outcome& o, int block, int year) {
  const sim::Results& r = o.results;
  const sim::YearStats& s = r.at(block, year);
  const double n = r.iterations();
  const double survive = 1.0 - r.extinctBy(block, year) / n;
  const double extinction = s.firstExtinctions / n;
  std::string line = std::to_string(year);
  line += ";" + Num(survive) + ";" + Num(std::sqrt(survive * (1 - survive) / n));
  line += ";" + Num(extinction) + ";" + Num(std::sqrt(extinction * (1 - extinction) / n));
  line += ";" + Num(o.deterministicR(block));
  Triple(line, s.stochasticR);
  Triple(line, s.extant);
  Triple(line, s.all);
  Triple(line, s.geneDiversity);
  Triple(line, s.inbreeding);
  Triple(line, s.alleles);
  Triple(line, s.lethals);
  Triple(line, r.extinctionYears(block, year));
  line += ";" + std::to_string(r.medianExtinction(block, year));
  for (int v = 0; v < r.userVariables(); ++v) Triple(line, r.user(block, year, v));
  return line;
}

}  // namespace

void WriteYearlyData(const Outcome& o, const std::string& path) {
  TextFile file(path);
  file.line("$ Tamsic yearly data. Per population, then the metapopulation: one line per year,");
  file.line("$ year;P[survive];SE;P[extinction];SE;Det.r;Stoch.r;SE;SD;N[extant];SE;SD;N[all];SE;SD;"
            "GeneDiv;SE;SD;Inbreeding;SE;SD;#Alleles;SE;SD;#Lethals;SE;SD;TE;SE;SD;MedianTE;Var1;SE;SD;...");
  file.line("$ Iterations " + std::to_string(o.results.iterations()) + ", years " + std::to_string(o.model.years) +
            ", seed " + std::to_string(o.seed));
  file.line(o.model.name);
  for (int b = 0; b < o.results.blocks(); ++b)
    for (int y = 0; y <= o.model.years; ++y) file.line(YearLine(o, b, y));
  file.close();
}

}  // namespace tamsic::report
