#pragma once
// The prefix (Polish) form of a parsed function: each operation before its
// operands, tokens separated by blanks. Unary minus prints as NEG.
#include <string>

#include "formula/Ast.h"

namespace tamsic::formula {

std::string ToPolish(const Node& tree);

}  // namespace tamsic::formula
