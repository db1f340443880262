#pragma once
// The sections a user inserts into the project report, as HTML that a
// rich-text editor takes in (UTF-8): the scenarios with their main inputs,
// built from the records, and a summary table of the results. Headings and
// labels come from the string table, as the input pages show them.
#include <string>
#include <string_view>
#include <vector>

#include "model/Messages.h"
#include "model/ScenarioCollection.h"
#include "results/SummaryTable.h"

namespace tamsic {

// The text with "&", "<", ">" and the double quote written as HTML entities.
std::string HtmlEscaped(std::string_view utf8);

// One heading and two tables per scenario: its settings (iterations, years,
// populations, extinction, inbreeding, environmental variation, mating
// system and breeding ages), then its rates with one column per population
// (breeding, mortality by age, catastrophes, initial size, carrying capacity).
std::string ScenarioInputsHtml(const ScenarioCollection& scenarios, const IStringTable& strings);

// The table as the results tab shows it: a heading row, then its rows.
std::string SummaryTableHtml(const Table& table);

}  // namespace tamsic
