#include "pages/PasteReport.h"

#include <cstddef>

namespace tamsic {

namespace {
// A message box taller than the screen hides its own button.
constexpr std::size_t kListed = 10;
}  // namespace

void PasteReport::Start(std::string cell, std::string text) {
  entries_.push_back({std::move(cell), std::move(text), {}, false});
}

void PasteReport::Refused() {
  if (!entries_.empty()) entries_.back().refused = true;
}

MsgAnswer PasteReport::show(const MessageBoxRequest& request) {
  if (!entries_.empty()) entries_.back().said.push_back(request.text);
  return MsgAnswer::Ok;
}

std::string PasteReport::Text(const IStringTable& strings) const {
  std::string text;
  std::size_t listed = 0;
  std::size_t unlisted = 0;
  for (const bool refused : {true, false}) {
    bool headed = false;
    for (const Entry& entry : entries_) {
      if (entry.refused != refused || (!refused && entry.said.empty())) continue;
      if (listed == kListed) {
        ++unlisted;
        continue;
      }
      if (!headed) {
        if (!text.empty()) text += "\n\n";
        text += strings.text(refused ? msg::kPasteRefused : msg::kPasteRemarks);
        headed = true;
      }
      text += "\n\n" + entry.cell + ": " + entry.text;
      for (const std::string& said : entry.said) text += "\n" + said;
      ++listed;
    }
  }
  if (unlisted > 0) text += "\n\n" + strings.text(msg::kPasteUnlisted) + std::to_string(unlisted);
  return text;
}

}  // namespace tamsic
