#pragma once
// Texts cross to and from the engine library as arrays of 16-bit character
// codes, the code of a character being its Windows-1252 byte.
#include <cstdint>
#include <string>
#include <vector>

#include "libtamsic/tamsic.h"

namespace tamsic {

// One code per byte of `text`; an empty text gives one code 0, never an
// empty array, so the engine always receives a valid array.
std::vector<std::int16_t> TextToCodes(const std::string& text);

// The bytes of all codes of a reply in order; no codes give the empty text.
// A code outside 0..255 (which the engine never sends) reads as "?".
std::string CodesToText(const TamsicVariant& reply);

}  // namespace tamsic
