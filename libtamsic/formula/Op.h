#pragma once
// The operations of a compiled function. The parser builds its tree from the
// same codes, so one table of names serves the tree, the Polish form and the
// bytecode. The forms after `FirstCompilerForm` only come from the compiler,
// which folds a constant operand into the instruction.
#include <cstdint>

namespace tamsic::formula {

enum class Op : std::uint8_t {
  Const, Var, Indexed, Kin, Rand, NRand, SRand, SNRand,
  Neg, Not,
  Add, Sub, Mul, Div, Pow,
  Lt, Le, Gt, Ge, Eq, Ne, And, Or,
  Sqrt, Log10, Ln, Exp, Abs, Round, Floor, Ceil, Sin, Cos, Tan, Asin, Acos, Atan,
  Min, Max, Mod,
  AddK, SubK, KSub, MulK, DivK, KDiv, PowK, KPow, Square,
};

// True for operations whose result depends on their operands only, so that
// the compiler may work them out once when every operand is a constant.
bool IsPure(Op op);

// The result of a pure operation of one or two operands.
double Apply(Op op, double a, double b = 0.0);

}  // namespace tamsic::formula
