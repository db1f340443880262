#include "sim/Team.h"

#include <charconv>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace tamsic::sim {

namespace {

std::optional<int> Number(const char* variable) {
  const char* text = std::getenv(variable);
  if (text == nullptr) return std::nullopt;
  const std::string_view digits(text);
  int value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size() || value < 0) return std::nullopt;
  return value;
}

}  // namespace

void SoloTeam::post(int, int, std::string) { throw std::logic_error("a process alone has nobody to write to"); }

// Open MPI's mpirun, the PMI of MPICH's and Slurm's launchers, a Slurm job
// step (srun; a batch script's own shell has no step count), and last a PMIx
// launcher, which names the rank alone.
Launch LaunchedTogether() {
  const std::pair<const char*, const char*> launchers[] = {{"OMPI_COMM_WORLD_SIZE", "OMPI_COMM_WORLD_RANK"},
                                                           {"PMI_SIZE", "PMI_RANK"},
                                                           {"SLURM_STEP_NUM_TASKS", "SLURM_PROCID"}};
  for (const auto& [size, rank] : launchers)
    if (const auto count = Number(size)) return {Number(rank).value_or(0), *count};
  if (const auto rank = Number("PMIX_RANK")) return {*rank, 0};
  return {};
}

}  // namespace tamsic::sim
