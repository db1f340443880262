#include "st/basST.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "model/ScenarioShape.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "st/STTargets.h"

namespace tamsic {

namespace {

class NameList {
 public:
  void Add(std::string name) { names_.push_back(std::move(name)); }
  // For each population, each of the base names.
  void PerPopulation(int populations, std::initializer_list<std::string_view> bases) {
    for (int p = 1; p <= populations; ++p)
      for (std::string_view base : bases) Add(Pop(base, p));
  }
  // For each population, each number first..last, each of the base names.
  void PerPopulationAnd(int populations, std::string_view suffix, int first, int last,
                        std::initializer_list<std::string_view> bases) {
    for (int p = 1; p <= populations; ++p)
      for (int n = first; n <= last; ++n)
        for (std::string_view base : bases) Add(Pop(base, p) + std::string(suffix) + std::to_string(n));
  }
  std::vector<std::string> Take() { return std::move(names_); }

 private:
  static std::string Pop(std::string_view base, int p) { return std::string(base) + "_Pop" + std::to_string(p); }
  std::vector<std::string> names_;
};

// The number in the text that follows the "_" at `underscore` and three letters.
int NumberAfter(std::string_view name, std::size_t underscore) {
  if (underscore == std::string_view::npos || underscore + 4 > name.size()) return 0;
  return LeadingInt(name.substr(underscore + 4));
}

bool IsBaselineItself(std::string_view value) { return Trim(value) == "=B"; }

std::string LowerCase(std::string_view text) {
  std::string lower;
  for (char c : text) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

// What the record holds for a switch or a Global/Local cell, which cannot
// hold a function: "=B" keeps the baseline's setting, anything else is read
// as a switch or a place word.
std::string AsStored(const STTarget& target, const std::string& baselineValue, std::string_view value,
                     const std::string& substituted) {
  if (target.kind == STCellKind::Value) return substituted;
  if (IsBaselineItself(value)) return baselineValue;
  if (target.kind == STCellKind::Switch) return TextToTrueFalse(substituted) ? "1" : "0";
  const std::string word = LowerCase(Trim(substituted));
  if (word == "global") return "Global";
  if (word == "local") return "Local";
  return substituted;
}

bool SameShape(const LayoutCounts& a, const LayoutCounts& b) {
  return a.populations.size() == b.populations.size() && a.ageReproF == b.ageReproF &&
         a.ageReproM == b.ageReproM && a.maxAge == b.maxAge;
}

}  // namespace

std::vector<std::string> STVariableNames(const clsScenario& baseline) {
  const LayoutCounts counts = CountsOf(baseline);
  const int pops = static_cast<int>(counts.populations.size());
  const int af = counts.ageReproF;
  const int am = counts.ageReproM;
  const int cats = counts.catastrophes;
  NameList list;
  for (std::string_view name : {"NumberPopulations", "LethalEquiv", "PercentLethal", "EVConcordance?",
                                "EVCorrAmongPops", "DispersalSurvival", "DispersalModifier", "MinAgeReproFemales",
                                "MinAgeReproMales", "MaxAgeRepro", "SexRatio"})
    list.Add(std::string(name));
  list.PerPopulation(pops, {"PercentBreed", "PercentBreedEV"});
  list.PerPopulation(pops, {"MeanProgenyPerYr", "SDinProgenyPerYear"});
  list.PerPopulationAnd(pops, "_Age", 0, af, {"FemaleMortality", "EVFemaleMort"});
  list.PerPopulationAnd(pops, "_Age", 0, am, {"MaleMortality", "EVMaleMort"});
  list.PerPopulationAnd(pops, "_Cat", 1, cats, {"CatastrophesGL", "CatastrophesFreq"});
  list.PerPopulationAnd(pops, "_Cat", 1, cats, {"CatastrophesReproSevere", "CatastrophesSurviveSevere"});
  list.PerPopulation(pops, {"PercentMalesBreed"});
  if (baseline.Truth(F("optStartWith_0"))) list.PerPopulation(pops, {"InitPopSize"});
  list.PerPopulation(pops, {"K", "K-SD"});
  list.PerPopulation(pops, {"KChangeYears", "KChangePercent"});
  list.PerPopulation(pops, {"Harvest?", "HarvestFirstYear", "HarvestLastYear", "HarvestInterval"});
  list.PerPopulationAnd(pops, "_Age", 1, af, {"FemalesHarvested"});
  list.PerPopulationAnd(pops, "_Age", 1, am, {"MalesHarvested"});
  list.PerPopulation(pops, {"Supplement?", "SupplFirstYear", "SupplLastYear", "SupplInterval"});
  list.PerPopulationAnd(pops, "_Age", 1, af, {"FemalesSupplemented"});
  list.PerPopulationAnd(pops, "_Age", 1, am, {"MalesSupplemented"});
  return list.Take();
}

std::string BuildSTVariableList(const clsScenario& baseline, std::string_view separator) {
  std::string joined;
  for (const std::string& name : STVariableNames(baseline)) {
    if (!joined.empty()) joined += separator;
    joined += name;
  }
  return joined;
}

std::string SubstituteBaseline(std::string_view baselineValue, std::string_view expression) {
  const auto b = expression.find('B');
  if (expression.find('=') == std::string_view::npos || b == std::string_view::npos) return std::string(expression);
  const std::string_view inner =
      baselineValue.find('=') != std::string_view::npos ? baselineValue.substr(1) : baselineValue;
  return std::string(expression.substr(0, b)) + "(" + std::string(inner) + ")" + std::string(expression.substr(b + 1));
}

std::optional<std::string> STBaselineValue(const clsScenario& baseline, std::string_view name) {
  const auto target = TargetOf(name);
  if (!target) return std::nullopt;
  return ValueAt(baseline, *target);
}

void ApplySTItem(clsScenario& derived, const clsScenario& baseline, const STItem& item) {
  const LayoutCounts before = CountsOf(derived);
  for (std::size_t j = 0; j < item.Vars.size(); ++j) {
    const auto target = TargetOf(item.Vars[j]);
    if (!target) continue;
    const auto baselineValue = ValueAt(baseline, *target);
    if (!baselineValue) continue;
    const std::string_view value = j < item.Vals.size() ? std::string_view(item.Vals[j]) : std::string_view();
    StoreAt(derived, *target, AsStored(*target, *baselineValue, value, SubstituteBaseline(*baselineValue, value)));
  }
  if (!SameShape(before, CountsOf(derived))) RelayoutScenario(derived);
}

void ApplySTScheme(ScenarioCollection& scenarios, const STScheme& scheme) {
  const auto items = static_cast<std::size_t>(std::max<int>(scheme.NumItems, 0));
  if (items > scenarios.Count()) throw std::out_of_range("more sensitivity-test items than scenarios");
  for (std::size_t i = 0; i < items; ++i) {
    const STItem& item = scheme.Items.at(i);
    const clsScenario baseline = scenarios.Item(static_cast<std::size_t>(std::max<int>(item.ScenarioIndex, 0)));
    ApplySTItem(scenarios.Item(scenarios.Count() - items + 1 + i), baseline, item);
  }
}

bool TextToTrueFalse(std::string_view text) {
  if (!text.empty() && (text[0] == 't' || text[0] == 'T')) return true;
  if (!text.empty() && (text[0] == 'f' || text[0] == 'F')) return false;
  return LeadingNumber(text) != 0;
}

int STPopulationNumber(std::string_view name) { return NumberAfter(name, name.find('_')); }

int STAgeOrCatastropheNumber(std::string_view name) { return NumberAfter(name, name.rfind('_')); }

}  // namespace tamsic
