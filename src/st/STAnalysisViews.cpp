#include "st/STAnalysisViews.h"

#include <algorithm>

#include "files/TextCodec.h"
#include "results/ResultVariables.h"
#include "results/TableExport.h"

namespace tamsic {

namespace {

std::string Cell(const std::optional<double>& number) { return number ? FormatNumber(*number) : std::string(); }

std::optional<double> ResultOf(const STItemResults& item, const STResultChoice& choice) {
  return item.data ? STResult(*item.data, choice) : std::nullopt;
}

std::string ResultHeading(const STResultChoice& choice) {
  const int modifier = ModifiersApply(choice.variable) ? choice.modifier : kMean;
  return ModifiedLabel(choice.variable, modifier).value_or(choice.variable);
}

// A number as worked out, else the value as typed.
std::string ValueCell(const STVariedValue& value) {
  return value.number ? FormatNumber(*value.number) : Cp1252ToUtf8(value.typed);
}

const STVariedValue* VariedValue(const STItemResults& item, const std::string& variable) {
  for (const STVariedValue& value : item.values)
    if (value.variable == variable) return &value;
  return nullptr;
}

// An item that changes only this variable, or changes every other one by the
// same typed value (as "=B*0.9" for the breeding of each population), keeps
// the others in step with it, so its point lies on this variable's curve.
bool InStep(const STItemResults& item, const STVariedValue& value) {
  return std::all_of(item.values.begin(), item.values.end(),
                     [&value](const STVariedValue& other) { return other.typed == value.typed; });
}

STView ByLevel(const STAnalysisData& analysis, const STResultChoice& choice, const IStringTable& strings) {
  STView view;
  view.table.corner = strings.text(8657);
  // The result before the inputs, so that it stays in sight however many inputs the items vary.
  view.table.columns = {strings.text(8603), strings.text(8658), ResultHeading(choice)};
  for (const std::string& variable : analysis.variables) view.table.columns.push_back(Cp1252ToUtf8(variable));
  STGraphLine bars{ResultHeading(choice), {}};
  for (const STItemResults& item : analysis.items) {
    const auto result = ResultOf(item, choice);
    TableRow row{std::to_string(item.item + 1), {item.label, item.scenarioName, Cell(result)}};
    for (const std::string& variable : analysis.variables) {
      const STVariedValue* value = VariedValue(item, variable);
      row.cells.push_back(value ? ValueCell(*value) : std::string());
    }
    view.table.rows.push_back(std::move(row));
    if (!result) continue;
    bars.points.push_back({static_cast<double>(item.item + 1), *result});
    view.categories.push_back(std::to_string(item.item + 1) + ". " + item.label);
  }
  view.lines.push_back(std::move(bars));
  view.xTitle = strings.text(8657);
  return view;
}

struct VariablePoint {
  std::optional<double> value;
  std::string valueText;
  std::string label;
  std::string scenario;
  std::optional<double> result;
};

std::vector<VariablePoint> PointsOf(const STAnalysisData& analysis, const std::string& variable,
                                    const STResultChoice& choice, const IStringTable& strings) {
  std::vector<VariablePoint> points;
  std::vector<std::size_t> baselines;
  for (const STItemResults& item : analysis.items) {
    const STVariedValue* value = VariedValue(item, variable);
    if (value == nullptr) continue;
    points.push_back({value->number, ValueCell(*value), item.label, item.scenarioName, ResultOf(item, choice)});
    if (item.baseline != 0 && std::find(baselines.begin(), baselines.end(), item.baseline) == baselines.end())
      baselines.push_back(item.baseline);
  }
  for (std::size_t number : baselines) {
    const STBaselineResults& baseline = analysis.baselines.at(number);
    const auto value = baseline.numbers.at(variable);
    const auto result = baseline.data ? STResult(*baseline.data, choice) : std::nullopt;
    if (value && result) points.push_back({value, FormatNumber(*value), strings.text(8602),
                                           baseline.name, result});
  }
  // Numbers in order of value; values that are not numbers after them, as they came.
  std::stable_sort(points.begin(), points.end(), [](const VariablePoint& a, const VariablePoint& b) {
    return a.value && (!b.value || *a.value < *b.value);
  });
  return points;
}

STView ByVariable(const STAnalysisData& analysis, const STResultChoice& choice, const IStringTable& strings) {
  STView view;
  view.table.corner = strings.text(8604);
  view.table.columns = {strings.text(8605), strings.text(8603), strings.text(8658), ResultHeading(choice)};
  for (const std::string& variable : analysis.variables) {
    STGraphLine line{Cp1252ToUtf8(variable), {}};
    for (const STItemResults& item : analysis.items)
      if (const STVariedValue* value = VariedValue(item, variable); value && !InStep(item, *value)) line.joined = false;
    for (const VariablePoint& point : PointsOf(analysis, variable, choice, strings)) {
      view.table.rows.push_back({line.name, {point.valueText, point.label, point.scenario, Cell(point.result)}});
      if (point.value && point.result) line.points.push_back({*point.value, *point.result});
    }
    view.lines.push_back(std::move(line));
  }
  view.xTitle = strings.text(8605);
  return view;
}

STView ByScheme(const STAnalysisData& analysis, const STResultChoice& choice, const IStringTable& strings) {
  STView view;
  view.table.corner = strings.text(8657);
  view.table.columns = {strings.text(8603), strings.text(8658), ResultHeading(choice)};
  STGraphLine line{ResultHeading(choice), {}};
  for (const STItemResults& item : analysis.items) {
    const auto result = ResultOf(item, choice);
    view.table.rows.push_back({std::to_string(item.item + 1), {item.label, item.scenarioName, Cell(result)}});
    if (result) line.points.push_back({static_cast<double>(item.item + 1), *result});
  }
  view.lines.push_back(std::move(line));
  view.xTitle = strings.text(8657);
  return view;
}

}  // namespace

STView BuildSTView(const STAnalysisData& analysis, const STResultChoice& choice, STGrouping grouping,
                   const IStringTable& strings) {
  STView view;
  switch (grouping) {
    case STGrouping::ByLevel: view = ByLevel(analysis, choice, strings); break;
    case STGrouping::ByVariable: view = ByVariable(analysis, choice, strings); break;
    case STGrouping::ByScheme: view = ByScheme(analysis, choice, strings); break;
  }
  view.grouping = grouping;
  view.yTitle = AxisTitle(choice.variable, ModifiersApply(choice.variable) ? choice.modifier : kMean, strings);
  return view;
}

STRanking RankSTInputs(const STAnalysisData& analysis, const STResultChoice& choice) {
  STRanking ranked;
  RegressionData data;
  for (const std::string& variable : analysis.variables) data.inputs.push_back(Cp1252ToUtf8(variable));
  for (const STItemResults& item : analysis.items) {
    const auto result = ResultOf(item, choice);
    if (!result) continue;
    std::vector<double> row;
    for (const std::string& variable : analysis.variables)
      if (const auto number = STInputNumber(analysis, item, variable)) row.push_back(*number);
    if (row.size() < analysis.variables.size()) {
      ranked.leftOut.push_back(item.label);
      continue;
    }
    data.rows.push_back(std::move(row));
    data.results.push_back(*result);
  }
  ranked.ranking = RankInputs(data);
  return ranked;
}

std::vector<std::string> ItemsWithoutResults(const STAnalysisData& analysis, const STResultChoice& choice,
                                             const IStringTable& strings) {
  std::vector<std::string> lines;
  for (const STItemResults& item : analysis.items) {
    const std::string name =
        std::to_string(item.item + 1) + ". " + item.label + (item.scenario ? " (" + item.scenarioName + ")" : "");
    switch (item.missing) {
      case STMissing::NoScenario: lines.push_back(name + strings.text(8675)); break;
      case STMissing::NotRun: lines.push_back(name + strings.text(8676) + item.detail); break;
      case STMissing::Unreadable: lines.push_back(name + strings.text(8677) + item.detail); break;
      case STMissing::None:
        if (!ResultOf(item, choice)) lines.push_back(name + strings.text(8678));
        break;
    }
  }
  return lines;
}

}  // namespace tamsic
