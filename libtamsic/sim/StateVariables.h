#pragma once
// The state variables of a run. Founders and supplements take the initial
// values of the individual state variables; newborns their birth values as
// they are born, starting from their dam's values (so that a birth function
// "=IS1" passes the dam's IS1 on). Each year, after mortality and ageing,
// every living individual (the year's young included, who age too) takes
// its yearly values, then every population its population state variables,
// then the global ones are worked out; in year 0 the population and global
// ones take their first values after the founders' initial ones.
//
// Within one individual, one population or the global set, the variables
// are worked out in column order, each seeing the new values of those
// before it; everything else a function sees (other individuals, IMEAN and
// the like, other populations) is as it was before the step, so the order
// of individuals and populations does not matter. Population and global
// state variables start from 0, so that "=PS1+1" counts the years.
#include "sim/Model.h"
#include "sim/Record.h"
#include "sim/SimContext.h"
#include "sim/World.h"

namespace tamsic::sim {

// Year 0: the founders' initial values, then the first population and global values.
void StartStates(const Model& model, World& world, SimContext& context);
// The first population and global values alone, for the life table's world without individuals.
void StartGroupStates(const Model& model, World& world, SimContext& context);
// A supplement, new in the context's population.
void StartIndividual(const Model& model, World& world, SimContext& context, const Individual& individual);
// The newborns of the context's population, not yet among its `members`, in the order of their
// `mothers` (indexes of members).
void BirthStates(const Model& model, World& world, SimContext& context, const std::vector<Individual>& members,
                 const std::vector<std::uint32_t>& mothers, const std::vector<Individual>& newborns);
// The yearly step.
void AdvanceStates(const Model& model, World& world, SimContext& context);
// The census of this year's population (PS) and global (GS) values, the user variables of the yearly data.
void RecordStates(const Model& model, const World& world, IterationRecord& record);

}  // namespace tamsic::sim
