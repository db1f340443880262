#include "GraphValues.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "GraphContext.h"
#include "formula/Formula.h"
#include "formula/Names.h"

namespace tamsic {

namespace {

using formula::NameKind;

// The function editor's variable list, in its order, then GS1..GS10.
constexpr std::array<std::string_view, 96> kListedNames = {
    "A",     "B",     "D",     "E",     "F",     "G",     "I",     "J",     "K",     "M",
    "N",     "O",     "P",     "Q",     "R",     "S",     "U",     "V",     "W",     "X",
    "Y",     "Z",     "PP",    "FF",    "GG",    "JJ",    "KK",    "MM",    "NN",    "II",
    "VV",    "WW",    "XX",    "ZZ",    "IS1",   "IS2",   "IS3",   "IS4",   "IS5",   "IS6",
    "IS7",   "IS8",   "IS9",   "IS10",  "PS1",   "PS2",   "PS3",   "PS4",   "PS5",   "PS6",
    "PS7",   "PS8",   "PS9",   "PS10",  "IMEAN", "ITOT",  "IMIN",  "IMAX",  "IIS1",  "IIS2",
    "IIS3",  "IIS4",  "IIS5",  "IIS6",  "IIS7",  "IIS8",  "IIS9",  "IIS10", "PPS1",  "PPS2",
    "PPS3",  "PPS4",  "PPS5",  "PPS6",  "PPS7",  "PPS8",  "PPS9",  "PPS10", "CAT",   "PARITY",
    "ID",    "DAM",   "SIRE",  "KIN",   "MATE",  "NMATES", "GS1",  "GS2",   "GS3",   "GS4",
    "GS5",   "GS6",   "GS7",   "GS8",   "GS9",   "GS10"};

struct Axis {
  GraphVariable variable;
  std::string name;
  std::string error;
};

Axis AxisOf(int number) {
  if (number < 1 || number > static_cast<int>(kListedNames.size()))
    return {{}, "", "there is no variable number " + std::to_string(number)};
  const std::string_view name = kListedNames[static_cast<std::size_t>(number - 1)];
  const auto info = formula::LookUpName(name);
  Axis axis{{}, std::string(name), ""};
  if (info->kind == NameKind::Variable)
    axis.variable.plain = static_cast<formula::Var>(info->index);
  else if (info->kind == NameKind::Indexed)
    axis.variable.indexed = static_cast<formula::IndexedVar>(info->index);
  else if (info->op == formula::Op::Kin)
    axis.variable.kinship = true;
  else
    axis.error = axis.name + " is a constant and cannot be graphed against";
  return axis;
}

std::string Number(double value) {
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

std::optional<std::string> RangeError(const GraphRange& range) {
  if (!(range.increment > 0.0) || !std::isfinite(range.increment))
    return "the increment must be a number greater than 0";
  if (range.from > range.to) return "the range starts after it ends";
  if (range.population < 0) return "there is no population " + std::to_string(range.population);
  const double count = std::floor((static_cast<double>(range.to) - range.from) / range.increment);
  if (range.points <= 0 && count >= kMaxGraphPoints)
    return "the range holds more than " + std::to_string(kMaxGraphPoints) + " points";
  return std::nullopt;
}

}  // namespace

std::string GraphValues(std::string_view formula, const GraphRange& range) {
  const Axis axis = AxisOf(range.variable);
  if (!axis.error.empty()) return "Error: " + axis.error;
  if (const auto error = RangeError(range)) return "Error: " + *error;
  const auto compiled = formula::CompileText(formula);
  if (compiled.error) return "Error: " + compiled.error->describe();

  GraphContext context(axis.variable, range.population == 0 ? 1 : range.population);
  const int limit = range.points > 0 ? std::min(range.points, kMaxGraphPoints) : kMaxGraphPoints;
  // A little slack so that 0, 0.1, ... 1 reaches 1 despite rounding.
  const double end = range.to + range.increment * 1e-9;
  std::string reply;
  for (int i = 0; i < limit; ++i) {
    const double x = range.from + i * range.increment;
    if (x > end) break;
    context.setX(x);
    const double y = compiled.program->evaluate(context);
    if (!std::isfinite(y))
      return "Error: the function has no finite value at " + axis.name + " = " + Number(x);
    if (i > 0) reply += ';';
    reply += Number(y);
  }
  return reply;
}

}  // namespace tamsic
