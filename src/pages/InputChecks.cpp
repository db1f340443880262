#include "pages/InputChecks.h"

#include <cmath>
#include <cstdio>

#include "engine/EngineLibrary.h"
#include "functions/CellValue.h"
#include "model/TextNumbers.h"

namespace tamsic {

namespace {

constexpr double kSmall = 32767;
constexpr double kLarge = 60000;

CellCheck Functions(double lower, double upper, bool decimals = true) { return {true, lower, upper, decimals}; }
CellCheck Numbers(double lower, double upper, bool decimals = true) { return {false, lower, upper, decimals}; }

void Refuse(const std::string& text, Messages& messages) {
  messages.show(text, msg::kWarning, MsgIcon::Critical);
}

std::string Fixed2(double value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.2f", value);
  return buffer;
}

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

}  // namespace

std::optional<CellCheck> CellCheckFor(Field grid, std::size_t row) {
  const std::string_view member = Describe(grid).member;
  if (member == "gridDispRates" || member == "gridRepRates2") return Functions(-kSmall, kSmall);
  if (member == "gridRepRates1" || member == "gridMortFemales" || member == "gridMortMales" ||
      member == "gridCatastrophes1")
    return Functions(0, 100);
  if (member == "gridRepRates3" || member == "gridRepRates4") return Numbers(0, 100);
  if (member == "gridCatastrophes2" || member == "gridCarryingCap1" || member == "gridReproSys")
    return Functions(0, kLarge);
  if (member == "gridDegMonop") {
    if (row == 1) return Functions(0, 100);
    if (row == 2) return Numbers(0, 100);
    if (row == 3) return Numbers(0, kSmall);
    return std::nullopt;
  }
  if (member == "gridInitPopStable" || member == "gridInitPopFemale" || member == "gridInitPopMale")
    return Numbers(0, 30000, false);
  if (member == "gridCarryingCap2") {
    if (row == 2) return Numbers(0, 2000, false);
    // A declining K is entered as a negative change; it cannot fall by more than all of it.
    if (row == 3) return Numbers(-100, 100);
    return std::nullopt;
  }
  if (member == "gridHarvest" || member == "gridSuppl") {
    if (row >= 2 && row <= 4) return Numbers(0, kSmall, false);
    if (row >= 5) return Functions(0, kSmall);
    return std::nullopt;
  }
  if (member == "gridHarvestF" || member == "gridHarvestM" || member == "gridSupplF" || member == "gridSupplM")
    return Functions(0, kSmall, false);
  return std::nullopt;
}

bool RangeTest(std::string_view text, double lower, double upper, bool decimals, Messages& messages) {
  const auto value = ExactNumber(text);
  if (!value || *value < lower || *value > upper) return false;
  if (!decimals && std::trunc(*value) != *value) return false;
  if (upper == 100 && *value > 0 && *value < 1)
    messages.show("Value should be a percent (< 100), but appears to be entered as a proportion (< 1). Is this correct?",
                  msg::kWarning, MsgIcon::None, MsgButtons::Ok);
  return true;
}

bool TestCell(std::string_view text, const CellCheck& check, Messages& messages) {
  if (text.empty() || RangeTest(text, check.lower, check.upper, check.decimals, messages)) return false;
  Refuse(messages.text(msg::kInvalidInput), messages);
  return true;
}

bool TestCellFunctions(std::string_view text, const CellCheck& check, Messages& messages, Engine& engine) {
  switch (ClassifyCell(text)) {
    case CellKind::Function: return FormulaRefused(text, messages, engine);
    case CellKind::FileReference: return false;
    default: return TestCell(text, check, messages);
  }
}

bool TestGridCell(std::string_view text, const CellCheck& check, Messages& messages, Engine& engine) {
  return check.functions ? TestCellFunctions(text, check, messages, engine) : TestCell(text, check, messages);
}

bool TestTextBoxFunctions(std::string_view text, const TextBoxLimits& limits, Messages& messages,
                          Engine& engine) {
  const CellKind kind = ClassifyCell(text);
  if (kind == CellKind::Function) return FormulaRefused(text, messages, engine);
  if (kind == CellKind::Empty || kind == CellKind::FileReference) return false;
  const auto value = ExactNumber(text);
  if (!value) {
    messages.show(messages.text(msg::kNumericOrFunction) + "=" + messages.text(msg::kSignSuffix),
                  msg::kInvalidInput, MsgIcon::Critical);
    return true;
  }
  if (*value < limits.min) {
    messages.show(limits.belowMessage, msg::kWarning, MsgIcon::Exclamation);
    return true;
  }
  if (*value > limits.max) {
    messages.show(limits.aboveMessage, msg::kWarning, MsgIcon::Exclamation);
    return true;
  }
  return false;
}

std::optional<std::string> WholeNumberProblem(Field box, std::string_view text) {
  const auto value = ExactNumber(text);
  if (!value || std::trunc(*value) == *value) return std::nullopt;
  const std::string_view member = Describe(box).member;
  if (member == "txtAgeReproF" || member == "txtAgeReproM") return "Age of reproduction must be a integer value!";
  if (member == "txtMaxAgeRepro") return "Maximum age must be a integer value!";
  if (member == "txtMaxLitters") return "Maximum number of broods must be a integer value!";
  if (member == "txtMaxProgeny") return "Maximum number of progeny must be a integer value!";
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
