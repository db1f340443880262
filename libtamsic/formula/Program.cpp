#include "formula/Program.h"

#include <algorithm>

namespace tamsic::formula {

namespace {

// Items evaluated together by evaluateBatch.
constexpr std::size_t kBatchLanes = 16;
// Registers kept on the stack; very long functions use the heap.
constexpr std::size_t kStackRegisters = 64;

// Runs the program for L items at once; register x of item l is r[x * L + l].
// Only the first `active` items are real; the others are kept at 0 so that
// no instruction reads an undefined value.
template <std::size_t L>
class Kernel {
 public:
  Kernel(EvalContext& context, double* r, std::size_t first, std::size_t active)
      : context_(context), r_(r), first_(first), active_(active) {}

  void fetch(const std::vector<Var>& variables) {
    if (variables.empty()) return;
    if constexpr (L == 1) {
      context_.fetch(variables.data(), variables.size(), r_);
    } else {
      context_.fetchBatch(variables.data(), variables.size(), first_, active_, r_, L);
      for (std::size_t v = 0; v < variables.size(); ++v)
        std::fill(r_ + v * L + active_, r_ + (v + 1) * L, 0.0);
    }
  }

  void run(const std::vector<Instruction>& code) {
    for (const Instruction& in : code) {
      switch (in.op) {
        case Op::Const: each(in, [k = in.k](double, double) { return k; }); break;
        case Op::Indexed:
          ask(in, [&](double a, double) {
            return context_.indexed(static_cast<IndexedVar>(in.b), a);
          });
          break;
        case Op::Kin: ask(in, [&](double a, double b) { return context_.kinship(a, b); }); break;
        case Op::Rand: ask(in, [&](double, double) { return context_.uniform(); }); break;
        case Op::NRand: ask(in, [&](double, double) { return context_.normal(); }); break;
        case Op::SRand: ask(in, [&](double a, double) { return context_.seededUniform(a); }); break;
        case Op::SNRand: ask(in, [&](double a, double) { return context_.seededNormal(a); }); break;
        case Op::Add: each(in, [](double a, double b) { return a + b; }); break;
        case Op::Sub: each(in, [](double a, double b) { return a - b; }); break;
        case Op::Mul: each(in, [](double a, double b) { return a * b; }); break;
        case Op::Div: each(in, [](double a, double b) { return a / b; }); break;
        case Op::AddK: each(in, [k = in.k](double a, double) { return a + k; }); break;
        case Op::SubK: each(in, [k = in.k](double a, double) { return a - k; }); break;
        case Op::KSub: each(in, [k = in.k](double a, double) { return k - a; }); break;
        case Op::MulK: each(in, [k = in.k](double a, double) { return a * k; }); break;
        case Op::DivK: each(in, [k = in.k](double a, double) { return a / k; }); break;
        case Op::KDiv: each(in, [k = in.k](double a, double) { return k / a; }); break;
        case Op::Square: each(in, [](double a, double) { return a * a; }); break;
        case Op::PowK:
        case Op::KPow:
          each(in, [&in](double a, double) { return Apply(in.op, a, in.k); });
          break;
        default:
          each(in, [&in](double a, double b) { return Apply(in.op, a, b); });
          break;
      }
    }
  }

 private:
  // Arithmetic, for every lane.
  template <class F>
  void each(const Instruction& in, F f) {
    double* d = r_ + in.dst * L;
    const double* a = r_ + in.a * L;
    const double* b = r_ + in.b * L;
    for (std::size_t l = 0; l < L; ++l) d[l] = f(a[l], b[l]);
  }

  // A question to the context, for the real items only.
  template <class F>
  void ask(const Instruction& in, F f) {
    double* d = r_ + in.dst * L;
    const double* a = r_ + in.a * L;
    const double* b = r_ + in.b * L;
    for (std::size_t l = 0; l < L; ++l) {
      if (l >= active_) {
        d[l] = 0.0;
        continue;
      }
      if constexpr (L > 1) context_.select(first_ + l);
      d[l] = f(a[l], b[l]);
    }
  }

  EvalContext& context_;
  double* r_;
  std::size_t first_;
  std::size_t active_;
};

// A frame on the stack when it fits in Size doubles, else on the heap.
template <std::size_t Size>
class Frame {
 public:
  explicit Frame(std::size_t size) {
    if (size > Size) heap_.resize(size);
  }
  double* data() { return heap_.empty() ? stack_ : heap_.data(); }

 private:
  double stack_[Size];
  std::vector<double> heap_;
};

}  // namespace

bool Program::uses(Var var) const {
  return std::find(variables_.begin(), variables_.end(), var) != variables_.end();
}

double Program::evaluate(EvalContext& context) const {
  Frame<kStackRegisters> frame(frameSize_);
  Kernel<1> kernel(context, frame.data(), 0, 1);
  kernel.fetch(variables_);
  kernel.run(code_);
  return frame.data()[result_];
}

void Program::evaluateBatch(EvalContext& context, std::size_t count, double* results) const {
  Frame<kStackRegisters * kBatchLanes> frame(frameSize_ * kBatchLanes);
  double* r = frame.data();
  for (std::size_t first = 0; first < count; first += kBatchLanes) {
    const std::size_t active = std::min(kBatchLanes, count - first);
    Kernel<kBatchLanes> kernel(context, r, first, active);
    kernel.fetch(variables_);
    kernel.run(code_);
    std::copy_n(r + result_ * kBatchLanes, active, results + first);
  }
}

}  // namespace tamsic::formula
