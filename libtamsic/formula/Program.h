#pragma once
// A compiled function: a flat postfix program over a value stack, evaluated
// many times without parsing again. Each distinct plain variable is asked of
// the context once per evaluation.
#include <cstdint>
#include <vector>

#include "formula/EvalContext.h"
#include "formula/Op.h"
#include "formula/Parser.h"

namespace tamsic::formula {

struct Instruction {
  Op op;
  std::uint8_t index;  // a slot of a variable, or the IndexedVar
  double value;        // the constant of Const and the folded forms
};

// Stack needed by any tree the parser accepts.
inline constexpr int kMaxStack = kMaxHeight + 2;

class Program {
 public:
  Program(std::vector<Instruction> code, std::vector<Var> variables)
      : code_(std::move(code)), variables_(std::move(variables)) {}

  double evaluate(EvalContext& context) const;

  bool uses(Var var) const;
  const std::vector<Instruction>& code() const { return code_; }

 private:
  std::vector<Instruction> code_;
  std::vector<Var> variables_;  // distinct, in slot order
};

}  // namespace tamsic::formula
