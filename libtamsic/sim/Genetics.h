#pragma once
// The inputs of the genetic-management page in the form the simulation uses
// them: the files read and checked, the options as numbers.
#include <cstdint>
#include <optional>
#include <vector>

#include "sim/Distribution.h"
#include "sim/Studbook.h"

namespace tamsic::sim {

struct GeneticManagement {
  std::optional<Studbook> studbook;
  // Per neutral locus, the alleles founders draw (0 for allele 1); empty
  // when every founder brings new alleles.
  std::vector<Discrete> founderAlleles;
  std::uint32_t alleleKinds = 0;  // the most alleles of a locus in the frequency file
  // The neutral loci that GeneDiv and #Alleles count.
  int talliedFirst = 0;
  int talliedLoci = 1;
  bool breedToCapacity = false;
  bool pairByMeanKinship = false;
  bool dynamicMeanKinship = true;
  std::optional<double> kinshipLimit;  // the highest kinship of mates, when matings are prevented above it
  int tries = 10;    // candidate mates a female may be refused before she does not breed
  int maxMates = 1;  // females a male may be paired with in a year, when the breeding is managed
  bool genePopFile = false;
  bool alleleFrequencyFile = false;

  bool managesBreeding() const { return breedToCapacity || pairByMeanKinship || kinshipLimit.has_value(); }
  bool exactKinship() const { return pairByMeanKinship || kinshipLimit.has_value() || studbook.has_value(); }
};

}  // namespace tamsic::sim
