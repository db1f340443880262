#pragma once
// The allele frequencies from which founders draw their neutral alleles: one
// line per neutral locus, in order, holding the frequencies of that locus'
// alleles 1, 2, 3, ... Allele numbers stay within 999, the most that a
// Genepop file's three digits can name.
#include <vector>

#include "sim/InputFile.h"

namespace tamsic::sim {

inline constexpr int kMostAllelesPerLocus = 999;

// The frequencies by locus. Every value is a number from 0 to 1 and those of
// a locus add up to 1 within 0.01; the file has a line for each of the
// `loci`. Faults throw SimError naming the file and the line.
std::vector<std::vector<double>> ReadAlleleFrequencies(const InputFile& file, int loci);

}  // namespace tamsic::sim
