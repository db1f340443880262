// Times a whole run of a project's first scenario through the engine's run
// entry, as tamsicsim makes it, and reports wall time, individual-years per
// second (individuals alive each year, summed over years and iterations)
// and peak memory. With RUNS above 1 it reports the fastest run, since a
// shared machine only ever slows a run down.
//   bench_sim PROJECT.tpj [THREADS] [RUNS]
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

#include "sim/Runner.h"

namespace {

// The first scenario's name and number of iterations, as the project file has them.
struct FirstScenario {
  std::string name;
  int iterations = 0;
};

std::string Quoted(const std::string& line) {
  const auto open = line.find('"');
  return line.substr(open + 1, line.find('"', open + 1) - open - 1);
}

FirstScenario ReadFirstScenario(const std::filesystem::path& project) {
  std::ifstream in(project);
  FirstScenario first;
  std::string line;
  while (std::getline(in, line) && (first.name.empty() || first.iterations == 0)) {
    if (first.name.empty() && line.starts_with("ScenarioName=")) first.name = Quoted(line);
    if (first.iterations == 0 && line.starts_with("NumIter=")) first.iterations = std::stoi(Quoted(line));
  }
  return first;
}

std::string ProjectTitle(const std::filesystem::path& project) {
  std::ifstream in(project);
  std::string line;
  while (std::getline(in, line))
    if (line.starts_with("ProjectTitle=")) return Quoted(line);
  return project.stem().string();
}

// Sum over years 1..Y of mean N[all] times the iterations, from the yearly data of the last block.
double IndividualYears(const std::string& dat, const std::string& scenario, int iterations) {
  std::ifstream in(dat);
  std::string line;
  while (std::getline(in, line) && line != scenario + "\r") {
  }
  double sum = 0.0;
  std::vector<double> block;
  while (std::getline(in, line)) {
    std::istringstream fields(line);
    std::string year, cell;
    std::getline(fields, year, ';');
    for (int f = 1; f <= 12; ++f) std::getline(fields, cell, ';');
    if (std::stoi(year) == 0) block.clear();
    block.push_back(std::stod(cell));
  }
  for (std::size_t y = 1; y < block.size(); ++y) sum += block[y];
  return sum * iterations;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: bench_sim PROJECT.tpj [THREADS] [RUNS]\n";
    return 2;
  }
  const std::filesystem::path project = std::filesystem::absolute(argv[1]);
  const std::string threads = argc > 2 ? argv[2] : "0";
  const std::string name = project.stem().string();
  const FirstScenario scenario = ReadFirstScenario(project);
  const auto folder = std::filesystem::temp_directory_path() / ("tamsic-bench-" + name);
  std::filesystem::create_directories(folder);
  std::filesystem::current_path(folder);
  const int runs = argc > 3 ? std::max(1, std::atoi(argv[3])) : 1;
  double seconds = 0.0;
  for (int run = 0; run < runs; ++run) {
    const auto start = std::chrono::steady_clock::now();
    const std::string reply =
        tamsic::sim::RunScenarios(project.string(), "{" + scenario.name + "}", "SEED1;THREADS" + threads);
    const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (!reply.starts_with("Message")) {
      std::cerr << reply << "\n";
      return 1;
    }
    seconds = run == 0 ? took : std::min(seconds, took);
  }
  // A project of one population has its block last, one of several the metapopulation's.
  const std::string dat = ProjectTitle(project) + "_" + scenario.name + ".dat";
  const double years = IndividualYears((folder / dat).string(), scenario.name, scenario.iterations);
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::cout << name << " threads " << threads << (runs > 1 ? ", best of " + std::to_string(runs) : std::string())
            << ": " << seconds << " s, " << years / seconds / 1e6
            << " million individual-years per second (" << years / 1e6 << " million), peak memory "
            << usage.ru_maxrss / 1024 << " MB\n";
  std::filesystem::remove_all(folder);
  return 0;
}
