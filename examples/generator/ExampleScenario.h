#pragma once
// A small builder that fills a scenario the way a user fills the input pages.
#include <initializer_list>
#include <string>

#include "model/GridLayouts.h"
#include "model/clsScenario.h"

namespace tamsic::examples {

class ExampleScenario {
 public:
  ExampleScenario(const std::string& name, const LayoutCounts& counts);

  ExampleScenario& text(Field field, const std::string& value);
  ExampleScenario& option(Field chosen);
  ExampleScenario& check(Field field, bool on = true);
  // Sets the cells of row `row` from column 1 on.
  ExampleScenario& row(Field grid, std::size_t row, std::initializer_list<std::string> cells);
  // Sets the cells of column `col` from row 1 on.
  ExampleScenario& column(Field grid, std::size_t col, std::initializer_list<std::string> cells);
  ExampleScenario& cell(Field grid, std::size_t row, std::size_t col, const std::string& value);

  const clsScenario& scenario() const { return scenario_; }

 private:
  clsScenario scenario_;
};

}  // namespace tamsic::examples
