#include "pages/InputChecks.h"

#include <cmath>
#include <cstdio>

#include "engine/EngineLibrary.h"
#include "files/TextCodec.h"
#include "model/CellValue.h"
#include "model/HeadingWords.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

void Refuse(const std::string& text, Messages& messages) {
  messages.show(text, msg::kWarning, MsgIcon::Critical);
}

std::string Fixed2(double value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.2f", value);
  return buffer;
}

bool Blank(std::string_view text) { return Trim(text).empty(); }

// The engine's verdict on a function; a missing engine is reported and the
// function kept, to be checked again when the scenario runs.
bool FormulaRefused(std::string_view text, Messages& messages, Engine& engine) {
  try {
    const std::string reply = engine.testFormula(std::string(text));
    if (reply.rfind("Error", 0) != 0) return false;
    Refuse(reply, messages);
    return true;
  } catch (const EngineUnavailable& error) {
    messages.show(messages.text(msg::kUnableToRunSimulation) + "\r\n\r\n" + error.what(), msg::kError,
                  MsgIcon::Critical);
    return false;
  }
}

// A value between 0 and 1 where a percent is expected is questioned, not refused.
void QuestionProportion(std::string_view text, const ValueRule& rule, Messages& messages) {
  const auto value = ExactNumber(text);
  if (rule.high == 100 && value && *value > 0 && *value < 1)
    messages.show(messages.text(msg::kPercentOrProportion), msg::kWarning, MsgIcon::None, MsgButtons::Ok);
}

// Where a cell is, as its page shows it: the grid's caption, the population's
// label and the line's heading, in the user's language.
InputPlace ShownPlace(Field grid, const Grid& table, std::size_t row, std::size_t col, const IStringTable& words) {
  const int caption = Describe(grid).input.caption;
  const std::string name = caption ? words.text(caption) : std::string();
  const PlaceWording shown{name.empty() ? std::string(Describe(grid).key) : name,
                           [&words](const std::string& heading) {
                             return ShownHeading(heading, words).value_or(Cp1252ToUtf8(heading));
                           },
                           words};
  return CellPlace(grid, table, row, col, shown);
}

}  // namespace

bool TakesFunctions(const ValueRule& rule) {
  return rule.kind == ValueKind::Rate || rule.kind == ValueKind::WholeRate;
}

bool TestCell(std::string_view text, const ValueRule& rule, const InputPlace& place, Messages& messages) {
  ValueRule number = rule;
  if (TakesFunctions(rule)) number.kind = rule.kind == ValueKind::WholeRate ? ValueKind::Whole : ValueKind::Number;
  if (const auto fault = CheckValue(number, text)) {
    Refuse(messages.text(msg::kInvalidInput) + "\r\n\r\n" + InputFault{place, *fault, rule}.Text(messages.strings()),
           messages);
    return true;
  }
  QuestionProportion(text, rule, messages);
  return false;
}

bool TestCellFunctions(std::string_view text, const ValueRule& rule, const InputPlace& place, Messages& messages,
                       Engine& engine) {
  switch (ClassifyCell(text)) {
    case CellKind::Function: return FormulaRefused(text, messages, engine);
    case CellKind::FileReference: return false;
    default: return TestCell(text, rule, place, messages);
  }
}

bool TestGridCell(Field grid, const Grid& table, std::size_t row, std::size_t col, std::string_view text,
                  Messages& messages, Engine& engine) {
  const ValueRule rule = CellRule(grid, row, col);
  if (rule.kind == ValueKind::Text) return false;
  const InputPlace place = ShownPlace(grid, table, row, col, messages.strings());
  return TakesFunctions(rule) ? TestCellFunctions(text, rule, place, messages, engine)
                              : TestCell(text, rule, place, messages);
}

bool TestTextBoxFunctions(Field box, std::string_view text, const std::string& caption, Messages& messages,
                          Engine& engine) {
  const ValueRule& rule = Describe(box).input.rule;
  if (rule.kind == ValueKind::Text || Blank(text)) return false;
  if (TakesFunctions(rule) && ClassifyCell(text) == CellKind::Function) return FormulaRefused(text, messages, engine);
  const auto fault = CheckValue(rule, text);
  if (!fault) return false;
  if (const auto problem = WholeNumberProblem(box, text); problem && *fault == Fault::NotWhole)
    messages.show({messages.text(*problem), "", MsgIcon::None, MsgButtons::Ok});
  else
    messages.show(InputFault{{caption, {}, {}}, *fault, rule}.Text(messages.strings()) + ".", msg::kWarning,
                  MsgIcon::Exclamation);
  return true;
}

std::optional<int> WholeNumberProblem(Field box, std::string_view text) {
  const auto value = ExactNumber(text);
  if (!value || std::trunc(*value) == *value) return std::nullopt;
  if (box == F("txtAgeReproF") || box == F("txtAgeReproM")) return msg::kWholeAgeOfReproduction;
  if (box == F("txtMaxAgeRepro")) return msg::kWholeMaximumAge;
  if (box == F("txtMaxLitters")) return msg::kWholeBroods;
  if (box == F("txtMaxProgeny")) return msg::kWholeProgeny;
  return std::nullopt;
}

bool TestDispersalAges(std::string_view young, std::string_view old, Messages& messages) {
  if (LeadingNumber(old) >= LeadingNumber(young)) return false;
  messages.show(messages.text(msg::kDispersalAges), msg::kWarning, MsgIcon::Critical);
  return true;
}

std::string ExactDistributionRemainder(const Grid& distribution) {
  double sum = 0;
  for (std::size_t r = 1; r + 1 < distribution.rows(); ++r) sum += LeadingNumber(distribution.at(r, 1));
  return Fixed2(100 - sum);
}

}  // namespace tamsic
