#pragma once
// The names a function may use: variables, constants and functions, matched
// without regard to case. One table, built once, tells the parser what a name
// is and how many arguments it takes.
#include <cstdint>
#include <optional>
#include <string_view>

#include "formula/Op.h"

namespace tamsic::formula {

// Plain variables: one value in the context of an evaluation.
enum class Var : std::uint8_t {
  A, B, D, F, G, I, J, K, M, N, O, P, Q, R, S, U, V, W, X, Y, Z,
  PP, PARITY, ID, DAM, SIRE, MATE, NMATES,
  IS1, PS1 = IS1 + 10, GS1 = PS1 + 10,
  Count = GS1 + 10,
};

// Variables of another population, individual, locus or state variable,
// given as the one argument in parentheses.
enum class IndexedVar : std::uint8_t {
  FF, GG, JJ, KK, MM, NN, II, VV, WW, XX, ZZ,
  IMEAN, ITOT, IMIN, IMAX, CAT,
  IIS1, PPS1 = IIS1 + 10,
  Count = PPS1 + 10,
};

inline constexpr Var StateVar(Var first, int number) {
  return static_cast<Var>(static_cast<int>(first) + number - 1);
}
inline constexpr IndexedVar StateVar(IndexedVar first, int number) {
  return static_cast<IndexedVar>(static_cast<int>(first) + number - 1);
}

enum class NameKind : std::uint8_t { Constant, Variable, Indexed, Function, Keyword };

struct NameInfo {
  NameKind kind;
  Op op;              // Const, Var, Indexed or the function's operation
  std::uint8_t index; // the Var or IndexedVar
  std::uint8_t minArgs;
  std::uint8_t maxArgs;
  double value;       // of a constant
  std::string_view canonical;
};

// The entry of a name in any letter case, or nothing for an unknown name.
std::optional<NameInfo> LookUpName(std::string_view name);

// The canonical spelling of a variable, as the Polish form shows it.
std::string_view VarName(Var var);
std::string_view IndexedVarName(IndexedVar var);

}  // namespace tamsic::formula
