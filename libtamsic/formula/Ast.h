#pragma once
// The tree of a parsed function. Every node is one operation of Op; its
// label is what the Polish form prints for it.
#include <memory>
#include <string>
#include <vector>

#include "formula/Op.h"

namespace tamsic::formula {

struct Node {
  Op op;
  std::string label;
  int position = 0;
  double value = 0.0;       // of a Const
  std::uint8_t index = 0;   // the Var or IndexedVar
  int height = 1;           // of the tree below and including this node
  std::vector<std::unique_ptr<Node>> children;
};

}  // namespace tamsic::formula
