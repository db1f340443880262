// Feeds arbitrary text to the function language: check it, compile it and
// evaluate it; read it as a file of yearly values too. No input may crash, hang or read out of bounds.
#include <cstdint>
#include <string_view>

#include "GraphContext.h"
#include "formula/FileSeries.h"
#include "formula/Formula.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto checked = tamsic::formula::Check(text);
  const auto compiled = tamsic::formula::CompileText(text);
  if (checked.error.has_value() != compiled.error.has_value()) __builtin_trap();
  if (compiled.program) {
    tamsic::GraphContext context({tamsic::formula::Var::N, std::nullopt, false}, 1);
    context.setX(size);
    compiled.program->evaluate(context);
  }
  const auto series = tamsic::formula::FileSeries::FromText(text);
  if (series.series) series.series->valueForYear(static_cast<int>(size));
  return 0;
}
