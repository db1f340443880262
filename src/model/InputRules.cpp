#include "model/InputRules.h"

#include <cmath>
#include <stdexcept>

#include "model/CellValue.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

bool Blank(std::string_view text) { return Trim(text).empty(); }

bool Computed(std::string_view text) {
  const CellKind kind = ClassifyCell(Trim(text));
  return kind == CellKind::Function || kind == CellKind::FileReference;
}

std::optional<Fault> CheckNumber(const ValueRule& rule, std::string_view text) {
  const auto value = ExactNumber(text);
  if (!value) return Fault::NotANumber;
  const bool whole = rule.kind == ValueKind::Whole || rule.kind == ValueKind::WholeRate;
  if (whole && std::trunc(*value) != *value) return Fault::NotWhole;
  if (*value < rule.low) return Fault::BelowLow;
  if (*value > rule.high) return Fault::AboveHigh;
  return std::nullopt;
}

// A check box in a grid writes 1 or 0; older files may hold a truth word or -1 for yes.
std::optional<Fault> CheckSwitch(std::string_view text) {
  const std::string_view word = Trim(text);
  for (std::string_view yesOrNo : {"0", "1", "-1", "True", "False", "true", "false"})
    if (word == yesOrNo) return std::nullopt;
  return Fault::NotASwitch;
}

// The line of a list that a count of lines cycles through.
const GridLine* Cycled(const GridDescription& d, std::size_t index) {
  if (d.line.empty()) return nullptr;
  if (d.lines == Lines::Fixed) return index < d.line.size() ? &d.line[index] : nullptr;
  return &d.line[index % d.line.size()];
}

std::string Heading(const Grid& table, std::size_t row, std::size_t col) {
  return row < table.rows() && col < table.cols() ? table.at(row, col) : std::string();
}

}  // namespace

const GridDescription& GridOf(Field grid) {
  const GridDescription* d = Describe(grid).input.grid;
  if (!d) throw std::logic_error(std::string(Describe(grid).member) + " is not a grid");
  return *d;
}

std::optional<Fault> CheckValue(const ValueRule& rule, std::string_view text) {
  if (Blank(text)) return std::nullopt;
  switch (rule.kind) {
    case ValueKind::Text: return std::nullopt;
    case ValueKind::Switch: return CheckSwitch(text);
    case ValueKind::Place: {
      const std::string_view word = Trim(text);
      return word == "Local" || word == "Global" ? std::nullopt : std::optional(Fault::NotAPlace);
    }
    case ValueKind::Rate:
    case ValueKind::WholeRate:
      if (Computed(text)) return std::nullopt;
      return CheckNumber(rule, text);
    case ValueKind::Whole:
    case ValueKind::Number: return CheckNumber(rule, text);
  }
  return std::nullopt;
}

const IStringTable& EnglishInputWords() {
  static const class : public IStringTable {
   public:
    std::string text(int number) const override {
      switch (number) {
        case msg::kMustBeNumber: return "the value must be a number";
        case msg::kMustBeNumberOrFunction:
          return "the value must be a number, a function (=...) or a file reference (file=...)";
        case msg::kMustBeWhole: return "the value must be a whole number";
        case msg::kMustBeAtLeast: return "the value must be at least ";
        case msg::kMustBeAtMost: return "the value must be at most ";
        case msg::kMustBeSwitch: return "the value must be 0 or 1";
        case msg::kMustBePlace: return "the value must be Local or Global";
        case msg::kRow: return "row ";
        case msg::kColumn: return "column ";
        default: return {};
      }
    }
  } english;
  return english;
}

