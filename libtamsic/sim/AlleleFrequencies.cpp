#include "sim/AlleleFrequencies.h"

#include <cmath>

#include "model/TextNumbers.h"

namespace tamsic::sim {

namespace {

// Frequencies written with two or three decimals rarely add up to exactly 1.
constexpr double kSumTolerance = 0.01;

std::vector<double> ReadLocus(const InputFile& file, const InputLine& line) {
  if (line.fields.size() > static_cast<std::size_t>(kMostAllelesPerLocus))
    file.fail(line.number, std::to_string(line.fields.size()) + " alleles; a locus may have at most " +
                               std::to_string(kMostAllelesPerLocus));
  std::vector<double> frequencies;
  double sum = 0.0;
  for (const std::string& field : line.fields) {
    const auto value = ExactNumber(field);
    if (!value || !std::isfinite(*value) || *value < 0.0 || *value > 1.0)
      file.fail(line.number, "\"" + field + "\" is not a frequency from 0 to 1");
    frequencies.push_back(*value);
    sum += *value;
  }
  if (std::abs(sum - 1.0) > kSumTolerance)
    file.fail(line.number, "the frequencies add up to " + NumberToText(sum) + ", not 1");
  return frequencies;
}

}  // namespace

std::vector<std::vector<double>> ReadAlleleFrequencies(const InputFile& file, int loci) {
  std::vector<std::vector<double>> byLocus;
  for (const InputLine& line : file.lines) {
    if (static_cast<int>(byLocus.size()) == loci)
      file.fail(line.number, "a line for a locus beyond the scenario's " + std::to_string(loci) +
                                 " neutral loci (NumNeutralLoci)");
    byLocus.push_back(ReadLocus(file, line));
  }
  if (static_cast<int>(byLocus.size()) < loci)
    file.fail("it gives frequencies for " + std::to_string(byLocus.size()) + " of the scenario's " +
              std::to_string(loci) + " neutral loci (NumNeutralLoci)");
  return byLocus;
}

}  // namespace tamsic::sim
