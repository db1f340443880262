#include "engine/SpecialOptionsFlags.h"

#include <array>

#include "model/TextSplit.h"

namespace tamsic {

namespace {

// The tag of each switch: its code letter, and "*" when it takes the value of its box.
constexpr std::array<const char*, 10> kTags = {"S", "T*", "X", "M", "B", "A", "Y*", "R", "W*", "N"};

const std::string* ValueBox(const SpecialOptions& options, std::size_t index) {
  switch (index) {
    case 1: return &options.option1Text;
    case 6: return &options.option6Text;
    case 8: return &options.option8Text;
    default: return nullptr;
  }
}

}  // namespace

std::string Flags(const SpecialOptions& options) {
  std::string flags;
  for (std::size_t i = 0; i < kTags.size(); ++i) {
    if (options.checked[i] != 1) continue;
    const std::string tag = kTags[i];
    flags += tag.front();
    if (tag.find('*') != std::string::npos) flags += Trim(*ValueBox(options, i));
    flags += ";";
  }
  if (!flags.empty()) flags.pop_back();
  const std::string extra(Trim(options.undocumented));
  if (!extra.empty()) flags = flags.empty() ? extra : flags + ";" + extra;
  return flags;
}

}  // namespace tamsic
