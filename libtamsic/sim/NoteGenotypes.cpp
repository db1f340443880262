// The genotypes the genetic output files need: the Genepop file those of
// the first iteration, the allele-frequency file those of every iteration.
#include "sim/Journal.h"

namespace tamsic::sim {

void NoteGenotypes(const Model& m, const World& world, IterationRecord& record) {
  const GeneticManagement& g = m.genetics;
  if (!g.alleleFrequencyFile && !(g.genePopFile && world.iteration == 1)) return;
  Genotypes& out = record.journal.genotypes;
  out.loci = m.neutralLoci;
  for (int p = 0; p < m.populations; ++p)
    for (const Individual& ind : world.pops[static_cast<std::size_t>(p)].members) {
      out.population.push_back(p);
      out.id.push_back(ind.id);
      for (int l = 0; l < m.neutralLoci; ++l)
        for (int h = 0; h < 2; ++h) out.alleles.push_back(world.genomes.allele(ind.genome, h, l));
    }
}

}  // namespace tamsic::sim
