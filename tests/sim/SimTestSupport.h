#pragma once
// Scenarios built in code for the simulation's tests: a simple one-population
// life history that each test changes where it matters, saved as a project
// file, run through the same entry as tamsicsim, and read back from the
// files the run wrote.
#include <filesystem>
#include <string>
#include <vector>

#include "model/GridLayouts.h"
#include "model/clsScenario.h"

namespace tamsic::test {

class SimScenario {
 public:
  // Polygamous, breeding from age 2, at most age 10, 50 % of females breed,
  // 0..4 young per brood, mortality 40 % at age 0, 20 % at age 1, 10 % after,
  // no EV, no catastrophes; `n` at the stable age distribution, K = `k`.
  SimScenario(const std::string& name, int populations, int n, int k);

  SimScenario& text(Field field, const std::string& value);
  SimScenario& option(Field chosen);
  SimScenario& check(Field field, bool on = true);
  SimScenario& grid(Field grid, Grid table);
  SimScenario& cell(Field grid, std::size_t row, std::size_t col, const std::string& value);
  // The same value in row r of every population column (settings grids) or in column c of every population row.
  SimScenario& everyPopulation(Field grid, std::size_t index, const std::string& value);
  // The numbers of individual, population and global state variables, their grids sized to match.
  SimScenario& stateVariables(int individual, int population, int global);
  const clsScenario& scenario() const { return scenario_; }

 private:
  clsScenario scenario_;
  LayoutCounts counts_;
};

// One block (population or metapopulation) of the yearly data: rows by year, fields by result variable number.
using Block = std::vector<std::vector<double>>;

struct RunOutput {
  std::string reply;
  std::vector<Block> blocks;
  std::string files;  // .dat, .run and .sum joined, for comparisons
  std::string runTable;
  std::string living, created, census;  // the extra files .liv, .all and .cen ("" when not written)
  std::string genePop, alleleFrequencies;  // the genetic files .gen and .frq ("" when not written)
};

// Saves the scenarios as project "T" (T.tpj) in a fresh folder, which the caller removes.
std::filesystem::path SaveTestProject(const std::vector<SimScenario>& scenarios);

// Saves the scenarios as project "T" in a fresh folder, runs the named one there and reads its files.
RunOutput RunScenario(const std::vector<SimScenario>& scenarios, const std::string& name, const std::string& options);

// The data lines of a ";" file, split into fields, without "$" headings.
std::vector<std::vector<std::string>> DataLines(const std::string& text);

// Field numbers of the yearly data.
enum ResultField { kSurvive = 1, kDetR = 5, kStochR = 6, kStochRSE = 7, kExtant = 9, kAll = 12, kGeneDiv = 15,
                   kInbreeding = 18, kAlleles = 21, kLethals = 24, kMedianTE = 30, kVar1 = 31 };

}  // namespace tamsic::test
