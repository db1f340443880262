#include "formula/Op.h"

#include <cmath>

namespace tamsic::formula {

namespace {

double Truth(bool value) { return value ? 1.0 : 0.0; }

}  // namespace

bool IsPure(Op op) {
  switch (op) {
    case Op::Const:
    case Op::Var:
    case Op::Indexed:
    case Op::Kin:
    case Op::Rand:
    case Op::NRand:
    case Op::SRand:
    case Op::SNRand:
      return false;
    default:
      return true;
  }
}

double Apply(Op op, double a, double b) {
  switch (op) {
    case Op::Neg: return -a;
    case Op::Not: return Truth(a == 0.0);
    case Op::Add: case Op::AddK: return a + b;
    case Op::Sub: case Op::SubK: return a - b;
    case Op::KSub: return b - a;
    case Op::Mul: case Op::MulK: return a * b;
    case Op::Div: case Op::DivK: return a / b;
    case Op::KDiv: return b / a;
    case Op::Pow: case Op::PowK: return std::pow(a, b);
    case Op::KPow: return std::pow(b, a);
    case Op::Square: return a * a;
    case Op::Lt: return Truth(a < b);
    case Op::Le: return Truth(a <= b);
    case Op::Gt: return Truth(a > b);
    case Op::Ge: return Truth(a >= b);
    case Op::Eq: return Truth(a == b);
    case Op::Ne: return Truth(a != b);
    case Op::And: return Truth(a != 0.0 && b != 0.0);
    case Op::Or: return Truth(a != 0.0 || b != 0.0);
    case Op::Sqrt: return std::sqrt(a);
    case Op::Log10: return std::log10(a);
    case Op::Ln: return std::log(a);
    case Op::Exp: return std::exp(a);
    case Op::Abs: return std::fabs(a);
    case Op::Round: return std::round(a);
    case Op::Floor: return std::floor(a);
    case Op::Ceil: return std::ceil(a);
    case Op::Sin: return std::sin(a);
    case Op::Cos: return std::cos(a);
    case Op::Tan: return std::tan(a);
    case Op::Asin: return std::asin(a);
    case Op::Acos: return std::acos(a);
    case Op::Atan: return std::atan(a);
    case Op::Min: return std::fmin(a, b);
    case Op::Max: return std::fmax(a, b);
    case Op::Mod: return std::fmod(a, b);
    default: return std::nan("");
  }
}

}  // namespace tamsic::formula
