#pragma once
// The density-dependent breeding function built from the four parameters of
// the reproductive-system grid:
//   %Breeding = (P0 - (P0 - PK) * (N/K)^B) * N / (A + N)
// written with the parameters as typed, e.g. with P0 = 50, PK = 20, A = 5,
// B = 2: =(50-((50-20)*((N/K)^2)))*(N/(5+N)).
#include <optional>
#include <string>
#include <vector>

#include "model/Messages.h"

namespace tamsic {

// One population's column of the reproductive-system grid.
struct DensityParameters {
  bool dependent = false;  // the check box of row 1
  std::string p0;          // % breeding at low density
  std::string pk;          // % breeding at carrying capacity
  std::string allee;       // A
  std::string steepness;   // B
};

// The function without its leading "="; an empty parameter counts as "0".
std::string BreedingFunctionBody(const DensityParameters& parameters);

// What the grid change writes: for each checked population (from 1), the
// function for row p, column 1 of the reproductive rates. Unchecked
// populations get nothing, so a function written before stays in place.
struct BreedingFunctionCell {
  int population;
  std::string function;
};
std::vector<BreedingFunctionCell> BreedingFunctionCells(
    const std::vector<DensityParameters>& populations);

// The "View" button: the function to preview, or nothing after telling the
// user that the box is not checked or a parameter is empty.
std::optional<std::string> ViewBreedingFunction(const DensityParameters& parameters,
                                                Messages& messages);

}  // namespace tamsic
