// The studbook's living animals as the founders of an iteration. Their
// genomes come from a gene drop: the studbook's founders get new genomes and
// every other animal, parents first, inherits from its parents as a newborn
// would, so each iteration draws its own outcome of the pedigree. Their
// inbreeding and kinships are the exact pedigree values.
#include "sim/Steps.h"

namespace tamsic::sim {

namespace {

// The animals lived, so a drop that makes one homozygous for a lethal is drawn again.
constexpr int kDrawsForAViableGenome = 20;

std::uint32_t Descendant(World& world, std::uint32_t dam, std::uint32_t sire, std::uint8_t& lethals) {
  Newborn born = world.genomes.addChild(dam, sire, world.random);
  for (int draw = 1; !born.viable && draw < kDrawsForAViableGenome; ++draw) {
    world.genomes.release(born.slot);
    born = world.genomes.addChild(dam, sire, world.random);
  }
  lethals = born.lethals;
  return born.slot;
}

// Genomes of every animal; those of the dead are given up after their last offspring.
void DropGenes(const Studbook& book, World& world, std::vector<std::uint32_t>& genome,
               std::vector<std::uint8_t>& lethals) {
  auto release = [&](int parent, std::size_t child) {
    const StudbookAnimal& p = book.animals[static_cast<std::size_t>(parent)];
    if (!p.alive && p.lastChild == static_cast<int>(child))
      world.genomes.release(genome[static_cast<std::size_t>(parent)]);
  };
  for (std::size_t k = 0; k < book.animals.size(); ++k) {
    const StudbookAnimal& a = book.animals[k];
    if (book.founder(a)) {
      genome[k] = FounderGenome(world, lethals[k]);
    } else {
      genome[k] = Descendant(world, genome[static_cast<std::size_t>(a.dam)], genome[static_cast<std::size_t>(a.sire)],
                             lethals[k]);
      release(a.dam, k);
      if (a.sire != a.dam) release(a.sire, k);
    }
    if (!a.alive && a.lastChild < 0) world.genomes.release(genome[k]);
  }
}

}  // namespace

void FoundFromStudbook(const Model& m, World& world) {
  const Studbook& book = *m.genetics.studbook;
  std::vector<std::uint32_t> genome(book.animals.size());
  std::vector<std::uint8_t> lethals(book.animals.size());
  DropGenes(book, world, genome, lethals);
  // Ids in pedigree order, so that a living parent's id is known to its offspring.
  std::vector<std::uint32_t> id(book.animals.size(), 0);
  for (std::size_t k = 0; k < book.animals.size(); ++k) {
    const StudbookAnimal& a = book.animals[k];
    if (!a.alive) continue;
    Individual ind;
    ind.id = id[k] = world.nextId++;
    ind.dam = a.dam >= 0 ? id[static_cast<std::size_t>(a.dam)] : 0;
    ind.sire = a.sire >= 0 ? id[static_cast<std::size_t>(a.sire)] : 0;
    ind.sex = static_cast<std::uint8_t>(m.sexual() ? a.sex : kFemale);
    ind.age = static_cast<std::uint16_t>(a.age);
    ind.genome = genome[k];
    ind.lethals = lethals[k];
    ind.inbreeding = a.inbreeding;
    world.pops[static_cast<std::size_t>(a.population)].members.push_back(ind);
    world.noteCreated(ind, a.population, Origin::Founder);
  }
  if (!world.kinship.exact()) return;
  for (std::size_t i = 0; i < book.living.size(); ++i)
    for (std::size_t j = 0; j <= i; ++j)
      world.kinship.set(genome[static_cast<std::size_t>(book.living[i])],
                        genome[static_cast<std::size_t>(book.living[j])], book.kinshipOf(i, j));
}

}  // namespace tamsic::sim
