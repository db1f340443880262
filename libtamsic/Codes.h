#pragma once
// The library's side of the text transport: codes in, codes of the reply out.
#include <cstdint>
#include <string>
#include <string_view>

#include "tamsic.h"

namespace tamsic {

// The Windows-1252 bytes of a code array; one code 0 is the empty text.
std::string TextFromCodes(const int16_t* codes, int32_t count);

// Fills the slot with malloc'd codes of `text`; leaves it empty when memory
// runs out. Never throws.
void SetReply(TamsicVariant* result, std::string_view text) noexcept;

}  // namespace tamsic
