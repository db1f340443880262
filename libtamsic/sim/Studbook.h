#pragma once
// A studbook: the animals of a managed population with their pedigree. Its
// living animals are the starting individuals of their populations, with
// the kinships and inbreeding their pedigree gives (founders unrelated and
// not inbred). The layout (docs/engine-model.md):
//
//   ID     Sex  Sire  Dam   Age  Alive  Population
//   A1     M    UNK   UNK   -    0      -
//   A7     F    A1    A2    4    1      1
//
// a heading line naming the seven columns, then one line per animal. An
// unknown parent is UNK (or 0 or -); an animal with one known parent gets an
// unknown, unrelated founder for the other. Age (at the start of the
// simulation) and Population (from 1) matter for the living only and may be
// "-" for the dead. Sex is M or F (U for a dead animal whose sex its
// offspring tell, or that has none); Alive is 1 or 0.
#include <string>
#include <vector>

#include "sim/InputFile.h"

namespace tamsic::sim {

struct StudbookAnimal {
  std::string id;   // empty for an unknown parent of an animal with one known parent
  int line = 0;     // in the file
  int dam = -1;     // index of the parent in the studbook, -1 for a founder
  int sire = -1;
  int lastChild = -1;  // index of its last offspring, -1 when it has none
  bool alive = false;
  int sex = 0;
  int age = 0;
  int population = 0;  // from 0
  float inbreeding = 0.0f;
};

struct Studbook {
  std::vector<StudbookAnimal> animals;  // every parent before its offspring
  std::vector<int> living;              // indexes of the living animals, in the file's order
  std::vector<float> kinship;           // living x living, row by row

  bool founder(const StudbookAnimal& a) const { return a.dam < 0; }
  float kinshipOf(std::size_t i, std::size_t j) const { return kinship[i * living.size() + j]; }
  bool populates(int population) const;
};

// Checks the pedigree and computes its kinships; every fault throws SimError
// naming the file and the line. `sexual` is false for hermaphrodites, whose
// sex column means nothing and who may be their offspring's sire and dam.
Studbook ReadStudbook(const InputFile& file, int populations, int maxAge, bool sexual);

}  // namespace tamsic::sim
