#pragma once
// The "ST Data" section of the project file.
#include <string_view>

#include "files/clsSaveFile.h"
#include "model/Messages.h"
#include "st/STScheme.h"

namespace tamsic {

void WriteSTScheme(const STScheme& scheme, clsSaveFile& file);

// Fills the scheme from the file. Failures inside the section are reported
// here and end the section only; the rest of the project load goes on.
// fileVersion is the version number of the project file being read.
void ReadSTScheme(STScheme& scheme, clsSaveFile& file, double fileVersion, Messages& messages);

// Mortality age classes were counted from 1 before version 9.6; this renames
// such a variable for the classes counted from 0.
std::string RenumberOldMortalityVar(std::string_view name);

}  // namespace tamsic
