#pragma once
// The user manual: a folder of HTML pages, one per topic, with a contents
// page whose nested lists give the order of the help window's contents. A
// topic is opened by a stable id: the name of a page without ".html", or the
// id of an element in one of the pages ("function-editor" is a heading of the
// function-language page).
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/HtmlScan.h"

namespace tamsic {

inline constexpr std::string_view kManualContents = "contents.html";

struct ManualPage {
  std::string file;  // "page-mortality.html"
  HtmlPage html;
};

struct ContentsEntry {
  int level = 1;  // 1 for the topics at the top
  std::string title;
  std::string target;  // "page.html" or "page.html#id"
};

class HelpManual {
 public:
  // Reads every page of the folder. A folder without the contents page, or a
  // page that cannot be read, throws FileError naming it.
  static HelpManual Load(const std::filesystem::path& folder);

  // Where the manual is looked for: beside the program, then where it is
  // installed, then in the source tree.
  static std::vector<std::filesystem::path> Places(const std::filesystem::path& programFolder);
  // The first of the places that holds a contents page; nothing when none does.
  static std::optional<std::filesystem::path> Locate(const std::vector<std::filesystem::path>& places);

  const std::filesystem::path& folder() const { return folder_; }
  const std::vector<ManualPage>& pages() const { return pages_; }
  const ManualPage* page(std::string_view file) const;
  const std::vector<ContentsEntry>& contents() const { return contents_; }

  // Where a topic id leads: "page.html" or "page.html#id"; nothing for an id the manual does not have.
  std::optional<std::string> Target(std::string_view topic) const;

  // Every link or picture that leads to no page, no id or no file of the
  // folder, and every link that would leave the machine: "page.html: target".
  std::vector<std::string> BrokenLinks() const;

 private:
  bool Leads(const std::string& from, const std::string& target) const;

  std::filesystem::path folder_;
  std::vector<ManualPage> pages_;
  std::vector<ContentsEntry> contents_;
};

}  // namespace tamsic
