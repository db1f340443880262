#pragma once
// Commands that fill or transform many cells at once: the dispersal matrix
// (fill, scale, export, import), copying female mortality to males, and
// copying one population's inputs to the populations after it.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Grid.h"
#include "model/Messages.h"
#include "model/clsScenario.h"

namespace tamsic {

// Every off-diagonal cell of the dispersal matrix gets the value, "0.00".
// Answers false, changing nothing, when the value is not a number.
bool FillDispersal(Grid& rates, std::string_view value);

// Numbers are multiplied ("0.00"); functions get "*" and the multiplier
// appended so that their result is scaled; empty cells stay empty. Answers
// false, changing nothing, when the multiplier is not a number.
bool ApplyDispersalMultiplier(Grid& rates, std::string_view multiplier);

// The rate matrix as a text file: one line per source population, the cells
// of its row joined by ";", lines ending in CR LF.
std::string ExportRateMatrix(const Grid& rates);

// Reads what ExportRateMatrix writes into the matrix. A file whose numbers of
// lines or fields do not fit the matrix changes nothing; the answer is then
// the message that says what does not fit, in the words of the table.
std::optional<std::string> ImportRateMatrix(Grid& rates, std::string_view file, const IStringTable& words);

// Copies every female mortality cell that has a place in the male grid.
void CopyFemaleMortality(clsScenario& scenario);

// The per-population grids whose values are copied between populations, all
// of them or those of one input page (pages counted from 0 in the order of the
// page links).
std::vector<Field> PopulationGrids();
std::vector<Field> PopulationGridsOfPage(int page);

// Copies population `from`'s values in the given grids to every later population.
void CopyInputValues(clsScenario& scenario, std::size_t from, const std::vector<Field>& grids);

}  // namespace tamsic
