#pragma once
// The genetic output files that the genetic-management page asks for,
// written as the iterations come in (in iteration order):
//   P_S.gen  the neutral genotypes of the living at the end of the first
//            iteration, in Genepop format;
//   P_S.frq  the allele frequencies at each neutral locus in each population
//            at the end of every iteration.
// Alleles are numbered from 1: founder allele h is allele h + 1, an allele
// drawn from the frequency file keeps its number there.
#include <memory>
#include <string>
#include <vector>

#include "report/TextFile.h"
#include "sim/Model.h"
#include "sim/Record.h"

namespace tamsic::report {

class GeneticFiles {
 public:
  // Creates the files the model asks for (throws SimError when one cannot be created).
  GeneticFiles(const sim::Model& model, const std::string& project);
  ~GeneticFiles();
  GeneticFiles(const GeneticFiles&) = delete;
  GeneticFiles& operator=(const GeneticFiles&) = delete;

  void add(int iteration, const sim::IterationRecord& record);
  // Throws SimError when a write failed.
  void close();
  // Removes the files again: a scenario that failed or was cancelled leaves none.
  void discard();

 private:
  void writeGenePop(const sim::Genotypes& genotypes);
  void writeFrequencies(int iteration, const sim::Genotypes& genotypes);

  const sim::Model& model_;
  std::string project_;
  std::vector<std::string> paths_;
  std::unique_ptr<TextFile> genePop_;
  std::unique_ptr<TextFile> frequencies_;
};

}  // namespace tamsic::report
