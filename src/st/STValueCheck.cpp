// The check of a value typed for a sensitivity-test variable, and the value a
// variable starts with. The table of plain-value checks keeps the program's
// long-standing asymmetries: "less than the baseline" accepts the baseline,
// some "greater than 0" checks accept 0, harvested counts are not checked,
// and "K-SD", "KChangePercent" and "KChangeYears" get the check of "K",
// whose name they contain.
#include <cctype>
#include <cmath>
#include <vector>

#include "engine/Engine.h"
#include "model/TextNumbers.h"
#include "st/STAnswers.h"
#include "st/basST.h"

namespace tamsic {

namespace {

struct Names {
  std::vector<std::string_view> exact;
  std::vector<std::string_view> containing;
  bool Match(std::string_view name) const {
    for (std::string_view e : exact)
      if (name == e) return true;
    for (std::string_view c : containing)
      if (name.find(c) != std::string_view::npos) return true;
    return false;
  }
};

enum class Test { Numeric, Integer, Percent, Correlation, AboveZero, AtLeastZero, AtMostBaseline, TrueFalse, Place };

struct Condition {
  Test test;
  sttext::Text refusal;
};

struct CheckRow {
  Names names;
  std::vector<Condition> conditions;
};

using namespace sttext;

const std::vector<CheckRow>& CheckRows() {
  const Condition numeric{Test::Numeric, kNumeric};
  const Condition numericLong{Test::Numeric, kNumericOrFunction};
  const Condition integer{Test::Integer, kInteger};
  const Condition percent{Test::Percent, kPercent};
  const Condition aboveZero{Test::AboveZero, kAboveZero};
  const Condition atLeastZero{Test::AtLeastZero, kAtLeastZero};
  // Accepts 0 although it says "greater than 0".
  const Condition zeroOrMore{Test::AtLeastZero, kAboveZero};
  const Condition trueFalse{Test::TrueFalse, kTrueFalse};
  static const std::vector<CheckRow> rows = {
      {{{"LethalEquiv"}, {}}, {numeric}},
      {{{"PercentLethal"}, {}}, {numeric, percent}},
      {{{"EVConcordance?"}, {}}, {trueFalse}},
      {{{"EVCorrAmongPops"}, {}}, {numeric, {Test::Correlation, kCorrelation}}},
      {{{"DispersalModifier", "DispersalSurvival"}, {}}, {numericLong}},
      {{{"MinAgeReproMales", "MinAgeReproFemales"}, {}},
       {numeric, integer, aboveZero, {Test::AtMostBaseline, kBelowBaseline}}},
      {{{}, {"FemaleMortality", "EVFemaleMort", "MaleMortality", "EVMaleMort"}}, {numericLong, percent}},
      {{{"MaxAgeRepro"}, {}}, {numeric, integer, aboveZero}},
      {{{"SexRatio"}, {"PercentBreed", "PercentBreedEV", "CatastrophesFreq", "PercentMalesBreed"}},
       {numericLong, percent}},
      {{{}, {"MeanProgenyPerYr", "SDinProgenyPerYear", "CatastrophesReproSevere", "CatastrophesSurviveSevere"}},
       {numericLong, atLeastZero}},
      {{{}, {"CatastrophesGL"}}, {{Test::Place, kGlobalLocal}}},
      {{{}, {"InitPopSize"}}, {numeric, integer, zeroOrMore}},
      {{{}, {"K"}}, {numericLong, atLeastZero}},
      {{{}, {"Harvest?", "Supplement?"}}, {trueFalse}},
      {{{}, {"HarvestFirstYear"}}, {numeric, integer, zeroOrMore}},
      {{{}, {"HarvestLastYear", "HarvestInterval", "SupplFirstYear", "SupplInterval"}}, {numeric, integer, aboveZero}},
      {{{}, {"SupplLastYear"}}, {numeric, integer, zeroOrMore}},
      {{{}, {"FemalesSupplemented", "MalesSupplemented"}},
       {numericLong, integer, {Test::AtLeastZero, kNonNegativeInteger}}},
      {{{"NumberPopulations"}, {}}, {numeric, integer, aboveZero, {Test::AtMostBaseline, kBelowBaseline}}},
  };
  return rows;
}

// Variables whose values the engine needs as plain numbers.
const Names kNoFunctions{{"MinAgeReproMales", "NumberPopulations", "MinAgeReproFemales", "MaxAgeRepro",
                          "EVCorrAmongPops", "LethalEquiv", "PercentLethal"},
                         {"HarvestFirstYear", "HarvestLastYear", "HarvestInterval", "SupplFirstYear",
                          "SupplLastYear", "SupplInterval", "KChangePercent", "KChangeYears", "InitPopSize"}};

std::string LowerCase(std::string_view text) {
  std::string lower;
  for (char c : text) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

bool Passes(Test test, std::string_view value, double baseline) {
  const std::string lower = LowerCase(value);
  const auto number = ExactNumber(value);
  const double v = number.value_or(0);
  switch (test) {
    case Test::Numeric: return number.has_value();
    case Test::Integer: return v == std::round(v);
    case Test::Percent: return v >= 0 && v <= 100;
    case Test::Correlation: return v >= -1 && v <= 1;
    case Test::AboveZero: return v > 0;
    case Test::AtLeastZero: return v >= 0;
    case Test::AtMostBaseline: return v <= baseline;
    case Test::TrueFalse:
      return (number && (v == 0 || v == 1)) || lower == "t" || lower == "true" || lower == "false" || lower == "f";
    case Test::Place: return lower == "global" || lower == "local";
  }
  return false;
}

std::string CheckFunction(std::string_view name, std::string_view value, Engine& engine) {
  if (kNoFunctions.Match(name)) return std::string(kNoFunction.english) + std::string(name) + ".";
  std::string tried(value);
  if (const auto b = tried.find('B'); b != std::string::npos) tried.replace(b, 1, "50.5");
  const std::string reply = engine.testFormula(tried);
  if (LowerCase(reply).starts_with("polish")) return "OK";
  return std::string(kFunctionError.english) + std::string(value) + std::string(kFunctionReason.english) + reply;
}

std::string CheckPlain(std::string_view name, std::string_view value, const clsScenario& baseline) {
  for (const CheckRow& row : CheckRows()) {
    if (!row.names.Match(name)) continue;
    const double base = LeadingNumber(STBaselineValue(baseline, name).value_or(""));
    for (const Condition& condition : row.conditions)
      if (!Passes(condition.test, value, base)) return std::string(condition.refusal.english);
    return "OK";
  }
  return "OK";
}

}  // namespace

std::string CheckSTValue(std::string_view name, std::string_view value, const clsScenario& baseline,
                         Engine& engine) {
  // Only here is "B" looked for in either case: a plain value with a "b" in it is refused.
  const bool hasB = value.find_first_of("bB") != std::string_view::npos;
  if (value.find('=') == std::string_view::npos && hasB) return std::string(kUseEquals.english);
  if (value.starts_with('=')) return CheckFunction(name, value, engine);
  return CheckPlain(name, value, baseline);
}

std::string DefaultSTValue(std::string_view name) {
  static const Names counts{{"MinAgeReproFemales", "MinAgeReproMales", "MaxAgeRepro", "NumberPopulations"},
                            {"HarvestFirstYear", "HarvestLastYear", "HarvestInterval", "SupplFirstYear",
                             "SupplLastYear", "SupplInterval", "InitPopSize"}};
  if (counts.Match(name)) return "1";
  if (name == "LethalEquiv") return "3.0";
  if (name == "PercentLethal" || name == "EVCorrAmongPops") return "50";
  return "=B";
}

}  // namespace tamsic
