#pragma once
// The vocabulary of results: 62 result variables, each a label and the
// number by which tables and graphs address a column of the yearly data,
// and the statistic modifiers (mean, SE, SD) that turn a base variable such
// as "N[extant]" into "SE(N[extant])". The numbering is fixed; the engine's
// files agree with it.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Messages.h"

namespace tamsic {

inline constexpr int kResultVariableCount = 62;
inline constexpr int kUserVariableLimit = 10;

enum Modifier : int { kMean = 0, kStandardError = 1, kStandardDeviation = 2 };

// The label of a number from 1 to 62; empty for any other.
std::string_view ResultLabel(int number);
// The number of a label, blanks around it ignored; 0 when the label is unknown.
int ResultNumber(std::string_view label);

// The label of a base variable under a modifier: the base itself, "SE(base)"
// or "SD(base)"; nothing for any other modifier. The label may still be
// unknown (there is no "SD(P[survive])").
std::optional<std::string> ModifiedLabel(std::string_view base, int modifier);
// ResultNumber of the modified label; 0 when there is none.
int ChoiceNumber(std::string_view base, int modifier);

// Det.r and MedianTE are single numbers with no SE or SD to choose.
bool ModifiersApply(std::string_view base);

// The variables a user picks from: every label that is not an SE() or SD()
// form, with Var1..VarN only up to the scenario's number of user variables
// (the yearly data have columns for those only).
std::vector<std::string> BaseVariables(int userVariables);

// "Mean", "Standard Error", "Standard Devation" in the user's language.
std::vector<std::string> ModifierTexts(const IStringTable& strings);

// The value axis title of a graph: MedianTE as it stands, P[extinction]
// followed by "(Prob. Extinction occurs in that year)", any other variable
// its label and the modifier's text in brackets.
std::string AxisTitle(std::string_view base, int modifier, const IStringTable& strings);

}  // namespace tamsic
