#pragma once
// The extra files that special options ask for: everyone alive at the end of
// an iteration ("A"), everyone created in it ("N", with the last census that
// counted each alive), and the census of every year of the first iterations
// ("Y"). An iteration keeps these in its record's journal; the run writes the
// journals in iteration order, so the files do not depend on the number of
// threads.
#include "sim/Model.h"
#include "sim/Record.h"
#include "sim/World.h"

namespace tamsic::sim {

// After each census: the census lines and who was counted alive.
void NoteCensus(const Model& model, World& world, IterationRecord& record);
// At the end of an iteration: the living.
void NoteLiving(const Model& model, const World& world, IterationRecord& record);
// At the end of an iteration: the neutral genotypes of the living, when a genetic output file needs them.
void NoteGenotypes(const Model& model, const World& world, IterationRecord& record);

}  // namespace tamsic::sim
