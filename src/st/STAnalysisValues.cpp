#include "st/STAnalysisValues.h"

#include <regex>
#include <string>

#include "functions/FunctionVariables.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

// The first "B" becomes the baseline in brackets, a baseline function
// without its "="; a second "B" stays, as it does in the ST scenario.
std::optional<std::string> WithBaseline(std::string_view function, std::optional<std::string_view> baseline) {
  const std::size_t at = function.find('B');
  if (at == std::string_view::npos) return std::string(function);
  if (!baseline) return std::nullopt;
  std::string_view value = Trim(*baseline);
  if (value.starts_with('=')) value.remove_prefix(1);
  return std::string(function.substr(0, at)) + "(" + std::string(value) + ")" + std::string(function.substr(at + 1));
}

// A random draw is no value of the scenario, and a file is read only in a run.
bool FixedValue(std::string_view function) {
  static const std::regex drawsOrReads(R"(\b(S?N?RAND)\b|^\s*=?\s*FILE)", std::regex::icase);
  const std::string text(function);
  return VariablesIn(text).empty() && !std::regex_search(text, drawsOrReads);
}

}  // namespace

std::optional<double> STValueNumber(std::string_view value, std::optional<std::string_view> baseline,
                                    Engine& engine) {
  const std::string_view typed = Trim(value);
  if (const auto number = ExactNumber(typed)) return number;
  if (!typed.starts_with('=')) return std::nullopt;
  const auto function = WithBaseline(typed, baseline);
  if (!function || !FixedValue(*function)) return std::nullopt;
  GraphRequest single;
  single.variable = GraphVariableNumber("A");  // any variable: the function names none
  single.from = 0;
  single.to = 0;
  single.points = 1;
  return ExactNumber(engine.formulaGraphValues(function->substr(1), single));
}

}  // namespace tamsic
