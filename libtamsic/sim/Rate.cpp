#include "sim/Rate.h"

#include <algorithm>
#include <cmath>

#include "formula/Formula.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "sim/SimContext.h"
#include "sim/SimError.h"

namespace tamsic::sim {

using formula::Op;
using formula::Var;

namespace {

bool UsesIndividual(const formula::Program& program) {
  for (Var var : {Var::A, Var::I, Var::O, Var::S, Var::V, Var::Z, Var::PARITY, Var::ID, Var::DAM, Var::SIRE,
                  Var::MATE, Var::NMATES})
    if (program.uses(var)) return true;
  for (int n = 1; n <= 10; ++n)
    if (program.uses(formula::StateVar(Var::IS1, n))) return true;
  // A random draw in a rate is a draw per individual; VV and ZZ read the individual's alleles.
  return std::any_of(program.code().begin(), program.code().end(), [](const formula::Instruction& in) {
    const auto indexed = static_cast<formula::IndexedVar>(in.b);
    return in.op == Op::Rand || in.op == Op::NRand ||
           (in.op == Op::Indexed && (indexed == formula::IndexedVar::VV || indexed == formula::IndexedVar::ZZ));
  });
}

bool UsesCounts(const formula::Program& program) {
  for (Var var : {Var::F, Var::G, Var::I, Var::J, Var::M, Var::N, Var::U, Var::W, Var::X})
    if (program.uses(var)) return true;
  using formula::IndexedVar;
  return std::any_of(program.code().begin(), program.code().end(), [](const formula::Instruction& in) {
    const auto var = static_cast<IndexedVar>(in.b);
    return in.op == Op::Indexed && (var == IndexedVar::FF || var == IndexedVar::JJ || var == IndexedVar::MM ||
                                    var == IndexedVar::NN || var == IndexedVar::II || var == IndexedVar::WW ||
                                    var == IndexedVar::XX);
  });
}

}  // namespace

Rate Rate::Read(std::string_view text, double emptyValue, const std::string& where,
                const std::filesystem::path& folder) {
  const std::string_view cell = Trim(text);
  Rate rate;
  rate.where_ = where;
  if (cell.empty()) {
    rate.value_ = emptyValue;
    return rate;
  }
  if (const auto file = formula::FileReferenceName(cell)) {
    if (file->empty()) throw SimError(where + ": \"" + std::string(cell) + "\" names no file");
    auto loaded = formula::FileSeries::FromFile(folder, *file);
    if (!loaded.series) throw SimError(where + ": " + loaded.error);
    if (loaded.series->size() == 0) throw SimError(where + ": the file " + *file + " holds no values");
    rate.series_ = std::make_shared<const formula::FileSeries>(std::move(*loaded.series));
    return rate;
  }
  if (cell.front() == '=') {
    auto compiled = formula::CompileText(cell);
    if (!compiled.program)
      throw SimError(where + ": the function \"" + std::string(cell) + "\" does not compile: " +
                     compiled.error->describe());
    if (compiled.program->uses(Var::B))
      throw SimError(where + ": the function \"" + std::string(cell) +
                     "\" uses B, the baseline of a sensitivity test, which only a test scenario can replace");
    rate.perIndividual_ = UsesIndividual(*compiled.program);
    rate.usesCounts_ = UsesCounts(*compiled.program);
    rate.program_ = std::make_shared<const formula::Program>(std::move(*compiled.program));
    return rate;
  }
  const auto number = ExactNumber(cell);
  if (!number) throw SimError(where + ": \"" + std::string(cell) + "\" is neither a number nor a function");
  rate.value_ = *number;
  return rate;
}

std::string Rate::place(const SimContext& context) const {
  const std::string year = "year " + std::to_string(context.year());
  if (context.global()) return where_ + ", " + year;
  return where_ + ", population " + std::to_string(context.population() + 1) + ", " + year;
}

void Rate::checkFinite(const SimContext& context, double result) const {
  if (!std::isfinite(result))
    throw SimError(place(context) + ": the function gives " + (std::isnan(result) ? "no number" : "an infinite value"));
}

double Rate::value(SimContext& context) const {
  if (series_) return series_->valueForYear(context.year());
  if (!program_) return value_;
  double result = 0.0;
  try {
    result = program_->evaluate(context);
  } catch (const SimError& fault) {
    throw SimError(place(context) + ": " + fault.what());
  }
  checkFinite(context, result);
  return result;
}

void Rate::values(SimContext& context, std::size_t count, double* out) const {
  if (!program_) {
    std::fill_n(out, count, value(context));
    return;
  }
  try {
    program_->evaluateBatch(context, count, out);
  } catch (const SimError& fault) {
    throw SimError(place(context) + ": " + fault.what());
  }
  for (std::size_t i = 0; i < count; ++i) checkFinite(context, out[i]);
}

}  // namespace tamsic::sim
