#include "results/YearlyData.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <string>

#include "model/Errors.h"
#include "model/InputRules.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "results/ResultVariables.h"

namespace tamsic {

namespace {

constexpr int kNameSearchLines = 31;
constexpr int kPSurviveField = 1;
constexpr int kPSurviveSEField = 2;
constexpr int kPExtinct = 31;
constexpr int kPExtinctSE = 32;
constexpr int kFirstUserVariable = 33;

bool ReadLine(std::istream& in, std::string& line) {
  if (!std::getline(in, line)) return false;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

}  // namespace

YearlyDataShape ShapeOf(const clsScenario& scenario) {
  YearlyDataShape shape;
  shape.populations = std::max(1, LeadingInt(scenario.Text(F("txtNumPop"))));
  shape.years = std::max(0, LeadingInt(scenario.Text(F("txtNumYear"))));
  const int variables = std::max(LeadingInt(scenario.Text(F("txtNumGlobalVars"))),
                                 LeadingInt(scenario.Text(F("txtNumPopStateVars"))));
  shape.userVariables = std::clamp(variables, 0, kUserVariableLimit);
  return shape;
}

YearlyData::YearlyData(YearlyDataShape shape)
    : shape_(shape),
      values_(static_cast<std::size_t>(shape.blocks()) * (shape.years + 1) * shape.fields(),
              std::numeric_limits<double>::quiet_NaN()) {}

std::size_t YearlyData::index(int block, int year, int field) const {
  if (block < 0 || block >= shape_.blocks() || year < 0 || year > shape_.years || field < 0 ||
      field >= shape_.fields())
    throw std::out_of_range("yearly data index");
  return (static_cast<std::size_t>(block) * (shape_.years + 1) + year) * shape_.fields() + field;
}

std::optional<double> YearlyData::Value(int block, int year, int number) const {
  int field = number;
  if (number == kPExtinct) {
    const double survive = at(block, year, kPSurviveField);
    return 1.0 - survive;
  }
  if (number == kPExtinctSE) field = kPSurviveSEField;
  if (number >= kFirstUserVariable) field = kFixedFields + (number - kFirstUserVariable);
  if (number < 1 || number > kResultVariableCount || field >= shape_.fields()) return std::nullopt;
  const double value = at(block, year, field);
  if (std::isnan(value)) return std::nullopt;
  return value;
}

YearlyData LoadYearlyData(const std::filesystem::path& file, const clsScenario& scenario) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw FileError("Cannot read " + file.string());
  return ReadYearlyData(in, file.string(), scenario);
}

YearlyData ReadYearlyData(std::istream& in, const std::string& origin, const clsScenario& scenario) {
  const std::string_view name = Trim(scenario.Text(F("txtSceneName")));
  std::string line;
  bool found = false;
  for (int n = 0; n < kNameSearchLines && !found && ReadLine(in, line); ++n) found = Trim(line) == name;
  if (!found) throw FileError(origin + ": no line with the scenario's name in its first 31 lines");
  // The array is sized from the scenario before a line is read; counts no run
  // can have (the engine refuses them) are no reason to ask for gigabytes.
  for (Field count : {F("txtNumYear"), F("txtNumPop")}) {
    const FieldDescriptor& d = Describe(count);
    if (const auto fault = CheckValue(d.input.rule, scenario.Text(count)))
      throw FileError(origin + ": " + InputFault{{std::string(d.key), {}, {}}, *fault, d.input.rule}.Text());
  }

  YearlyData data(ShapeOf(scenario));
  const YearlyDataShape& shape = data.shape();
  for (int block = 0; block < shape.blocks(); ++block) {
    for (int year = 0; year <= shape.years; ++year) {
      const std::string where =
          origin + ", block " + std::to_string(block + 1) + ", year " + std::to_string(year);
      if (!ReadLine(in, line)) throw FileError(where + ": the file ends early");
      const auto fields = Split(line, ';');
      if (fields.size() < static_cast<std::size_t>(kFixedFields))
        throw FileError(where + ": " + std::to_string(fields.size()) + " fields, 31 needed");
      const int stored = std::min(static_cast<int>(fields.size()), shape.fields());
      for (int f = 0; f < stored; ++f) {
        const auto value = ExactNumber(fields[f]);
        if (!value) throw FileError(where + ": field " + std::to_string(f) + " is not a number");
        data.set(block, year, f, *value);
      }
      // A line of another year means the file was written for other inputs.
      if (data.at(block, year, kYearField) != year) throw FileError(where + ": the line is of another year");
    }
  }
  return data;
}

}  // namespace tamsic
