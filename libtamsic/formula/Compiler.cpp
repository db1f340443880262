#include "formula/Compiler.h"

#include <algorithm>
#include <optional>

namespace tamsic::formula {

namespace {

struct Folded {
  Op right;  // the form when the constant is the right operand
  Op left;   // ... and when it is the left one
};

std::optional<Folded> FoldedForms(Op op) {
  switch (op) {
    case Op::Add: return Folded{Op::AddK, Op::AddK};
    case Op::Sub: return Folded{Op::SubK, Op::KSub};
    case Op::Mul: return Folded{Op::MulK, Op::MulK};
    case Op::Div: return Folded{Op::DivK, Op::KDiv};
    case Op::Pow: return Folded{Op::PowK, Op::KPow};
    default: return std::nullopt;
  }
}

// Where an operand is: a constant not yet in any register, or a register.
struct Operand {
  std::optional<double> constant;
  std::uint16_t reg = 0;
};

class Compiler {
 public:
  Program run(const Node& tree) {
    collectVariables(tree);
    used_.assign(variables_.size(), true);
    const Operand result = materialize(emit(tree));
    return Program(std::move(code_), std::move(variables_), result.reg, used_.size());
  }

 private:
  void collectVariables(const Node& node) {
    if (node.op == Op::Var &&
        std::find(variables_.begin(), variables_.end(), static_cast<Var>(node.index)) ==
            variables_.end())
      variables_.push_back(static_cast<Var>(node.index));
    for (const auto& child : node.children) collectVariables(*child);
  }

  std::uint16_t registerOf(Var var) const {
    return static_cast<std::uint16_t>(std::find(variables_.begin(), variables_.end(), var) -
                                      variables_.begin());
  }

  // The lowest free register; variables' registers are never free.
  std::uint16_t allocate() {
    const auto free = std::find(used_.begin(), used_.end(), false);
    const auto index = static_cast<std::size_t>(free - used_.begin());
    if (free == used_.end()) used_.push_back(true);
    used_[index] = true;
    return static_cast<std::uint16_t>(index);
  }

  void release(const Operand& operand) {
    if (!operand.constant && operand.reg >= variables_.size()) used_[operand.reg] = false;
  }

  Operand materialize(Operand operand) {
    if (!operand.constant) return operand;
    const std::uint16_t reg = allocate();
    code_.push_back({Op::Const, reg, 0, 0, *operand.constant});
    return {std::nullopt, reg};
  }

  Operand emit(const Node& node) {
    if (node.op == Op::Const) return {node.value, 0};
    if (node.op == Op::Var) return {std::nullopt, registerOf(static_cast<Var>(node.index))};

    std::vector<Operand> operands;
    for (const auto& child : node.children) operands.push_back(emit(*child));
    const bool allConstant = std::all_of(operands.begin(), operands.end(),
                                         [](const Operand& o) { return o.constant.has_value(); });
    if (IsPure(node.op) && allConstant)
      return {Apply(node.op, operands[0].constant.value_or(0.0),
                    operands.size() > 1 ? operands[1].constant.value_or(0.0) : 0.0),
              0};
    if (operands.size() == 2 && operands[0].constant.has_value() != operands[1].constant.has_value())
      if (const auto forms = FoldedForms(node.op)) return emitFolded(*forms, operands);

    for (auto& operand : operands) operand = materialize(operand);
    for (const auto& operand : operands) release(operand);
    const std::uint16_t dst = allocate();
    const std::uint16_t a = operands.empty() ? 0 : operands[0].reg;
    const std::uint16_t b = node.op == Op::Indexed ? node.index
                            : operands.size() > 1  ? operands[1].reg
                                                   : 0;
    code_.push_back({node.op, dst, a, b, 0.0});
    return {std::nullopt, dst};
  }

  Operand emitFolded(const Folded& forms, const std::vector<Operand>& operands) {
    const bool constantRight = operands[1].constant.has_value();
    const Operand& value = constantRight ? operands[0] : operands[1];
    const double k = constantRight ? *operands[1].constant : *operands[0].constant;
    release(value);
    const std::uint16_t dst = allocate();
    if (constantRight && forms.right == Op::PowK && k == 2.0)
      code_.push_back({Op::Square, dst, value.reg, 0, 0.0});
    else
      code_.push_back({constantRight ? forms.right : forms.left, dst, value.reg, 0, k});
    return {std::nullopt, dst};
  }

  std::vector<Instruction> code_;
  std::vector<Var> variables_;
  std::vector<bool> used_;  // registers in use
};

}  // namespace

Program Compile(const Node& tree) { return Compiler().run(tree); }

}  // namespace tamsic::formula