std::string FaultWording(Fault fault, const ValueRule& rule, const IStringTable& words) {
  switch (fault) {
    case Fault::NotANumber:
      return words.text(rule.kind == ValueKind::Rate || rule.kind == ValueKind::WholeRate ? msg::kMustBeNumberOrFunction
                                                                                          : msg::kMustBeNumber);
    case Fault::NotWhole: return words.text(msg::kMustBeWhole);
    case Fault::BelowLow: return words.text(msg::kMustBeAtLeast) + NumberToText(rule.low);
    case Fault::AboveHigh: return words.text(msg::kMustBeAtMost) + NumberToText(rule.high);
    case Fault::NotASwitch: return words.text(msg::kMustBeSwitch);
    case Fault::NotAPlace: return words.text(msg::kMustBePlace);
  }
  return {};
}

const GridLine* LineOf(Field grid, std::size_t row, std::size_t col) {
  const GridDescription& d = GridOf(grid);
  switch (d.shape) {
    case GridShape::Notes: return nullptr;
    case GridShape::CatastropheLabels: return col == 1 ? Cycled(d, 0) : nullptr;
    case GridShape::Distribution: return row >= 1 && col == 1 ? &d.line[1] : nullptr;
    default: break;
  }
  if (row == 0 || col == 0) return nullptr;
  switch (d.shape) {
    case GridShape::PopulationLabels: return &d.line[col == 1 ? 0 : 1];
    case GridShape::StateVariables:
    case GridShape::PopulationColumns: return Cycled(d, row - 1);
    case GridShape::DispersalMatrix: return row == col ? nullptr : &d.line[0];
    default: return Cycled(d, col - 1);
  }
}

ValueRule CellRule(Field grid, std::size_t row, std::size_t col) {
  const GridLine* line = LineOf(grid, row, col);
  return line ? line->rule : AnyText();
}

int CellHint(Field grid, std::size_t row, std::size_t col) {
  const GridLine* line = LineOf(grid, row, col);
  return line && line->hint ? line->hint : Describe(grid).input.hint;
}

std::string InputPlace::Text() const {
  std::string text = input;
  for (const std::string* part : {&population, &line})
    if (!part->empty()) text += ", " + *part;
  return text;
}

InputPlace CellPlace(Field grid, const Grid& table, std::size_t row, std::size_t col, const PlaceWording& wording) {
  const std::string rowName = row > 0 ? Heading(table, row, 0) : std::string();
  const std::string colName = Heading(table, 0, col);
  const std::string rowText =
      Blank(rowName) ? wording.words.text(msg::kRow) + std::to_string(row) : wording.heading(rowName);
  const std::string colText =
      Blank(colName) ? wording.words.text(msg::kColumn) + std::to_string(col) : wording.heading(colName);
  InputPlace place{wording.input, {}, {}};
  switch (GridOf(grid).shape) {
    case GridShape::PopulationLabels:
    case GridShape::PopulationRows:
    case GridShape::DispersalMatrix: place.population = rowText, place.line = colText; break;
    case GridShape::PopulationColumns: place.population = colText, place.line = rowText; break;
    default: place.line = rowText + ", " + colText; break;
  }
  return place;
}

InputPlace CellPlace(Field grid, const Grid& table, std::size_t row, std::size_t col) {
  const PlaceWording stored{std::string(Describe(grid).key), [](const std::string& heading) { return heading; },
                            EnglishInputWords()};
  return CellPlace(grid, table, row, col, stored);
}

std::optional<InputFault> FirstFault(const clsScenario& scenario) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const FieldDescriptor& d = Describe(field);
    if (d.kind != FieldKind::Text) continue;
    if (const auto fault = CheckValue(d.input.rule, scenario.Text(field)))
      return InputFault{{std::string(d.key), {}, {}}, *fault, d.input.rule};
  }
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    if (Describe(field).kind != FieldKind::Grid) continue;
    const Grid& table = scenario.GetGrid(field);
    for (std::size_t r = 0; r < table.rows(); ++r)
      for (std::size_t c = 0; c < table.cols(); ++c) {
        const ValueRule rule = CellRule(field, r, c);
        if (const auto fault = CheckValue(rule, table.at(r, c)))
          return InputFault{CellPlace(field, table, r, c), *fault, rule};
      }
  }
  return std::nullopt;
}

}  // namespace tamsic
