#include "functions/FunctionEditing.h"

#include <cmath>
#include <regex>

#include "engine/EngineLibrary.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {
namespace {

constexpr int kEnterAFunction = 9105;
constexpr int kInvalidFormula = 9106;
constexpr int kGraphRange = 9198;
constexpr int kGraphingError = 4022;

// The engine names the failing character as "at character N", counted from 1.
std::optional<std::size_t> ErrorPosition(const std::string& reply) {
  static const std::regex place("at character ([0-9]+)");
  std::smatch match;
  if (!std::regex_search(reply, match, place)) return std::nullopt;
  const unsigned long number = std::stoul(match[1].str());
  return number == 0 ? std::nullopt : std::optional<std::size_t>(number - 1);
}

// "Error: unknown name ..." without its first word.
std::string Reason(const std::string& reply) {
  const std::size_t colon = reply.find(':');
  return colon == std::string::npos ? reply : std::string(Trim(std::string_view(reply).substr(colon + 1)));
}

// The engine's reply, or nothing after telling the user that it cannot be loaded.
std::optional<std::string> Ask(Messages& messages, const auto& question) {
  try {
    return question();
  } catch (const EngineUnavailable& error) {
    messages.show(messages.text(msg::kUnableToRunSimulation) + "\r\n\r\n" + error.what(), msg::kError,
                  MsgIcon::Critical);
    return std::nullopt;
  }
}

}  // namespace

std::string EditedFormula(std::string_view cellText) {
  return std::string(cellText.starts_with('=') ? cellText.substr(1) : cellText);
}

std::string AcceptedFunction(std::string_view formula) { return "=" + std::string(formula); }

PolishAnswer PolishForm(std::string_view formula, Engine& engine, Messages& messages) {
  if (formula.empty()) {
    messages.show(messages.text(kEnterAFunction), msg::kWarning, MsgIcon::Exclamation);
    return {};
  }
  const auto reply = Ask(messages, [&] { return engine.testFormula(std::string(formula)); });
  if (!reply) return {};
  if (reply->starts_with("Polish")) return {*reply, "", std::nullopt};
  messages.show(messages.text(kInvalidFormula), msg::kError, MsgIcon::Critical);
  return {std::nullopt, Reason(*reply), ErrorPosition(*reply)};
}

std::optional<GraphRequest> ReadGraphRange(std::string_view from, std::string_view to, std::string_view increment,
                                           Messages& messages) {
  const auto first = ExactNumber(from);
  const auto last = ExactNumber(to);
  const auto step = ExactNumber(increment);
  const auto whole = [](const std::optional<double>& value) {
    return value && std::trunc(*value) == *value && std::abs(*value) < 2e9;
  };
  if (!whole(first) || !whole(last) || *last < *first || !step || !(*step > 0)) {
    messages.show(messages.text(kGraphRange), msg::kWarning, MsgIcon::Exclamation);
    return std::nullopt;
  }
  GraphRequest range;
  range.from = static_cast<std::int32_t>(*first);
  range.to = static_cast<std::int32_t>(*last);
  range.increment = *step;
  return range;
}

GraphAnswer GraphValues(std::string_view formula, int variable, const GraphRequest& range, Engine& engine,
                        Messages& messages) {
  const PolishAnswer check = PolishForm(formula, engine, messages);
  if (!check.polish) return {std::nullopt, check.reason, check.errorAt};
  GraphRequest request = range;
  request.variable = variable;
  const auto reply = Ask(messages, [&] { return engine.formulaGraphValues(std::string(formula), request); });
  if (!reply) return {};
  if (reply->starts_with("Error")) {
    messages.show(messages.text(kGraphingError), msg::kError, MsgIcon::Critical);
    return {std::nullopt, Reason(*reply), std::nullopt};
  }
  std::vector<double> values;
  for (const std::string_view piece : Split(*reply, ';')) {
    const auto value = ExactNumber(piece);
    if (!value) {
      messages.show(messages.text(kGraphingError), msg::kError, MsgIcon::Critical);
      return {std::nullopt, std::string(piece), std::nullopt};
    }
    values.push_back(*value);
  }
  return {std::move(values), "", std::nullopt};
}

}  // namespace tamsic
