#pragma once
// The entry points of the function language: check a text and give its
// Polish form, or compile it for evaluation.
#include <optional>
#include <string>
#include <string_view>

#include "formula/FormulaError.h"
#include "formula/Program.h"

namespace tamsic::formula {

struct Checked {
  std::string polish;
  std::optional<FormulaError> error;
};

struct Compiled {
  std::optional<Program> program;
  std::optional<FormulaError> error;
};

// Text as typed; one leading "=" is skipped.
Checked Check(std::string_view text);
Compiled CompileText(std::string_view text);

}  // namespace tamsic::formula
