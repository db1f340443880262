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

class Compiler {
 public:
  Program run(const Node& tree) {
    if (const auto constant = emit(tree)) push(Op::Const, 0, *constant);
    return Program(std::move(code_), std::move(variables_));
  }

 private:
  void push(Op op, std::uint8_t index, double value = 0.0) { code_.push_back({op, index, value}); }

  std::uint8_t slotOf(std::uint8_t var) {
    const auto it = std::find(variables_.begin(), variables_.end(), static_cast<Var>(var));
    if (it != variables_.end()) return static_cast<std::uint8_t>(it - variables_.begin());
    variables_.push_back(static_cast<Var>(var));
    return static_cast<std::uint8_t>(variables_.size() - 1);
  }

  // Emits the code of `node`, or nothing and returns the value when the
  // node is a constant.
  std::optional<double> emit(const Node& node) {
    if (node.op == Op::Const) return node.value;
    if (node.op == Op::Var) {
      push(Op::Var, slotOf(node.index));
      return std::nullopt;
    }
    std::vector<std::size_t> marks;
    std::vector<std::optional<double>> operands;
    for (const auto& child : node.children) {
      marks.push_back(code_.size());
      operands.push_back(emit(*child));
    }
    const bool allConstant =
        std::all_of(operands.begin(), operands.end(), [](const auto& v) { return v.has_value(); });
    if (IsPure(node.op) && allConstant)
      return Apply(node.op, operands[0].value_or(0.0),
                   operands.size() > 1 ? operands[1].value_or(0.0) : 0.0);
    if (operands.size() == 2 && operands[0].has_value() != operands[1].has_value()) {
      if (const auto forms = FoldedForms(node.op)) {
        emitFolded(*forms, operands);
        return std::nullopt;
      }
    }
    for (std::size_t i = operands.size(); i-- > 0;)
      if (operands[i])
        code_.insert(code_.begin() + static_cast<std::ptrdiff_t>(marks[i]),
                     Instruction{Op::Const, 0, *operands[i]});
    push(node.op, node.index);
    return std::nullopt;
  }

  void emitFolded(const Folded& forms, const std::vector<std::optional<double>>& operands) {
    if (operands[1]) {
      if (forms.right == Op::PowK && *operands[1] == 2.0)
        push(Op::Square, 0);
      else
        push(forms.right, 0, *operands[1]);
    } else {
      push(forms.left, 0, *operands[0]);
    }
  }

  std::vector<Instruction> code_;
  std::vector<Var> variables_;
};

}  // namespace

Program Compile(const Node& tree) { return Compiler().run(tree); }

}  // namespace tamsic::formula
