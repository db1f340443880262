#pragma once
// The words of the grid headings. A record holds its grids' headings in
// English, as the layouts write them, so that project files read the same
// whatever language saved them; the pages and their messages show them in the
// user's language. Every heading a layout makes comes either from a grid line
// of the description, which carries its caption, or from one of the made
// headings below, whose pieces carry theirs.
#include <optional>
#include <string>
#include <string_view>

#include "model/Messages.h"

namespace tamsic {

// Headings made from words and ages rather than from a grid's lines.
enum class MadeHeading {
  MortalityFrom,     // "Mortality From Age 2 to 3"
  MortalitySd,       // "SD in 2 to 3 Mortality Due to EV"
  MortalityAfter,    // "Annual Mortality After Age 3"
  MortalitySdAfter,  // "SD in Mortality After Age 3"
  Adults,            // "Adults": the oldest age class, of any age from the age of first offspring on
};

// The heading in English, as records hold it; `age` is the first age it names.
std::string MakeHeading(MadeHeading heading, int age = 0);

// A heading that a layout makes, in the language of `words`; nothing for any
// other text, such as a population's label or a state variable's name (PS1),
// and nothing when the table lacks the heading's words.
std::optional<std::string> ShownHeading(std::string_view stored, const IStringTable& words);

}  // namespace tamsic
