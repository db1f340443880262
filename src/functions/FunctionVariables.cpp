#include "functions/FunctionVariables.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace tamsic {
namespace {

// Kept as users have always read them, oddities included: V and Z swap the
// parents that VV() and ZZ() name, and the description of S pairs a single
// quote with a double one.
constexpr std::array<FunctionVariable, 86> kVariables{{
    {"A", "Age"},
    {"B", "Baseline value (for ST)"},
    {"D", "Dispersal rate (unmodified); or distance between mates for breeding"},
    {"E", "2.7182818...."},
    {"F", "Number of Adult Females"},
    {"G", "% Initial Gene Diversity (Expected Heterozygosity)"},
    {"I", "Inbreeding Coefficient (%) of individual or population"},
    {"J", "Number of Juveniles (age 0-1)"},
    {"K", "Carrying Capacity"},
    {"M", "# Adult Males in the Population"},
    {"N", "Population Size"},
    {"O", "Individual ID (or ID of potential mate)"},
    {"P", "Population"},
    {"Q", "Not currently used"},
    {"R", "Iteration (run)"},
    {"S", "Sex (0 or 'F' for female, 1 or 'M\" for male)"},
    {"U", "Number of Subadults (age > 1, < breeding age)"},
    {"V", "Paternal Allele"},
    {"W", "Number of Males (all ages)"},
    {"X", "Number of Females (all ages)"},
    {"Y", "Year"},
    {"Z", "Maternal Allele"},
    {"PP", "Recipient Population (for Dispersal Modifier)"},
    {"FF()", "Number of adult females in a specified population"},
    {"GG()", "Gene Diversity in a specified population"},
    {"JJ()", "Number of juveniles in a specified population"},
    {"KK()", "Carrying capacity of a specified population"},
    {"MM()", "Number of adult males in a specified population"},
    {"NN()", "Total number of individuals in a specified population"},
    {"II()", "Mean inbreeding in a specified population"},
    {"VV()", "Maternal allele at a specified locus"},
    {"WW()", "Number of males in a specified population"},
    {"XX()", "Number of females in a specified population"},
    {"ZZ()", "Paternal allele at a specified locus"},
    {"IS1", "Individual state parameter"},
    {"IS2", "Individual state parameter"},
    {"IS3", "Individual state parameter"},
    {"IS4", "Individual state parameter"},
    {"IS5", "Individual state parameter"},
    {"IS6", "Individual state parameter"},
    {"IS7", "Individual state parameter"},
    {"IS8", "Individual state parameter"},
    {"IS9", "Individual state parameter"},
    {"IS10", "Individual state parameter"},
    {"PS1", "Population state parameter"},
    {"PS2", "Population state parameter"},
    {"PS3", "Population state parameter"},
    {"PS4", "Population state parameter"},
    {"PS5", "Population state parameter"},
    {"PS6", "Population state parameter"},
    {"PS7", "Population state parameter"},
    {"PS8", "Population state parameter"},
    {"PS9", "Population state parameter"},
    {"PS10", "Population state parameter"},
    {"IMEAN()", "Mean of IS variable"},
    {"ITOT()", "Sum of IS variable"},
    {"IMIN()", "Minimum value of IS variable"},
    {"IMAX()", "Maximum value of IS variable"},
    {"IIS1()", "Individual state variable of another individual"},
    {"IIS2()", "Individual state variable of another individual"},
    {"IIS3()", "Individual state variable of another individual"},
    {"IIS4()", "Individual state variable of another individual"},
    {"IIS5()", "Individual state variable of another individual"},
    {"IIS6()", "Individual state variable of another individual"},
    {"IIS7()", "Individual state variable of another individual"},
    {"IIS8()", "Individual state variable of another individual"},
    {"IIS9()", "Individual state variable of another individual"},
    {"IIS10()", "Individual state variable of another individual"},
    {"PPS1()", "Population state parameter of another population"},
    {"PPS2()", "Population state parameter of another population"},
    {"PPS3()", "Population state parameter of another population"},
    {"PPS4()", "Population state parameter of another population"},
    {"PPS5()", "Population state parameter of another population"},
    {"PPS6()", "Population state parameter of another population"},
    {"PPS7()", "Population state parameter of another population"},
    {"PPS8()", "Population state parameter of another population"},
    {"PPS9()", "Population state parameter of another population"},
    {"PPS10()", "Population state parameter of another population"},
    {"CAT()", "Years since last occurrence of catastrophe"},
    {"PARITY", "Number of offspring produced (whether still living or not)"},
    {"ID", "ID index"},
    {"DAM", "Dam's ID, when used for ISvar of a newborn"},
    {"SIRE", "Sire's ID, when used for an ISvar of a newborn"},
    {"KIN()", "Kinship between 2 individuals"},
    {"MATE", "ID of first mate, 0 if none"},
    {"NMATES", "number of mates"},
}};

constexpr int kFirstGlobalState = 87;

std::string Upper(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](unsigned char c) { return std::toupper(c); });
  return upper;
}

std::string_view Bare(std::string_view name) { return name.ends_with("()") ? name.substr(0, name.size() - 2) : name; }

bool NameStart(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
bool NamePart(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }
bool Digit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// Past a number such as "12", ".5" or "1.25e-2": its exponent letter is not a name.
std::size_t SkipNumber(std::string_view text, std::size_t at) {
  while (at < text.size() && (Digit(text[at]) || text[at] == '.')) ++at;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    if (exponent < text.size() && Digit(text[exponent])) {
      at = exponent;
      while (at < text.size() && Digit(text[at])) ++at;
    }
  }
  return at;
}

}  // namespace

std::span<const FunctionVariable> FunctionVariables() { return kVariables; }

std::string ListEntry(const FunctionVariable& variable) {
  return std::string(variable.name) + " - " + std::string(variable.description);
}

int GraphVariableNumber(std::string_view name) {
  const std::string wanted = Upper(Bare(name));
  if (wanted == "E") return 0;
  for (std::size_t i = 0; i < kVariables.size(); ++i)
    if (Bare(kVariables[i].name) == wanted) return static_cast<int>(i) + 1;
  for (int n = 1; n <= 10; ++n)
    if (wanted == "GS" + std::to_string(n)) return kFirstGlobalState + n - 1;
  return 0;
}

std::vector<std::string> VariablesIn(std::string_view formula) {
  std::vector<std::string> found;
  if (formula.starts_with('=')) formula.remove_prefix(1);
  if (Upper(formula.substr(0, 4)) == "FILE") return found;
  std::size_t at = 0;
  while (at < formula.size()) {
    const char c = formula[at];
    if (c == '\'') {
      // 'F' and 'M' are the sexes, not variables.
      const std::size_t close = formula.find('\'', at + 1);
      at = close == std::string_view::npos ? formula.size() : close + 1;
    } else if (Digit(c) || c == '.') {
      at = SkipNumber(formula, at);
    } else if (NameStart(c)) {
      const std::size_t start = at;
      while (at < formula.size() && NamePart(formula[at])) ++at;
      std::string name = Upper(formula.substr(start, at - start));
      if (GraphVariableNumber(name) != 0 && std::find(found.begin(), found.end(), name) == found.end())
        found.push_back(std::move(name));
    } else {
      ++at;
    }
  }
  return found;
}

}  // namespace tamsic
