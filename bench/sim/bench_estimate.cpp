// How close the estimate before a run comes to the run itself. For each
// project, in a folder of its own, tamsic-cli gives the estimate of all its
// scenarios (`estimate --reply`), then runs them (`run --no-estimate`), each
// in a fresh process, as a user would; the run's wall time is measured here
// and its peak resident memory taken from wait4. Prints estimate / run.
// The machine may be shared: load slows the pilot and the run alike, but
// not always at the same moments; with RUNS above 1 each figure is the
// median of so many estimates and runs, taken in turn.
//   bench_estimate [--threads N] [--runs RUNS] PROJECT.tpj...
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "engine/RunEstimate.h"

namespace {

namespace fs = std::filesystem;

struct Child {
  std::string output;  // its stdout
  double seconds = 0.0;
  double peakBytes = 0.0;
  bool ok = false;
};

// tamsic-cli with these arguments, stderr dropped.
Child RunCli(std::vector<std::string> arguments) {
  int pipe[2];
  if (::pipe(pipe) != 0) return {};
  std::fflush(stdout);
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    dup2(pipe[1], STDOUT_FILENO);
    close(pipe[0]);
    std::freopen("/dev/null", "w", stderr);
    std::vector<char*> argv{const_cast<char*>("tamsic-cli")};
    for (std::string& a : arguments) argv.push_back(a.data());
    argv.push_back(nullptr);
    execv(TAMSIC_CLI, argv.data());
    _exit(127);
  }
  close(pipe[1]);
  Child result;
  char buffer[4096];
  for (ssize_t n; (n = read(pipe[0], buffer, sizeof buffer)) > 0;)
    result.output.append(buffer, static_cast<std::size_t>(n));
  close(pipe[0]);
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child) return {};
  result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  result.peakBytes = usage.ru_maxrss * 1024.0;
  result.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
  return result;
}

// The project and the input files beside it, in a folder of their own.
fs::path CopyProject(const fs::path& project, const fs::path& folder) {
  fs::remove_all(folder);
  fs::create_directories(folder);
  for (const auto& entry : fs::directory_iterator(project.parent_path()))
    if (entry.is_regular_file() && entry.path().extension() == ".txt")
      fs::copy_file(entry.path(), folder / entry.path().filename());
  fs::copy_file(project, folder / project.filename());
  return folder / project.filename();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t n = values.size();
  return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

struct Row {
  std::vector<double> estimatedSeconds, runSeconds, estimatedBytes, runBytes, pilotSeconds;
  int piloted = 0;
};

}  // namespace

int main(int argc, char** argv) {
  std::string threads = "0";
  int runs = 1;
  std::vector<fs::path> projects;
  for (int a = 1; a < argc; ++a) {
    if (std::string(argv[a]) == "--threads" && a + 1 < argc) threads = argv[++a];
    else if (std::string(argv[a]) == "--runs" && a + 1 < argc) runs = std::max(1, std::atoi(argv[++a]));
    else projects.push_back(fs::absolute(argv[a]));
  }
  if (projects.empty()) {
    std::cerr << "usage: bench_estimate [--threads N] [--runs RUNS] PROJECT.tpj...\n";
    return 2;
  }
  const fs::path scratch = fs::temp_directory_path() / "tamsic-bench-estimate";
  std::printf("%-10s %8s %8s %6s %8s %8s %6s %8s %8s\n", "project", "est. s", "run s", "ratio", "est. MB", "run MB",
              "ratio", "piloted", "pilot s");
  int failures = 0;
  for (const fs::path& original : projects) {
    const std::string project = CopyProject(original, scratch / original.stem()).string();
    Row row;
    for (int r = 0; r < runs; ++r) {
      const Child asked = RunCli({"estimate", project, "--seed", "1", "--threads", threads, "--reply"});
      const Child run = RunCli({"run", project, "--seed", "1", "--threads", threads, "--no-estimate"});
      const auto estimate = tamsic::ParseEstimate(asked.output.substr(0, asked.output.find('\n')));
      if (!estimate || !run.ok) {
        std::cerr << original.stem().string() << ": " << (estimate ? "the run failed" : asked.output) << "\n";
        break;
      }
      row.estimatedSeconds.push_back(estimate->seconds);
      row.runSeconds.push_back(run.seconds);
      row.estimatedBytes.push_back(estimate->peakBytes);
      row.runBytes.push_back(run.peakBytes);
      row.pilotSeconds.push_back(asked.seconds);
      row.piloted = estimate->piloted;
    }
    if (static_cast<int>(row.runSeconds.size()) < runs) {
      ++failures;
      continue;
    }
    const double seconds = Median(row.estimatedSeconds), actual = Median(row.runSeconds);
    const double bytes = Median(row.estimatedBytes), peak = Median(row.runBytes);
    std::printf("%-10s %8.2f %8.2f %6.2f %8.1f %8.1f %6.2f %8d %8.2f\n", original.stem().string().c_str(), seconds,
                actual, seconds / actual, bytes / 1048576.0, peak / 1048576.0, bytes / peak, row.piloted,
                Median(row.pilotSeconds));
  }
  fs::remove_all(scratch);
  return failures == 0 ? 0 : 1;
}
