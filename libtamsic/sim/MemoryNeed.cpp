#include "sim/MemoryNeed.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <thread>

#include "model/MemoryWords.h"
#include "sim/Iteration.h"
#include "sim/Results.h"
#include "sim/SimError.h"
#include "sim/Simulate.h"
#include "sim/Studbook.h"

namespace tamsic::sim {

namespace {

constexpr double kKinshipCell = sizeof(float);

int Blocks(const Model& m) { return m.populations > 1 ? m.populations + 1 : 1; }

// The capacity of an array that doubles as it grows, once it holds `count` items.
double ArrayCapacity(std::size_t count) {
  return static_cast<double>(std::bit_ceil(std::max<std::size_t>(count, 1)));
}

// The founders of each population: a studbook's living, or the starting numbers.
std::vector<double> Founders(const Model& m, const std::vector<LifeTable>& tables) {
  std::vector<double> founders(static_cast<std::size_t>(m.populations), 0.0);
  const std::vector<StartingNumbers> start = StartingPopulations(m, tables);
  for (std::size_t p = 0; p < founders.size(); ++p)
    for (const auto& byAge : start[p].byAge)
      for (int n : byAge) founders[p] += n;
  if (const auto& book = m.genetics.studbook) {
    for (std::size_t p = 0; p < founders.size(); ++p)
      if (book->populates(static_cast<int>(p))) founders[p] = 0.0;
    for (int i : book->living)
      founders[static_cast<std::size_t>(book->animals[static_cast<std::size_t>(i)].population)] += 1.0;
  }
  return founders;
}

// K at its largest: a constant trend compounds over its years.
double GreatestCapacity(const PopulationModel& pop, const LifeTable& table) {
  double k = table.capacity;
  if (pop.trend && pop.trendPercent.isConstant() && pop.trendPercent.constant() > 0)
    k *= std::pow(1.0 + pop.trendPercent.constant() / 100.0, pop.trendYears);
  return k;
}

// Young of a year per individual of the stable population, both sexes.
double YoungPerIndividual(const LifeTable& t) {
  double young = 0.0;
  for (std::size_t x = 1; x < t.fecundity.size() && x <= t.stable[kFemale].size(); ++x)
    young += t.fecundity[x] * t.stable[kFemale][x - 1];
  return t.maleShare < 1.0 ? young / (1.0 - t.maleShare) : young;
}

double RecordBytes(const Model& m, const std::vector<LifeTable>& tables) {
  const double cells = static_cast<double>(Blocks(m)) * (m.years + 1);
  double bytes = cells * (sizeof(Census) + m.userVariables * sizeof(double));
  const double living = PeakIndividuals(m, tables);
  const Options& o = m.options;
  const double states = static_cast<double>(m.individualStates.size()) * sizeof(double);
  if (o.livingFile) bytes += living * (sizeof(LivingEntry) + states);
  if (o.createdFile) bytes += CreatedIndividuals(m, tables) * sizeof(CreatedEntry);
  if (o.censusFile) bytes += cells * sizeof(CensusEntry);
  if (m.genetics.genePopFile || m.genetics.alleleFrequencyFile)
    bytes += living * (sizeof(int) + sizeof(std::uint32_t) * (1.0 + 2.0 * m.neutralLoci));
  return bytes;
}

}  // namespace

int RunThreads(const Model& m) {
  const int cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  return std::max(1, std::min(m.iterations, m.options.threads > 0 ? m.options.threads : cores));
}

double ResultsBytes(const Model& m) {
  const double cells = static_cast<double>(Blocks(m)) * (m.years + 1);
  const auto finals = static_cast<std::size_t>(std::max(0, m.iterations)) * static_cast<std::size_t>(Blocks(m));
  return cells * (sizeof(YearStats) + m.userVariables * sizeof(Moments)) + ArrayCapacity(finals) * sizeof(FinalState);
}

std::vector<std::vector<double>> ProjectedNumbers(const Model& m, const std::vector<LifeTable>& tables) {
  const std::vector<double> founders = Founders(m, tables);
  std::vector<std::vector<double>> numbers;
  for (std::size_t p = 0; p < founders.size(); ++p) {
    const double k = GreatestCapacity(m.pops[p], tables[p]);
    numbers.push_back(Projection(tables[p], founders[p], std::max(k, founders[p]), m.years));
  }
  return numbers;
}

double PeakIndividuals(const Model& m, const std::vector<LifeTable>& tables) {
  if (m.options.reserveIndividuals > 0) return static_cast<double>(m.options.reserveIndividuals);
  const auto numbers = ProjectedNumbers(m, tables);
  double peak = 0.0;
  for (std::size_t p = 0; p < numbers.size(); ++p)
    peak += *std::max_element(numbers[p].begin(), numbers[p].end()) * (1.0 + YoungPerIndividual(tables[p]));
  return peak;
}

double CreatedIndividuals(const Model& m, const std::vector<LifeTable>& tables) {
  const auto numbers = ProjectedNumbers(m, tables);
  double created = 0.0;
  for (std::size_t p = 0; p < numbers.size(); ++p) {
    created += numbers[p].front();
    for (std::size_t y = 0; y + 1 < numbers[p].size(); ++y) created += numbers[p][y] * YoungPerIndividual(tables[p]);
  }
  return created;
}

MemoryNeed NeedFromModel(const Model& m, const std::vector<LifeTable>& tables) {
  const double living = PeakIndividuals(m, tables);
  const double perIndividual = sizeof(Individual) + GenomePool::GenomeBytes(ShapeOf(m)) +
                               m.individualStates.size() * sizeof(double) +
                               4 * sizeof(std::uint32_t);  // the free slots and the steps' three work arrays
  double perThread = living * perIndividual;
  if (m.genetics.exactKinship()) {
    const double side = ArrayCapacity(static_cast<std::size_t>(std::min<double>(living, kExactKinshipSlots)));
    perThread += side * side * kKinshipCell;
  }
  // A thread's own record, and one that finished out of order and waits.
  perThread += 2 * RecordBytes(m, tables);
  return {RunThreads(m), perThread, ResultsBytes(m)};
}

void CheckMemory(const Model& m, const MemoryNeed& need, const MemoryRoom& room) {
  const double peak = need.peak(room.baseline);
  if (peak <= room.available) return;
  if (m.options.reserveIndividuals > 0)
    throw SimError("option W: there is not enough memory for " + std::to_string(m.options.reserveIndividuals) +
                   " individuals: the run needs about " + MemoryAmount(peak) + " at its peak, more than the " +
                   MemoryAmount(room.available) + " this machine has available");
  throw SimError(MemoryShortfall(peak, room.available));
}

}  // namespace tamsic::sim
