#include "ExampleScenario.h"

#include "model/ScenarioShape.h"

namespace tamsic::examples {

ExampleScenario::ExampleScenario(const std::string& name, const LayoutCounts& counts) {
  for (std::size_t i = 0; i < kFieldCount; ++i)
    if (Describe(Field{i}).kind == FieldKind::Grid) scenario_.SetGrid(Field{i}, LayoutGrid(Field{i}, counts));
  scenario_.ResetNotes();
  scenario_.SetText(F("txtSceneName"), name);
  for (Field first : {F("optExtinctDef_0"), F("optMPHLQ_0"), F("optUseMean_0"), F("optStartWith_0"),
                      F("GTallyOptButton_0"), F("SSOptGenMgtPairMK_0")})
    option(first);
}

ExampleScenario& ExampleScenario::text(Field field, const std::string& value) {
  scenario_.SetText(field, value);
  return *this;
}

ExampleScenario& ExampleScenario::option(Field chosen) {
  for (Field other : OptionGroupOf(chosen)) scenario_.SetTruth(other, other == chosen);
  return *this;
}

ExampleScenario& ExampleScenario::check(Field field, bool on) {
  scenario_.SetCheck(field, on ? 1 : 0);
  return *this;
}

ExampleScenario& ExampleScenario::row(Field grid, std::size_t row, std::initializer_list<std::string> cells) {
  std::size_t col = 1;
  for (const auto& value : cells) cell(grid, row, col++, value);
  return *this;
}

ExampleScenario& ExampleScenario::column(Field grid, std::size_t col, std::initializer_list<std::string> cells) {
  std::size_t row = 1;
  for (const auto& value : cells) cell(grid, row++, col, value);
  return *this;
}

ExampleScenario& ExampleScenario::cell(Field grid, std::size_t row, std::size_t col, const std::string& value) {
  Grid table = scenario_.GetGrid(grid);
  table.at(row, col) = value;
  scenario_.SetGrid(grid, std::move(table));
  return *this;
}

}  // namespace tamsic::examples
