#include "formula/Formula.h"

#include "formula/Compiler.h"
#include "formula/Parser.h"
#include "formula/Polish.h"

namespace tamsic::formula {

Checked Check(std::string_view text) {
  const ParseResult parsed = Parse(text);
  if (parsed.error) return {"", parsed.error};
  return {ToPolish(*parsed.tree), std::nullopt};
}

Compiled CompileText(std::string_view text) {
  const ParseResult parsed = Parse(text);
  if (parsed.error) return {std::nullopt, parsed.error};
  return {Compile(*parsed.tree), std::nullopt};
}

}  // namespace tamsic::formula
