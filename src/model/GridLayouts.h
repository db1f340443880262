#pragma once
// The shape and headings of every grid of a scenario for given counts of
// populations, state variables, catastrophes, ages, broods and progeny, made
// from the grid's description. Row 0 is the heading row and column 0 the
// label column unless a grid says otherwise; docs/grid-layouts.md shows each
// layout.
#include <string>
#include <vector>

#include "model/Grid.h"
#include "model/ScenarioFields.h"

namespace tamsic {

struct LayoutCounts {
  std::vector<std::string> populations;  // one label per population
  int popStateVars = 0;
  int globalVars = 0;
  int indivStateVars = 0;
  int catastrophes = 0;
  int ageReproF = 2;  // age of first offspring, females
  int ageReproM = 2;  // age of first offspring, males
  int maxAge = 10;    // maximum age of reproduction; nobody lives longer
  int maxLitters = 1;
  int maxProgeny = 4;
};

// A grid of the right shape with its headings in English and every other cell empty.
Grid LayoutGrid(Field grid, const LayoutCounts& counts);

// Whether the grid has one column per population (settings in rows) rather
// than one row per population.
bool PopulationsInColumns(Field grid);

// The grid of a new scenario: LayoutGrid with the description's values in it.
Grid DefaultGrid(Field grid, const LayoutCounts& counts);

// Gives the grid the shape and headings of LayoutGrid, keeping the values of
// the cells that lie in both the old and the new shape.
Grid Relayout(const Grid& old, Field grid, const LayoutCounts& counts);

}  // namespace tamsic
