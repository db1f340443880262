#include "formula/Program.h"

#include <algorithm>
#include <array>

namespace tamsic::formula {

bool Program::uses(Var var) const {
  return std::find(variables_.begin(), variables_.end(), var) != variables_.end();
}

double Program::evaluate(EvalContext& context) const {
  std::array<double, static_cast<std::size_t>(Var::Count)> slots;
  for (std::size_t i = 0; i < variables_.size(); ++i) slots[i] = context.variable(variables_[i]);

  double stack[kMaxStack];
  double* top = stack;  // one past the topmost value
  for (const Instruction& in : code_) {
    switch (in.op) {
      case Op::Const: *top++ = in.value; break;
      case Op::Var: *top++ = slots[in.index]; break;
      case Op::Indexed:
        top[-1] = context.indexed(static_cast<IndexedVar>(in.index), top[-1]);
        break;
      case Op::Kin:
        top[-2] = context.kinship(top[-2], top[-1]);
        --top;
        break;
      case Op::Rand: *top++ = context.uniform(); break;
      case Op::NRand: *top++ = context.normal(); break;
      case Op::SRand: top[-1] = context.seededUniform(top[-1]); break;
      case Op::SNRand: top[-1] = context.seededNormal(top[-1]); break;
      case Op::Neg: top[-1] = -top[-1]; break;
      case Op::Add: top[-2] += top[-1]; --top; break;
      case Op::Sub: top[-2] -= top[-1]; --top; break;
      case Op::Mul: top[-2] *= top[-1]; --top; break;
      case Op::Div: top[-2] /= top[-1]; --top; break;
      case Op::AddK: top[-1] += in.value; break;
      case Op::SubK: top[-1] -= in.value; break;
      case Op::KSub: top[-1] = in.value - top[-1]; break;
      case Op::MulK: top[-1] *= in.value; break;
      case Op::DivK: top[-1] /= in.value; break;
      case Op::KDiv: top[-1] = in.value / top[-1]; break;
      case Op::Square: top[-1] *= top[-1]; break;
      case Op::PowK:
      case Op::KPow:
        top[-1] = Apply(in.op, top[-1], in.value);
        break;
      case Op::Pow: case Op::Lt: case Op::Le: case Op::Gt: case Op::Ge: case Op::Eq:
      case Op::Ne: case Op::And: case Op::Or: case Op::Min: case Op::Max: case Op::Mod:
        top[-2] = Apply(in.op, top[-2], top[-1]);
        --top;
        break;
      default:
        top[-1] = Apply(in.op, top[-1]);
        break;
    }
  }
  return top[-1];
}

}  // namespace tamsic::formula
