#pragma once
// The deterministic life table of a population: survival and fecundity by
// age with the mean rates (catastrophes averaged in, no EV, no inbreeding
// depression, no shortage of mates), its growth rate from the dominant
// eigenvalue of the projection matrix, and the stable age and sex
// distribution. Ages are those of the census, 1..maxAge.
#include <vector>

#include "sim/Model.h"

namespace tamsic::sim {

struct LifeTable {
  int maxAge = 0;
  // Survival from age x to x + 1 by sex, x = 0..maxAge (0 at maxAge).
  std::vector<double> survival[2];
  // Daughters (all young for hermaphrodites) per female of census age x, x = 0..maxAge.
  std::vector<double> fecundity;
  double maleShare = 0.5;  // of the young
  double capacity = 0.0;        // K at the start
  double breeders = 0.0;        // share of adult females that breed in a year, catastrophes averaged in
  double youngPerBreeder = 0.0;  // mean young per breeding female in a year
  double lambda = 0.0;
  double r = 0.0;
  double R0 = 0.0;
  double generationTime = 0.0;  // mean age of mothers in the stable population
  // Shares of the stable population by sex and age 1..maxAge (index 0 is age 1); all add up to 1.
  std::vector<double> stable[2];
};

// Rates that are functions are evaluated for year 1 with N and K at their starting values.
LifeTable BuildLifeTable(const Model& model, int pop);

// The projection matrix of the females (ages 1..maxAge), row-major, for checks.
std::vector<double> ProjectionMatrix(const LifeTable& table);

// Whole numbers by sex and age that add up to `size`, by the largest remainders.
void StableNumbers(const LifeTable& table, int size, std::vector<int> (&out)[2]);

// N by year 0..years: the stable population of `size` projected with the
// life table, held at or below K.
std::vector<double> Projection(const LifeTable& table, double size, double capacity, int years);

}  // namespace tamsic::sim
