#pragma once
// Recursive descent over the tokens, one function per level of precedence,
// lowest first: OR; AND; NOT; comparisons; + -; * /; unary - +; ^ (right
// associative, its right operand may carry a sign); numbers, names, calls
// and parentheses.
#include <memory>
#include <optional>
#include <string_view>

#include "formula/Ast.h"
#include "formula/FormulaError.h"

namespace tamsic::formula {

// Parentheses, calls, signs and NOTs may nest this deep.
inline constexpr int kMaxNesting = 100;
// A tree of at most this height; a longer chain such as 1+1+...+1 is refused.
inline constexpr int kMaxHeight = 1000;

struct ParseResult {
  std::unique_ptr<Node> tree;
  std::optional<FormulaError> error;
};

// Parses a function as typed; one leading "=" is skipped.
ParseResult Parse(std::string_view text);

}  // namespace tamsic::formula
