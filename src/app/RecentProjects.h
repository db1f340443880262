#pragma once
// The recently used projects, newest first, at most ten. The list lives in the
// settings store under the application name "RichEdit", section "MRUList",
// entry n under the keys n + "Name" and n + "Title"; that application name is
// where the list has always been kept, so it stays.
#include <string>
#include <vector>

#include "app/SettingsStore.h"

namespace tamsic {

struct RecentProject {
  std::string name;   // the project file with its path
  std::string title;  // the project's title
  bool operator==(const RecentProject&) const = default;
};

class RecentProjects {
 public:
  static constexpr std::size_t kMaxEntries = 10;

  // Loads the stored list; an entry with an empty name is skipped and the
  // entries after it are still read.
  explicit RecentProjects(ISettingsStore& store);

  const std::vector<RecentProject>& Entries() const { return entries_; }

  // Puts the project at the top, dropping an entry of the same file (names
  // compared without regard to case) or else the oldest when the list is
  // full, and writes the list back.
  void Add(const std::string& name, const std::string& title);

  // The menu caption of entry n (from 1): "&" + n + " " + the file name, its
  // own ampersands doubled so that only n is the access key.
  static std::string MenuCaption(std::size_t n, const RecentProject& entry);

 private:
  void Save() const;

  ISettingsStore& store_;
  std::vector<RecentProject> entries_;
};

}  // namespace tamsic
