#include "report/GeneticFiles.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "report/Outcome.h"

namespace tamsic::report {

namespace {

// Genepop writes an allele in three digits.
constexpr std::uint32_t kMostCodes = 999;

std::uint32_t Allele(const sim::Genotypes& g, std::size_t individual, int locus, int haplotype) {
  return g.alleles[(individual * static_cast<std::size_t>(g.loci) + static_cast<std::size_t>(locus)) * 2 +
                   static_cast<std::size_t>(haplotype)];
}

// The Genepop code of each allele of a locus: its number, or, when some
// number needs more than three digits, its rank among the alleles present
// (999 for every rank beyond).
std::vector<std::uint32_t> Codes(const sim::Genotypes& g, int locus) {
  std::vector<std::uint32_t> present;
  for (std::size_t i = 0; i < g.id.size(); ++i)
    for (int h = 0; h < 2; ++h) present.push_back(Allele(g, i, locus, h));
  std::sort(present.begin(), present.end());
  present.erase(std::unique(present.begin(), present.end()), present.end());
  std::vector<std::uint32_t> codes(present.empty() ? 0 : present.back() + 1);
  const bool numbered = present.empty() || present.back() < kMostCodes;
  for (std::size_t k = 0; k < present.size(); ++k)
    codes[present[k]] = numbered ? present[k] + 1 : std::min(static_cast<std::uint32_t>(k) + 1, kMostCodes);
  return codes;
}

std::string ThreeDigits(std::uint32_t code) {
  char text[8];
  std::snprintf(text, sizeof text, "%03u", code);
  return text;
}

}  // namespace

GeneticFiles::GeneticFiles(const sim::Model& model, const std::string& project) : model_(model), project_(project) {
  auto open = [&](const char* extension) {
    paths_.push_back(ScenarioFile(project, model.name, extension));
    return std::make_unique<TextFile>(paths_.back());
  };
  try {
    if (model.genetics.genePopFile) genePop_ = open(".gen");
    if (model.genetics.alleleFrequencyFile) {
      frequencies_ = open(".frq");
      frequencies_->line("$Iteration;Population;Locus;Allele;Copies;Frequency");
    }
  } catch (...) {
    discard();
    throw;
  }
}

GeneticFiles::~GeneticFiles() = default;

void GeneticFiles::add(int iteration, const sim::IterationRecord& record) {
  const sim::Genotypes& genotypes = record.journal.genotypes;
  if (genePop_ && iteration == 1) writeGenePop(genotypes);
  if (frequencies_) writeFrequencies(iteration, genotypes);
}

// Genepop: a title line, a line per locus name, then for each population
// that has living individuals a "Pop" line and a line per individual: its
// name, a comma, and a six-digit genotype per locus.
void GeneticFiles::writeGenePop(const sim::Genotypes& g) {
  genePop_->line(project_ + " - " + model_.name + ": the living after " + std::to_string(model_.years) +
                 " years of iteration 1, " + std::to_string(g.loci) + " neutral loci");
  std::vector<std::vector<std::uint32_t>> codes;
  for (int l = 0; l < g.loci; ++l) {
    genePop_->line("Locus" + std::to_string(l + 1));
    codes.push_back(Codes(g, l));
  }
  for (std::size_t i = 0; i < g.id.size(); ++i) {
    const int p = g.population[i];
    if (i == 0 || g.population[i - 1] != p) genePop_->line("Pop");
    std::string line = "P" + std::to_string(p + 1) + "-" + std::to_string(g.id[i]) + " ,";
    for (int l = 0; l < g.loci; ++l) {
      const auto& code = codes[static_cast<std::size_t>(l)];
      line += " " + ThreeDigits(code[Allele(g, i, l, 0)]) + ThreeDigits(code[Allele(g, i, l, 1)]);
    }
    genePop_->line(line);
  }
}

void GeneticFiles::writeFrequencies(int iteration, const sim::Genotypes& g) {
  std::vector<std::uint32_t> alleles;
  for (std::size_t first = 0; first < g.id.size();) {
    std::size_t end = first;
    while (end < g.id.size() && g.population[end] == g.population[first]) ++end;
    const std::string where = std::to_string(iteration) + ";" + std::to_string(g.population[first] + 1) + ";";
    for (int l = 0; l < g.loci; ++l) {
      alleles.clear();
      for (std::size_t i = first; i < end; ++i)
        for (int h = 0; h < 2; ++h) alleles.push_back(Allele(g, i, l, h));
      std::sort(alleles.begin(), alleles.end());
      for (std::size_t run = 0; run < alleles.size();) {
        const auto end = std::upper_bound(alleles.begin() + static_cast<long>(run), alleles.end(), alleles[run]);
        const auto next = static_cast<std::size_t>(end - alleles.begin());
        const std::size_t copies = next - run;
        frequencies_->line(where + std::to_string(l + 1) + ";" + std::to_string(alleles[run] + 1) + ";" +
                           std::to_string(copies) + ";" +
                           Num(static_cast<double>(copies) / static_cast<double>(alleles.size())));
        run = next;
      }
    }
    first = end;
  }
}

void GeneticFiles::close() {
  for (auto* file : {&genePop_, &frequencies_}) {
    if (*file) (*file)->close();
    file->reset();
  }
}

void GeneticFiles::discard() {
  genePop_.reset();
  frequencies_.reset();
  std::error_code ignored;
  for (const std::string& path : paths_) std::filesystem::remove(path, ignored);
  paths_.clear();
}

}  // namespace tamsic::report
