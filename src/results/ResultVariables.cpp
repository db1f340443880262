#include "results/ResultVariables.h"

#include <algorithm>
#include <array>

#include "model/TextSplit.h"

namespace tamsic {

namespace {

// P[survive] and P[extinction] have an SE but no SD, unlike the counts, the
// genetic measures and the user variables; the gaps are deliberate.
constexpr std::array<std::string_view, 32> kFixedLabels = {
    "P[survive]", "SE(P[survive])", "P[extinction]", "SE(P[extinction])", "Det.r",       "Stoch.r",
    "SE(Stoch.r)", "SD(Stoch.r)",   "N[extant]",     "SE(N[extant])",     "SD(N[extant])", "N[all]",
    "SE(N[all])",  "SD(N[all])",    "GeneDiv",       "SE(GeneDiv)",       "SD(GeneDiv)", "Inbreeding",
    "SE(Inbreeding)", "SD(Inbreeding)", "#Alleles",  "SE(#Alleles)",      "SD(#Alleles)", "#Lethals",
    "SE(#Lethals)", "SD(#Lethals)", "TE",            "SE(TE)",            "SD(TE)",      "MedianTE",
    "P[extinct]",  "SE(P[extinct])"};

// Var1 .. Var10 each take three numbers from 33: the mean, SE() and SD().
std::array<std::string, 3 * kUserVariableLimit> MakeUserLabels() {
  std::array<std::string, 3 * kUserVariableLimit> labels;
  for (int v = 0; v < kUserVariableLimit; ++v) {
    const std::string name = "Var" + std::to_string(v + 1);
    labels[3 * v] = name;
    labels[3 * v + 1] = "SE(" + name + ")";
    labels[3 * v + 2] = "SD(" + name + ")";
  }
  return labels;
}

const std::array<std::string, 3 * kUserVariableLimit>& UserLabels() {
  static const auto labels = MakeUserLabels();
  return labels;
}

bool IsStatisticForm(std::string_view label) { return label.starts_with("SE(") || label.starts_with("SD("); }

}  // namespace

std::string_view ResultLabel(int number) {
  if (number < 1 || number > kResultVariableCount) return {};
  if (number <= static_cast<int>(kFixedLabels.size())) return kFixedLabels[number - 1];
  return UserLabels()[number - kFixedLabels.size() - 1];
}

int ResultNumber(std::string_view label) {
  const std::string_view trimmed = Trim(label);
  for (int n = 1; n <= kResultVariableCount; ++n)
    if (ResultLabel(n) == trimmed) return n;
  return 0;
}

std::optional<std::string> ModifiedLabel(std::string_view base, int modifier) {
  const std::string label(Trim(base));
  switch (modifier) {
    case kMean: return label;
    case kStandardError: return "SE(" + label + ")";
    case kStandardDeviation: return "SD(" + label + ")";
    default: return std::nullopt;
  }
}

int ChoiceNumber(std::string_view base, int modifier) {
  const auto label = ModifiedLabel(base, modifier);
  return label ? ResultNumber(*label) : 0;
}

bool ModifiersApply(std::string_view base) {
  const std::string_view trimmed = Trim(base);
  return trimmed != "Det.r" && trimmed != "MedianTE";
}

std::vector<std::string> BaseVariables(int userVariables) {
  std::vector<std::string> bases;
  for (std::string_view label : kFixedLabels)
    if (!IsStatisticForm(label)) bases.emplace_back(label);
  for (int v = 0; v < std::min(userVariables, kUserVariableLimit); ++v) bases.push_back(UserLabels()[3 * v]);
  return bases;
}

std::vector<std::string> ModifierTexts(const IStringTable& strings) {
  return {strings.text(1920), strings.text(1921), strings.text(1922)};
}

std::string AxisTitle(std::string_view base, int modifier, const IStringTable& strings) {
  const std::string label(Trim(base));
  if (label == "MedianTE") return label;
  if (label == "P[extinction]") return label + strings.text(1923);
  const auto texts = ModifierTexts(strings);
  const std::string modifierText =
      modifier >= 0 && modifier < static_cast<int>(texts.size()) ? texts[modifier] : std::string();
  return label + "(" + modifierText + ")";
}

}  // namespace tamsic
