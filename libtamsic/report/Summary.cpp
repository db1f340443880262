// The project summary (.sum): a heading and one line per scenario run, the
// last run of a scenario replacing its earlier line.
#include <fstream>
#include <vector>

#include "model/TextSplit.h"
#include "report/Outcome.h"
#include "report/TextFile.h"

namespace tamsic::report {

namespace {

constexpr const char* kHeading =
    "$Scenario;Years;Iterations;Det.r;Stoch.r;SD(r);P(extinct);N[extant];SD;N[all];SD;GeneDiv;SD;"
    "Inbreeding;#Alleles;MedianTE;MeanTE";

std::vector<std::string> OtherLines(const std::string& path, const std::string& scenario) {
  std::vector<std::string> kept;
  std::ifstream in(path, std::ios::binary);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (Trim(line).empty() || line.front() == '$') continue;
    if (Trim(line.substr(0, line.find(';'))) != Trim(scenario)) kept.push_back(line);
  }
  return kept;
}

}  // namespace

std::string SummaryLine(const Outcome& o) {
  const sim::Results& r = o.results;
  const int block = r.blocks() - 1;
  const int year = o.model.years;
  const sim::YearStats& s = r.at(block, year);
  const double extinct = static_cast<double>(r.extinctBy(block, year)) / r.iterations();
  // Growth over all years of all iterations while the population was extant.
  sim::Moments growth;
  for (int y = 1; y <= year; ++y) {
    const sim::Moments& m = r.at(block, y).stochasticR;
    growth.n += m.n;
    growth.sum += m.sum;
    growth.sumSq += m.sumSq;
  }
  return std::string(Trim(o.model.name)) + ";" + std::to_string(year) + ";" + std::to_string(r.iterations()) + ";" +
         Num(o.deterministicR(block)) + ";" + Num(growth.mean()) + ";" + Num(growth.sd()) + ";" + Num(extinct) +
         ";" + Num(s.extant.mean()) + ";" + Num(s.extant.sd()) + ";" + Num(s.all.mean()) + ";" + Num(s.all.sd()) +
         ";" + Num(s.geneDiversity.mean()) + ";" + Num(s.geneDiversity.sd()) + ";" + Num(s.inbreeding.mean()) + ";" +
         Num(s.alleles.mean()) + ";" + std::to_string(r.medianExtinction(block, year)) + ";" +
         Num(r.extinctionYears(block, year).mean());
}

void UpdateSummary(const Outcome& o, const std::string& from, const std::string& path) {
  const std::vector<std::string> others = OtherLines(from, o.model.name);
  TextFile file(path);
  file.line(kHeading);
  for (const std::string& line : others) file.line(line);
  file.line(SummaryLine(o));
  file.close();
}

}  // namespace tamsic::report
