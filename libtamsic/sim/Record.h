#pragma once
// What one iteration leaves for the results: for every population (and the
// metapopulation when there are several) and every year 0..NumYears, the
// census of that year.
#include <cstdint>
#include <vector>

#include "sim/Individual.h"

namespace tamsic::sim {

struct Census {
  int n = 0;
  bool extinct = false;
  float geneDiversity = 0.0f;
  float inbreeding = 0.0f;
  float alleles = 0.0f;  // mean per neutral locus
  float lethals = 0.0f;  // mean lethal alleles per individual
};

// What the extra-file options keep of an iteration (see Journal.h).
struct LivingEntry {
  int population = 0;
  Individual individual;
};

enum class Origin : char { Founder = 'F', Supplement = 'S', Born = 'B' };

struct CreatedEntry {
  Individual individual;  // as it was created
  int population = 0;
  int year = 0;
  Origin origin = Origin::Born;
  int lastCensus = -1;  // the last census that counted it alive, -1 none
};

struct CensusEntry {
  int year = 0;
  int block = 0;  // population, or the number of populations for the metapopulation
  int females = 0;
  int males = 0;
  int adultFemales = 0;
  int adultMales = 0;
  int juveniles = 0;
  int subadults = 0;
  double capacity = 0.0;
  Census census;
};

// The neutral genotypes of the living at the end of an iteration, for the
// genetic output files: for each individual, locus by locus, the maternal
// then the paternal allele (0 for the first allele of a locus).
struct Genotypes {
  int loci = 0;
  std::vector<int> population;
  std::vector<std::uint32_t> id;
  std::vector<std::uint32_t> alleles;
  void clear() {
    population.clear();
    id.clear();
    alleles.clear();
  }
};

struct Journal {
  std::vector<LivingEntry> living;
  std::vector<double> livingStates;  // IS1, IS2, ... of each of the living in turn
  std::vector<CreatedEntry> created;
  std::vector<CensusEntry> census;
  Genotypes genotypes;
  void clear() {
    living.clear();
    livingStates.clear();
    created.clear();
    census.clear();
    genotypes.clear();
  }
};

class IterationRecord {
 public:
  void reset(int blocks, int years, int userVariables) {
    blocks_ = blocks;
    years_ = years;
    userVariables_ = userVariables;
    cells_.assign(static_cast<std::size_t>(blocks) * static_cast<std::size_t>(years + 1), Census{});
    userValues_.assign(cells_.size() * userWidth(), 0.0);
    journal.clear();
  }
  Census& at(int block, int year) { return cells_[index(block, year)]; }
  const Census& at(int block, int year) const { return cells_[index(block, year)]; }
  // The user variables of the census: PS1, PS2, ... of a population, GS1, GS2, ... of the metapopulation.
  double* userValues(int block, int year) { return userValues_.data() + index(block, year) * userWidth(); }
  const double* userValues(int block, int year) const {
    return userValues_.data() + index(block, year) * userWidth();
  }
  int blocks() const { return blocks_; }
  int years() const { return years_; }
  int userVariables() const { return userVariables_; }

  Journal journal;  // filled only when an extra file was asked for

  // Its fields in order, written or read as bytes for the processes of a team (RecordBytes.h).
  template <class Stream, class Record>
  friend void RecordFields(Stream& stream, Record& record);

 private:
  std::size_t userWidth() const { return static_cast<std::size_t>(userVariables_); }
  std::size_t index(int block, int year) const {
    return static_cast<std::size_t>(block) * static_cast<std::size_t>(years_ + 1) + static_cast<std::size_t>(year);
  }
  int blocks_ = 0;
  int years_ = 0;
  int userVariables_ = 0;
  std::vector<Census> cells_;
  std::vector<double> userValues_;
};

}  // namespace tamsic::sim
