#include "app/RecentProjects.h"

#include <algorithm>
#include <cctype>

namespace tamsic {

namespace {

constexpr const char* kApplication = "RichEdit";
constexpr const char* kSection = "MRUList";

std::string Key(std::size_t n, const char* what) { return std::to_string(n) + what; }

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

}  // namespace

RecentProjects::RecentProjects(ISettingsStore& store) : store_(store) {
  for (std::size_t n = 1; n <= kMaxEntries; ++n) {
    std::string name = store_.GetSetting(kApplication, kSection, Key(n, "Name"), "");
    if (name.empty()) continue;
    entries_.push_back({std::move(name), store_.GetSetting(kApplication, kSection, Key(n, "Title"), "")});
  }
}

void RecentProjects::Add(const std::string& name, const std::string& title) {
  const std::string lowered = Lower(name);
  std::erase_if(entries_, [&](const RecentProject& entry) { return Lower(entry.name) == lowered; });
  if (entries_.size() >= kMaxEntries) entries_.resize(kMaxEntries - 1);
  entries_.insert(entries_.begin(), {name, title});
  Save();
}

void RecentProjects::Save() const {
  // Keys past the list are emptied too, so that entries once stored behind a
  // gap do not come back as duplicates at the next load.
  for (std::size_t n = 1; n <= kMaxEntries; ++n) {
    const bool used = n <= entries_.size();
    store_.SaveSetting(kApplication, kSection, Key(n, "Name"), used ? entries_[n - 1].name : "");
    store_.SaveSetting(kApplication, kSection, Key(n, "Title"), used ? entries_[n - 1].title : "");
  }
}

std::string RecentProjects::MenuCaption(std::size_t n, const RecentProject& entry) {
  std::string caption = "&" + std::to_string(n) + " ";
  for (char c : entry.name) {
    if (c == '&') caption += '&';
    caption += c;
  }
  return caption;
}

}  // namespace tamsic
