#include "formula/Polish.h"

namespace tamsic::formula {

namespace {

void Append(const Node& node, std::string& out) {
  if (!out.empty()) out += ' ';
  out += node.label;
  for (const auto& child : node.children) Append(*child, out);
}

}  // namespace

std::string ToPolish(const Node& tree) {
  std::string out;
  Append(tree, out);
  return out;
}

}  // namespace tamsic::formula
