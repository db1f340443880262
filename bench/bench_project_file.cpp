// Loading and saving a large project: 200 scenarios of 50 populations each.
// Reports bytes per second; run with --benchmark_counters_tabular=true.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "app/EnglishMessages.h"
#include "files/ProjectFile.h"

namespace tamsic {
namespace {

constexpr std::size_t kScenarios = 200;
constexpr std::size_t kPopulations = 50;

class QuietBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest&) override { return MsgAnswer::Ok; }
};

clsScenario LargeScenario(std::size_t number) {
  clsScenario scenario;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    switch (Describe(field).kind) {
      case FieldKind::Text: scenario.SetText(field, std::to_string(number * 7 % 100 + i)); break;
      case FieldKind::Truth: scenario.SetTruth(field, i % 2 == 0); break;
      case FieldKind::Check: scenario.SetCheck(field, 1); break;
      case FieldKind::Grid: {
        // Per-population grids: a heading row and one row per population, a dozen columns.
        Grid grid(kPopulations + 1, 12);
        for (std::size_t r = 0; r < grid.rows(); ++r)
          for (std::size_t c = 0; c < grid.cols(); ++c)
            grid.at(r, c) = r == 0 ? "Heading " + std::to_string(c) : std::to_string((r * 13 + c) % 97) + ".5";
        scenario.SetGrid(field, std::move(grid));
      }
    }
  }
  scenario.SetText(F("txtSceneName"), "Scenario " + std::to_string(number));
  return scenario;
}

struct Fixture {
  Fixture() {
    for (std::size_t n = 1; n <= kScenarios; ++n) project.scenarios.Add(LargeScenario(n));
    path = (std::filesystem::temp_directory_path() / "tamsic-bench.tpj").string();
    sparsePath = (std::filesystem::temp_directory_path() / "tamsic-bench-sparse.tpj").string();
    SaveProject(project, path, messages);
    // The same file with every second scalar key of the scenarios renamed, as a file from
    // another version might have them: look-ups of keys that are not there
    // must not make the load quadratic.
    std::ifstream in(path, std::ios::binary);
    std::ostringstream sparse;
    std::string line;
    bool inScenarios = false;
    for (std::size_t i = 0; std::getline(in, line); ++i) {
      inScenarios = inScenarios || line.rfind("[1 ", 0) == 0;
      const bool rename = inScenarios && i % 2 == 0 && line.find("=\"") != std::string::npos;
      sparse << (rename ? "Old" : "") << line << '\n';
    }
    std::ofstream(sparsePath, std::ios::binary) << sparse.str();
    for (const std::string& file : {path, sparsePath})
      if (LoadProject(file, kFileVersion, messages).scenarios.Count() != kScenarios)
        throw std::runtime_error(file + " did not load whole");
  }
  ~Fixture() {
    std::filesystem::remove(path);
    std::filesystem::remove(sparsePath);
  }
  QuietBox box;
  EnglishMessages strings;
  Messages messages{box, strings};
  ProjectDocument project;
  std::string path;
  std::string sparsePath;
};

Fixture& Shared() {
  static Fixture fixture;
  return fixture;
}

void Load(benchmark::State& state, const std::string& path) {
  Fixture& f = Shared();
  for (auto _ : state) benchmark::DoNotOptimize(LoadProject(path, kFileVersion, f.messages));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * std::filesystem::file_size(path)));
}

void BM_LoadProject(benchmark::State& state) { Load(state, Shared().path); }
void BM_LoadProjectWithMissingKeys(benchmark::State& state) { Load(state, Shared().sparsePath); }

void BM_SaveProject(benchmark::State& state) {
  Fixture& f = Shared();
  for (auto _ : state) SaveProject(f.project, f.path, f.messages);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * std::filesystem::file_size(f.path)));
}

BENCHMARK(BM_LoadProject)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadProjectWithMissingKeys)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveProject)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamsic

BENCHMARK_MAIN();
