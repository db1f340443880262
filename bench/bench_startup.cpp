// Start-up of the desktop program to a usable main frame: each iteration
// starts the program, which quits as soon as its main frame has painted.
// Runs headless (offscreen platform) with settings in a scratch folder, so
// the welcome dialog and the user's own settings play no part.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

extern char** environ;

namespace {

int RunOnce(const std::string& program) {
  char arg0[] = "tamsic";
  char arg1[] = "--quit-after-first-paint";
  char* argv[] = {arg0, arg1, nullptr};
  pid_t pid = 0;
  if (posix_spawn(&pid, program.c_str(), nullptr, nullptr, argv, environ) != 0) return -1;
  int status = 0;
  waitpid(pid, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void BM_StartToFirstPaint(benchmark::State& state) {
  const auto scratch = std::filesystem::temp_directory_path() / "tamsic-bench-startup";
  std::filesystem::create_directories(scratch / "config");
  std::filesystem::create_directories(scratch / "runtime");
  std::filesystem::permissions(scratch / "runtime", std::filesystem::perms::owner_all);
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("XDG_CONFIG_HOME", (scratch / "config").c_str(), 1);
  setenv("XDG_RUNTIME_DIR", (scratch / "runtime").c_str(), 1);
  for (auto _ : state) {
    if (RunOnce(TAMSIC_APP) != 0) {
      state.SkipWithError("the program did not start and quit cleanly");
      break;
    }
  }
  std::filesystem::remove_all(scratch);
}
BENCHMARK(BM_StartToFirstPaint)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

}  // namespace

BENCHMARK_MAIN();
