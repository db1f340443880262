#include "sim/ReadPopulation.h"

#include <algorithm>

#include "model/TextSplit.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

using Row = std::size_t;

bool Yes(const CellReader& in, Field grid, Row row, Row col) {
  const std::string text = std::string(Trim(in.GridText(grid, row, col)));
  return !text.empty() && text != "0" && text != "False" && text != "false";
}

// Mortality pairs (mean, SD) for ages 0-1 .. (a-1)-a and then all older ages.
void ReadMortality(const CellReader& in, const Model& m, Row row, int sex, PopulationModel& p) {
  const Field grid = sex == kFemale ? F("gridMortFemales") : F("gridMortMales");
  for (int age = 0; age <= m.firstBreeding[sex]; ++age) {
    const Row col = static_cast<Row>(2 * age + 1);
    p.mortality[sex].push_back(in.GridRate(grid, row, col, 0.0));
    p.mortalitySD[sex].push_back(in.GridRate(grid, row, col + 1, 0.0));
  }
}

void ReadCatastrophes(const CellReader& in, Row row, int count, PopulationModel& p) {
  for (int c = 0; c < count; ++c) {
    const Row col = static_cast<Row>(2 * c + 1);
    Catastrophe cat;
    const std::string kind = std::string(Trim(in.GridText(F("gridCatastrophes1"), row, col)));
    if (kind != "Global" && kind != "Local" && !kind.empty())
      throw InputError({in.Where(F("gridCatastrophes1"), row, col), Fault::NotAPlace, PlaceCell()});
    cat.global = kind == "Global";
    cat.frequency = in.GridRate(F("gridCatastrophes1"), row, col + 1, 0.0);
    cat.reproduction = in.GridRate(F("gridCatastrophes2"), row, col, 1.0);
    cat.survival = in.GridRate(F("gridCatastrophes2"), row, col + 1, 1.0);
    p.catastrophes.push_back(std::move(cat));
  }
}

void ReadInitial(const CellReader& in, const Model& m, Row row, PopulationModel& p) {
  if (m.startStable) {
    p.initialSize = in.GridWhole(F("gridInitPopStable"), row, 1);
    return;
  }
  for (int sex : {kFemale, kMale}) {
    const Field grid = sex == kFemale ? F("gridInitPopFemale") : F("gridInitPopMale");
    for (int age = 1; age <= m.maxAge; ++age)
      p.initial[sex].push_back(in.GridWhole(grid, row, static_cast<Row>(age)));
  }
}

void ReadCapacity(const CellReader& in, Row col, PopulationModel& p) {
  p.capacity = in.GridRate(F("gridCarryingCap1"), 1, col, 0.0);
  p.capacitySD = in.GridRate(F("gridCarryingCap1"), 2, col, 0.0);
  p.trend = Yes(in, F("gridCarryingCap2"), 1, col);
  if (!p.trend) return;
  p.trendYears = in.GridWhole(F("gridCarryingCap2"), 2, col);
  p.trendPercent = in.GridRate(F("gridCarryingCap2"), 3, col, 0.0);
}

Schedule ReadSchedule(const CellReader& in, Field grid, Row col) {
  Schedule s;
  s.active = Yes(in, grid, 1, col);
  if (!s.active) return s;
  s.first = in.GridWhole(grid, 2, col);
  s.last = in.GridWhole(grid, 3, col);
  s.interval = in.GridWhole(grid, 4, col);
  if (s.interval < 1) s.interval = 1;
  const Rate criterion = in.GridRate(grid, 5, col, 1.0);
  if (!criterion.isConstant() || criterion.constant() == 0.0) s.criterion = criterion;
  return s;
}

// Numbers by age class: ages 1 .. a-1, then adults.
std::vector<Rate> ReadAgeClasses(const CellReader& in, Field grid, Row row, int firstBreeding) {
  std::vector<Rate> counts;
  for (int c = 1; c <= firstBreeding; ++c)
    counts.push_back(in.GridRate(grid, row, static_cast<Row>(c), 0.0));
  return counts;
}

void ReadManagement(const CellReader& in, const Model& m, Row row, PopulationModel& p) {
  const Row col = row;
  p.harvest = ReadSchedule(in, F("gridHarvest"), col);
  if (p.harvest.active) {
    p.harvested.females = ReadAgeClasses(in, F("gridHarvestF"), row, m.firstBreeding[kFemale]);
    p.harvested.males = ReadAgeClasses(in, F("gridHarvestM"), row, m.firstBreeding[kMale]);
  }
  p.supplement = ReadSchedule(in, F("gridSuppl"), col);
  if (p.supplement.active) {
    p.supplemented.females = ReadAgeClasses(in, F("gridSupplF"), row, m.firstBreeding[kFemale]);
    p.supplemented.males = ReadAgeClasses(in, F("gridSupplM"), row, m.firstBreeding[kMale]);
  }
}

void ReadDispersal(const CellReader& in, const Model& m, Row row, PopulationModel& p) {
  double total = 0.0;
  for (int q = 0; q < m.populations; ++q) {
    const Row col = static_cast<Row>(q + 1);
    p.dispersal.push_back(col == row ? Rate::Number(0.0) : in.GridRate(F("gridDispRates"), row, col, 0.0));
    // Rates below 0 are no dispersal, as where functions are used.
    total += p.dispersal.back().isConstant() ? std::clamp(p.dispersal.back().constant(), 0.0, 100.0) : 0.0;
  }
  if (total > 100.0)
    throw SimError("DispRates, population " + std::to_string(row) + ": the rates out of the population add up to " +
                   std::to_string(total) + " %, more than 100");
}

}  // namespace

PopulationModel ReadPopulation(const CellReader& in, const Model& m, int pop, int catastrophes) {
  const Row row = static_cast<Row>(pop + 1);
  PopulationModel p;
  const Grid& labels = in.scenario().GetGrid(F("gridPopLabels"));
  p.label = row < labels.rows() && labels.cols() > 1 ? std::string(Trim(labels.at(row, 1))) : std::string();
  if (p.label.empty()) p.label = "Population " + std::to_string(pop + 1);
  p.breeding = in.GridRate(F("gridRepRates1"), row, 1, 0.0);
  p.breedingSD = in.GridRate(F("gridRepRates1"), row, 2, 0.0);
  if (m.broodByMeanSD) {
    p.broodMean = in.GridRate(F("gridRepRates2"), row, 1, 0.0);
    p.broodSD = in.GridRate(F("gridRepRates2"), row, 2, 0.0);
  }
  ReadMortality(in, m, row, kFemale, p);
  if (m.sexual()) ReadMortality(in, m, row, kMale, p);
  else p.mortality[kMale] = p.mortality[kFemale], p.mortalitySD[kMale] = p.mortalitySD[kFemale];
  ReadCatastrophes(in, row, catastrophes, p);
  p.malesInPool = m.sexual() ? in.GridRate(F("gridDegMonop"), 1, row, 100.0) : Rate::Number(100.0);
  ReadInitial(in, m, row, p);
  ReadCapacity(in, row, p);
  ReadManagement(in, m, row, p);
  if (m.populations > 1) ReadDispersal(in, m, row, p);
  return p;
}

}  // namespace tamsic::sim
