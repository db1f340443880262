// The density-dependent breeding function, evaluated as the simulation will
// evaluate it (once per population per year, N and K changing every time):
// the compiled program, one evaluation at a time and in batches, against the
// same formula written in C++.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "formula/Formula.h"

namespace {

using tamsic::formula::Var;

struct Census {
  double n;
  double k;
};

std::vector<Census> Censuses() {
  std::vector<Census> censuses;
  for (int i = 0; i < 1024; ++i) censuses.push_back({1.0 + (i * 37) % 500, 50.0 + (i * 11) % 450});
  return censuses;
}

class CensusContext : public tamsic::formula::EvalContext {
 public:
  const Census* census = nullptr;
  const Census* batch = nullptr;

  void select(std::size_t item) override { census = batch + item; }
  void fetchBatch(const Var* vars, std::size_t count, std::size_t first, std::size_t items,
                  double* values, std::size_t stride) override {
    for (std::size_t v = 0; v < count; ++v)
      for (std::size_t i = 0; i < items; ++i)
        values[v * stride + i] = vars[v] == Var::N ? batch[first + i].n : batch[first + i].k;
  }

  double variable(Var var) override { return var == Var::N ? census->n : census->k; }
  // As the simulation will: one call fills every variable the function uses.
  void fetch(const Var* vars, std::size_t count, double* values) override {
    for (std::size_t i = 0; i < count; ++i) values[i] = vars[i] == Var::N ? census->n : census->k;
  }
  double indexed(tamsic::formula::IndexedVar, double) override { return 0.0; }
  double kinship(double, double) override { return 0.0; }
  double uniform() override { return 0.0; }
  double normal() override { return 0.0; }
  double seededUniform(double) override { return 0.0; }
  double seededNormal(double) override { return 0.0; }
};

void HandWritten(benchmark::State& state) {
  const auto censuses = Censuses();
  std::size_t i = 0;
  for (auto _ : state) {
    const Census& c = censuses[i++ & 1023];
    double breeding = (50 - ((50 - 20) * std::pow(c.n / c.k, 2))) * (c.n / (5 + c.n));
    benchmark::DoNotOptimize(breeding);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(HandWritten);

void Compiled(benchmark::State& state) {
  const auto censuses = Censuses();
  const auto compiled = tamsic::formula::CompileText("=(50-((50-20)*((N/K)^2)))*(N/(5+N))");
  CensusContext context;
  std::size_t i = 0;
  for (auto _ : state) {
    context.census = &censuses[i++ & 1023];
    double breeding = compiled.program->evaluate(context);
    benchmark::DoNotOptimize(breeding);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Compiled);

// The simulation evaluates a function for all individuals or populations of
// a year in one batch.
void CompiledBatch(benchmark::State& state) {
  const auto censuses = Censuses();
  const auto compiled = tamsic::formula::CompileText("=(50-((50-20)*((N/K)^2)))*(N/(5+N))");
  CensusContext context;
  context.batch = censuses.data();
  std::vector<double> breeding(censuses.size());
  for (auto _ : state) {
    compiled.program->evaluateBatch(context, censuses.size(), breeding.data());
    benchmark::DoNotOptimize(breeding.data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(censuses.size()));
}
BENCHMARK(CompiledBatch);

}  // namespace

BENCHMARK_MAIN();
