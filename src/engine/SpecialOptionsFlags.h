#pragma once
// The options string handed to the engine, built from a project's special
// options: for each checked switch (index 0..9) its code letter, the value of
// its companion box for the three value options, and ";"; the last ";"
// dropped; then the extra codes typed by the user, after a ";" when the
// string is not empty. E.g. S, Y with 5 and the extra code Q give "S;Y5;Q".
#include <string>

#include "files/ProjectDocument.h"

namespace tamsic {

std::string Flags(const SpecialOptions& options);

}  // namespace tamsic
