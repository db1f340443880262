#include "app/HelpManual.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "model/Errors.h"

namespace tamsic {

namespace {

std::string ReadPage(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  if (in) text << in.rdbuf();
  if (!in || in.bad()) throw FileError("Cannot read the help page " + path.string());
  return text.str();
}

// A link with a scheme ("https:", "mailto:") or an absolute path leaves the manual.
bool LeavesManual(std::string_view target) {
  const std::size_t colon = target.find(':');
  return (!target.empty() && target.front() == '/') ||
         (colon != std::string_view::npos && colon < target.find_first_of("/#"));
}

}  // namespace

HelpManual HelpManual::Load(const std::filesystem::path& folder) {
  if (!std::filesystem::is_regular_file(folder / kManualContents))
    throw FileError("The help manual has no contents page: " + (folder / kManualContents).string());
  HelpManual manual;
  manual.folder_ = folder;
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    if (entry.path().extension() == ".html") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  for (const auto& file : files) manual.pages_.push_back({file.filename().string(), ScanHtml(ReadPage(file))});
  // The contents are the links of the lists; a link in a paragraph of the page is not an entry.
  for (const HtmlLink& link : manual.page(kManualContents)->html.links)
    if (link.depth > 0) manual.contents_.push_back({link.depth, link.title, link.target});
  return manual;
}

std::vector<std::filesystem::path> HelpManual::Places(const std::filesystem::path& programFolder) {
  return {programFolder / "manual", TAMSIC_MANUAL_INSTALLED, TAMSIC_MANUAL_SOURCE};
}

std::optional<std::filesystem::path> HelpManual::Locate(const std::vector<std::filesystem::path>& places) {
  for (const auto& folder : places) {
    std::error_code error;
    if (std::filesystem::is_regular_file(folder / kManualContents, error)) return folder;
  }
  return std::nullopt;
}

const ManualPage* HelpManual::page(std::string_view file) const {
  const auto it = std::find_if(pages_.begin(), pages_.end(), [file](const ManualPage& p) { return p.file == file; });
  return it == pages_.end() ? nullptr : &*it;
}

std::optional<std::string> HelpManual::Target(std::string_view topic) const {
  if (topic.empty()) return std::nullopt;
  const std::string file = std::string(topic) + ".html";
  if (page(file) != nullptr) return file;
  for (const ManualPage& p : pages_)
    if (p.html.ids.contains(std::string(topic))) return p.file + "#" + std::string(topic);
  return std::nullopt;
}

bool HelpManual::Leads(const std::string& from, const std::string& target) const {
  if (target.empty() || LeavesManual(target)) return false;
  const std::size_t hash = target.find('#');
  const std::string file = hash == 0 ? from : target.substr(0, hash);
  const std::string id = hash == std::string::npos ? std::string() : target.substr(hash + 1);
  if (const ManualPage* p = page(file)) return id.empty() || p->html.ids.contains(id);
  std::error_code error;
  return id.empty() && std::filesystem::is_regular_file(folder_ / file, error);
}

std::vector<std::string> HelpManual::BrokenLinks() const {
  std::vector<std::string> broken;
  for (const ManualPage& p : pages_) {
    for (const HtmlLink& link : p.html.links)
      if (!Leads(p.file, link.target)) broken.push_back(p.file + ": " + link.target);
    for (const std::string& image : p.html.images)
      if (!Leads(p.file, image)) broken.push_back(p.file + ": " + image);
  }
  return broken;
}

}  // namespace tamsic
