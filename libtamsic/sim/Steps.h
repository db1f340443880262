#pragma once
// The steps of the yearly cycle, in the order Iteration.cpp calls them. Each
// works on the whole World for one year.
#include "sim/Model.h"
#include "sim/SimContext.h"
#include "sim/World.h"

namespace tamsic::sim {

// Counts of every population, as functions and the census see them.
void Recount(const Model& model, World& world);
// EV deviates, catastrophes and K of the year for every population.
void DrawEnvironment(const Model& model, World& world, SimContext& context);
// Mating and births; newborns join their mothers' population at age 0.
void Breed(const Model& model, World& world, SimContext& context);
// Deaths by sex, age, EV, catastrophes and inbreeding; then the survivors age a year.
void SurviveAndAge(const Model& model, World& world, SimContext& context);
void Disperse(const Model& model, World& world, SimContext& context);
void HarvestAndSupplement(const Model& model, World& world, SimContext& context);
// Random deaths across all ages and sexes down to this year's K.
void TruncateToCapacity(World& world);

// A new unrelated individual (no parents, not inbred) of a population.
Individual MakeFounder(World& world, int sex, int age, int population, Origin origin);
// The genome of a new founder: new alleles, or neutral ones drawn from the
// allele frequencies; unrelated to everyone in the kinship matrix.
std::uint32_t FounderGenome(World& world, std::uint8_t& lethals);
// The living animals of the studbook join their populations, their genomes
// dropped through the pedigree from its founders.
void FoundFromStudbook(const Model& model, World& world);

}  // namespace tamsic::sim
