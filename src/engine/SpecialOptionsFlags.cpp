#include "engine/SpecialOptionsFlags.h"

#include <array>

namespace tamsic {

namespace {

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

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
    if (tag.find('*') != std::string::npos) flags += Trimmed(*ValueBox(options, i));
    flags += ";";
  }
  if (!flags.empty()) flags.pop_back();
  const std::string extra = Trimmed(options.undocumented);
  if (!extra.empty()) flags = flags.empty() ? extra : flags + ";" + extra;
  return flags;
}

}  // namespace tamsic
