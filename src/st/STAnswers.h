#pragma once
// The answers of the sensitivity-test value checks and the problems of a
// scheme. The checks answer in fixed English, and callers compare with "OK";
// each text has the number of its translations in the string table, through
// which LocalizedSTAnswer shows an answer in the user's language.
#include <string>
#include <string_view>

#include "model/Messages.h"

namespace tamsic {

namespace sttext {

struct Text {
  int number;
  std::string_view english;
};

inline constexpr Text kUseEquals{8622, "You must use the '=' symbol when referencing the baseline value (B)."};
// Followed by the variable's name and ".".
inline constexpr Text kNoFunction{8623, "A function cannot be assigned to "};
// Joined with the function and the engine's reason: kFunctionError + value + kFunctionReason + reason.
inline constexpr Text kFunctionError{8624, "There is an error in the function '"};
inline constexpr Text kFunctionReason{8625, "': "};
inline constexpr Text kNumeric{8626, "You must enter a numeric value."};
// The missing ")" is the message's own, kept as users have always read it.
inline constexpr Text kNumericOrFunction{
    8627, "You must enter a numeric value (if you are trying to enter a function, use the '=' symbol."};
inline constexpr Text kPercent{8628, "Enter a number between 0 and 100."};
inline constexpr Text kCorrelation{8629, "Enter a number between -1 and 1."};
inline constexpr Text kTrueFalse{8630, "Please enter a True/False value."};
inline constexpr Text kInteger{8631, "You must enter an integer."};
inline constexpr Text kAboveZero{8632, "Enter a number greater than 0."};
inline constexpr Text kAtLeastZero{8633, "Enter a number greater than or equal to 0."};
inline constexpr Text kBelowBaseline{8634, "Enter a number less than the baseline."};
inline constexpr Text kNonNegativeInteger{8635, "Enter a non-negative integer."};
inline constexpr Text kGlobalLocal{8636, "Only 'Global' and 'Local' are acceptable answers for this variable."};
// Problems of a scheme; the first, second and fourth are followed by a number or a name.
inline constexpr Text kNoBaseline{8637, "The baseline scenario does not exist: number "};
inline constexpr Text kBaselineIsST{8638, "The baseline is itself a sensitivity-test scenario: "};
inline constexpr Text kNoVariables{8639, "The item changes no variable."};
inline constexpr Text kNotAVariable{8640, "Not a variable of the baseline scenario: "};

inline constexpr Text kAll[] = {kUseEquals,     kNoFunction,         kFunctionError, kFunctionReason,
                                kNumeric,       kNumericOrFunction,  kPercent,       kCorrelation,
                                kTrueFalse,     kInteger,            kAboveZero,     kAtLeastZero,
                                kBelowBaseline, kNonNegativeInteger, kGlobalLocal,   kNoBaseline,
                                kBaselineIsST,  kNoVariables,        kNotAVariable};

}  // namespace sttext

// An answer of CheckSTValue, or the text of a scheme's problem, in the
// language of the table. The variable names, values and the engine's reason
// that some answers carry stay as they are; "OK" and texts of no known form
// are answered unchanged.
std::string LocalizedSTAnswer(std::string_view answer, const IStringTable& strings);

}  // namespace tamsic
