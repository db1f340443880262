#pragma once
// Turns a parsed tree into a Program: operations on constants are worked out
// once, a constant operand of + - * / ^ is folded into the instruction, and
// x^2 becomes a multiplication.
#include "formula/Ast.h"
#include "formula/Program.h"

namespace tamsic::formula {

Program Compile(const Node& tree);

}  // namespace tamsic::formula
