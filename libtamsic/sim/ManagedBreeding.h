#pragma once
// Breeding as a managed programme runs it, when the genetic-management page
// asks for it: only as many females breed as keep the population at K; pairs
// are formed by mean kinship or at random with matings refused above a
// kinship; and a male is paired with at most MaxNumMates females a year.
#include <cstdint>
#include <vector>

#include "sim/Model.h"
#include "sim/SimContext.h"
#include "sim/World.h"

namespace tamsic::sim {

// `mothers` are the females that would breed this year and `pool` the males
// in the breeding pool (member indexes); answers the sire of each mother,
// UINT32_MAX for none, in `sires`, and may leave out mothers.
void ManageBreeding(const Model& model, const PopulationModel& inputs, PopulationState& pop, World& world,
                    SimContext& context, std::vector<std::uint32_t>& mothers, std::vector<std::uint32_t>& pool,
                    std::vector<std::uint32_t>& sires);

// How many females should breed this year for the population to be at K after the year's deaths.
std::size_t FemalesToKeepCapacity(const Model& model, const PopulationModel& inputs, const PopulationState& pop,
                                  SimContext& context);

}  // namespace tamsic::sim
