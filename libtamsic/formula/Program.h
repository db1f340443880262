#pragma once
// A compiled function: a flat list of three-address instructions over a frame
// of registers, evaluated many times without parsing again. The first
// registers hold the variables the function uses, fetched from the context
// once per evaluation; the rest hold intermediate results. Every register
// has one slot per item of a batch.
#include <cstdint>
#include <vector>

#include "formula/EvalContext.h"
#include "formula/Op.h"

namespace tamsic::formula {

struct Instruction {
  Op op;
  std::uint16_t dst;
  std::uint16_t a;  // first operand register
  std::uint16_t b;  // second operand register, or the IndexedVar
  double k;         // the constant of Const and the folded forms
};

class Program {
 public:
  Program(std::vector<Instruction> code, std::vector<Var> variables, std::uint16_t result,
          std::size_t frameSize)
      : code_(std::move(code)), variables_(std::move(variables)), result_(result),
        frameSize_(frameSize) {}

  double evaluate(EvalContext& context) const;
  // The values for items 0 .. count-1, selected in turn on the context. The
  // instructions run for several items at a time, which is much faster than
  // one evaluation after another. Random draws are made item by item within
  // each instruction, so they come in another order than from single
  // evaluations, but the same for the same seed.
  void evaluateBatch(EvalContext& context, std::size_t count, double* results) const;

  bool uses(Var var) const;
  const std::vector<Var>& variables() const { return variables_; }
  const std::vector<Instruction>& code() const { return code_; }

 private:
  std::vector<Instruction> code_;
  std::vector<Var> variables_;  // in register order
  std::uint16_t result_;
  std::size_t frameSize_;
};

}  // namespace tamsic::formula
