#pragma once
// Numbers read from texts the way the project file has always been read: the
// leading numeric part counts, anything else reads as 0 rather than failing.
#include <optional>
#include <string>
#include <string_view>

namespace tamsic {

// The value of the leading number of a text ("12abc" is 12, "x" and "" are 0).
double LeadingNumber(std::string_view text);

// The value of a text that is a number and nothing else, blanks around it allowed.
std::optional<double> ExactNumber(std::string_view text);

// The integer part of LeadingNumber, held within the range of an int.
int LeadingInt(std::string_view text);

// "True"/"False" in any letter case; a number is true when it is not 0.
bool TextToTruth(std::string_view text);

// The shortest text that reads back as the same double ("0.1", "1e+30", "3").
std::string NumberToText(double value);

}  // namespace tamsic
