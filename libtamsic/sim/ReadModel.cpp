#include "sim/ReadModel.h"

#include <cmath>

#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "report/Outcome.h"
#include "sim/CellReader.h"
#include "sim/ReadGenetics.h"
#include "sim/ReadPopulation.h"
#include "sim/ReadStates.h"
#include "sim/SimError.h"
#include "sim/VariableScopes.h"

namespace tamsic::sim {

namespace {

Mating ReadMating(const CellReader& in) {
  const std::pair<const char*, Mating> systems[] = {
      {"optMPHLQ_0", Mating::Monogamous},        {"optMPHLQ_1", Mating::Polygamous},
      {"optMPHLQ_2", Mating::Hermaphroditic},    {"optMPHLQ_3", Mating::LongTermMonogamous},
      {"optMPHLQ_4", Mating::LongTermPolygamous}};
  int chosen = 0;
  Mating mating = Mating::Polygamous;
  for (const auto& [member, system] : systems)
    if (in.Truth(*FieldByMember(member))) {
      ++chosen;
      mating = system;
    }
  if (chosen != 1) throw SimError("Reproductive system: exactly one mating system must be chosen");
  return mating;
}

// Percentages of a distribution grid (column 1, rows 1..count) that must add up to 100.
std::vector<Rate> ReadDistribution(const CellReader& in, Field grid, int count) {
  std::vector<Rate> percents;
  double sum = 0.0;
  bool constant = true;
  for (int row = 1; row <= count; ++row) {
    percents.push_back(in.GridRate(grid, static_cast<std::size_t>(row), 1, 0.0));
    constant = constant && percents.back().isConstant();
    sum += percents.back().constant();
  }
  if (constant && std::abs(sum - 100.0) > 0.5)
    throw SimError(std::string(Describe(grid).key) + ": the percentages add up to " + NumberToText(sum) +
                   ", not 100");
  return percents;
}

void ReadSettings(const CellReader& in, Model& m) {
  m.iterations = in.Whole(F("txtNumIter"), -1);
  m.years = in.Whole(F("txtNumYear"), -1);
  if (m.iterations < 0) throw SimError("NumIter: the number of iterations is empty");
  if (m.years < 0) throw SimError("NumYears: the number of years is empty");
  m.populations = in.Whole(F("txtNumPop"), 0);
  if (m.populations < 1) throw SimError("NumPop: a scenario needs at least one population (1 .. 50)");
  m.criticalSizeExtinction = in.Truth(F("optExtinctDef_1")) || m.options.declineIsExtinction;
  m.criticalSize = m.criticalSizeExtinction ? in.Whole(F("txtExtinctN"), 0) : 0;
}

void ReadSpecies(const CellReader& in, Model& m) {
  m.inbreedingDepression = in.Checked(F("chkDepress"));
  if (m.inbreedingDepression) {
    m.lethalEquivalents = in.Number(F("txtLethalEquiv"), 0.0);
    m.percentLethal = in.Number(F("txtPercentLethal"), 0.0);
  }
  m.concordance = in.Checked(F("chkEVConcord"));
  m.correlation = in.Number(F("txtEV"), 0.0);
  m.dispersing[kFemale] = in.Checked(F("chkDispFemales"));
  m.dispersing[kMale] = in.Checked(F("chkDispMales"));
  if (m.populations > 1 && (m.dispersing[kFemale] || m.dispersing[kMale])) {
    m.dispersalYoung = in.Whole(F("txtDispYoung"), 0);
    m.dispersalOld = in.Whole(F("txtDispOld"), kMaxAge);
    m.dispersalSurvival = in.TextRate(F("txtPercentDispSurvive"), 100.0);
    if (!Trim(in.scenario().Text(F("txtDensDispersal"))).empty()) {
      const Rate modifier = in.TextRate(F("txtDensDispersal"), 0.0);
      if (!modifier.isConstant()) m.dispersalModifier = modifier;
      else m.dispersalMinimum = modifier.constant();
    }
  }
}

void ReadReproduction(const CellReader& in, Model& m) {
  m.mating = ReadMating(in);
  m.firstBreeding[kFemale] = in.Whole(F("txtAgeReproF"), -1);
  m.firstBreeding[kMale] = m.sexual() ? in.Whole(F("txtAgeReproM"), -1) : m.firstBreeding[kFemale];
  if (m.firstBreeding[kFemale] < 0) throw SimError("AgeReproF: the age of first reproduction is empty");
  if (m.firstBreeding[kMale] < 0) throw SimError("AgeReproM: the age of first reproduction is empty");
  m.maxAge = in.Whole(F("txtMaxAgeRepro"), -1);
  if (m.maxAge < std::max(m.firstBreeding[kFemale], m.firstBreeding[kMale]))
    throw SimError("AgeRepro: the maximum age must be at least the age of first reproduction");
  m.maxBroods = in.Whole(F("txtMaxLitters"), 1);
  m.maxProgeny = in.Whole(F("txtMaxProgeny"), 1);
  m.sexRatio = in.TextRate(F("txtSexRatio"), 50.0);
  m.broodByMeanSD = !in.Truth(F("optUseMean_1"));
  if (!m.broodByMeanSD) m.progenyPercent = ReadDistribution(in, F("gridRepRates3"), m.maxProgeny + 1);
  m.broodPercent = m.maxBroods == 1 ? std::vector<Rate>{Rate::Number(100.0)}
                                    : ReadDistribution(in, F("gridRepRates4"), m.maxBroods);
}

}  // namespace

Model ReadModel(const clsScenario& scenario, const std::filesystem::path& folder, const Options& options) {
  CheckInputs(scenario);
  const CellReader in(scenario, folder);
  Model m;
  m.options = options;
  m.name = scenario.Text(F("txtSceneName"));
  ReadSettings(in, m);
  ReadSpecies(in, m);
  ReadReproduction(in, m);
  m.startStable = !in.Truth(F("optStartWith_1"));
  m.neutralLoci = in.Whole(F("txtGenMgtNumNeutralLoci"), 1);
  m.genetics = ReadGenetics(in, m, folder);
  const int catastrophes = in.Whole(F("txtNumCatast"), 0);
  m.userVariables = std::max(in.Whole(F("txtNumPopStateVars"), 0), in.Whole(F("txtNumGlobalVars"), 0));
  for (int p = 0; p < m.populations; ++p) m.pops.push_back(ReadPopulation(in, m, p, catastrophes));
  ReadStateVariables(in, m);
  m.needsCounts = in.countsUsed();
  CheckVariableScopes(m);
  return m;
}

}  // namespace tamsic::sim
