#include "formula/Names.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <string>
#include <vector>

namespace tamsic::formula {

namespace {

constexpr double kE = 2.718281828459045235;
constexpr double kPi = 3.141592653589793238;

constexpr std::array<std::string_view, 28> kPlainNames = {
    "A", "B", "D", "F", "G", "I", "J", "K", "M", "N", "O", "P", "Q", "R",
    "S", "U", "V", "W", "X", "Y", "Z", "PP", "PARITY", "ID", "DAM", "SIRE", "MATE", "NMATES"};
constexpr std::array<std::string_view, 16> kIndexedNames = {
    "FF", "GG", "JJ", "KK", "MM", "NN", "II", "VV", "WW", "XX", "ZZ",
    "IMEAN", "ITOT", "IMIN", "IMAX", "CAT"};

struct Table {
  std::vector<std::string> varNames;
  std::vector<std::string> indexedNames;
  std::map<std::string, NameInfo, std::less<>> byName;
};

void AddFunction(Table& table, std::string_view name, Op op, int minArgs, int maxArgs) {
  table.byName.emplace(std::string(name),
                       NameInfo{NameKind::Function, op, 0, static_cast<std::uint8_t>(minArgs),
                                static_cast<std::uint8_t>(maxArgs), 0.0, name});
}

Table BuildTable() {
  Table table;
  for (auto name : kPlainNames) table.varNames.emplace_back(name);
  for (auto prefix : {"IS", "PS", "GS"})
    for (int number = 1; number <= 10; ++number)
      table.varNames.push_back(prefix + std::to_string(number));
  for (auto name : kIndexedNames) table.indexedNames.emplace_back(name);
  for (auto prefix : {"IIS", "PPS"})
    for (int number = 1; number <= 10; ++number)
      table.indexedNames.push_back(prefix + std::to_string(number));

  for (std::size_t i = 0; i < table.varNames.size(); ++i) {
    const auto& name = table.varNames[i];
    table.byName.emplace(name, NameInfo{NameKind::Variable, Op::Var, static_cast<std::uint8_t>(i),
                                        0, 0, 0.0, name});
  }
  for (std::size_t i = 0; i < table.indexedNames.size(); ++i) {
    const auto& name = table.indexedNames[i];
    table.byName.emplace(name, NameInfo{NameKind::Indexed, Op::Indexed,
                                        static_cast<std::uint8_t>(i), 1, 1, 0.0, name});
  }
  for (auto [name, value] : {std::pair<std::string_view, double>{"TRUE", 1.0},
                             {"FALSE", 0.0}, {"E", kE}, {"PI", kPi}})
    table.byName.emplace(std::string(name),
                         NameInfo{NameKind::Constant, Op::Const, 0, 0, 0, value, name});
  for (auto [name, op] : {std::pair<std::string_view, Op>{"AND", Op::And}, {"OR", Op::Or},
                          {"NOT", Op::Not}})
    table.byName.emplace(std::string(name), NameInfo{NameKind::Keyword, op, 0, 0, 0, 0.0, name});

  const std::pair<std::string_view, Op> oneArgument[] = {
      {"SQRT", Op::Sqrt}, {"LOG10", Op::Log10}, {"LN", Op::Ln},     {"EXP", Op::Exp},
      {"ABS", Op::Abs},   {"ROUND", Op::Round}, {"FLOOR", Op::Floor}, {"CEIL", Op::Ceil},
      {"SIN", Op::Sin},   {"COS", Op::Cos},     {"TAN", Op::Tan},     {"ASIN", Op::Asin},
      {"ACOS", Op::Acos}, {"ATAN", Op::Atan},   {"SRAND", Op::SRand}, {"SNRAND", Op::SNRand}};
  for (auto [name, op] : oneArgument) AddFunction(table, name, op, 1, 1);
  for (auto [name, op] : {std::pair<std::string_view, Op>{"POW", Op::Pow}, {"MIN", Op::Min},
                          {"MAX", Op::Max}, {"MOD", Op::Mod}, {"KIN", Op::Kin}})
    AddFunction(table, name, op, 2, 2);
  // RAND and NRAND are written without parentheses; "RAND()" is accepted too.
  AddFunction(table, "RAND", Op::Rand, 0, 0);
  AddFunction(table, "NRAND", Op::NRand, 0, 0);
  return table;
}

const Table& Names() {
  static const Table table = BuildTable();
  return table;
}

}  // namespace

std::optional<NameInfo> LookUpName(std::string_view name) {
  std::string upper(name);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  const auto& byName = Names().byName;
  const auto it = byName.find(upper);
  if (it == byName.end()) return std::nullopt;
  return it->second;
}

std::string_view VarName(Var var) { return Names().varNames.at(static_cast<std::size_t>(var)); }

std::string_view IndexedVarName(IndexedVar var) {
  return Names().indexedNames.at(static_cast<std::size_t>(var));
}

}  // namespace tamsic::formula
