#include "app/HelpSearch.h"

#include <algorithm>
#include <cctype>

namespace tamsic {

namespace {

// Weights of a word by where it stands in a page.
constexpr int kInTitle = 50;
constexpr int kInKeywords = 20;
constexpr int kInHeading = 10;
constexpr int kInText = 1;
constexpr std::size_t kShortestPrefix = 3;

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

std::string FileOf(const IndexEntry& entry) { return entry.target.substr(0, entry.target.find('#')); }

bool Anchored(const IndexEntry& entry) { return entry.target.find('#') != std::string::npos; }

// By keyword regardless of case, then by page; for one keyword and page the entry with an anchor first.
bool Before(const IndexEntry& a, const IndexEntry& b) {
  const std::string x = Lower(a.keyword);
  const std::string y = Lower(b.keyword);
  if (x != y) return x < y;
  if (FileOf(a) != FileOf(b)) return a.title < b.title;
  return Anchored(a) && !Anchored(b);
}

// Bytes of non-ASCII letters (UTF-8) count as letters, so that "ö" does not split a word.
bool IsWordByte(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || static_cast<unsigned char>(c) >= 0x80;
}

bool Matches(const std::string& word, const std::string& asked) {
  return word == asked || (asked.size() >= kShortestPrefix && word.starts_with(asked));
}

int Count(const std::vector<std::string>& words, const std::string& asked) {
  return static_cast<int>(std::count_if(words.begin(), words.end(), [&](const auto& w) { return Matches(w, asked); }));
}

struct PageWords {
  std::vector<std::string> title;
  std::vector<std::string> keywords;
  std::vector<std::string> headings;
  std::vector<std::string> text;
};

PageWords WordsOf(const HtmlPage& page) {
  PageWords words{SearchWords(page.title), {}, {}, SearchWords(page.text)};
  for (const std::string& keyword : page.keywords)
    for (std::string& word : SearchWords(keyword)) words.keywords.push_back(std::move(word));
  for (const HtmlHeading& heading : page.headings)
    for (std::string& word : SearchWords(heading.text)) words.headings.push_back(std::move(word));
  return words;
}

// 0 when a word asked for is missing from the page.
int Score(const PageWords& page, const std::vector<std::string>& asked) {
  int total = 0;
  for (const std::string& word : asked) {
    const int score = kInTitle * Count(page.title, word) + kInKeywords * Count(page.keywords, word) +
                      kInHeading * Count(page.headings, word) + kInText * Count(page.text, word);
    if (score == 0) return 0;
    total += score;
  }
  return total;
}

}  // namespace

std::vector<IndexEntry> BuildIndex(const HelpManual& manual) {
  std::vector<IndexEntry> index;
  for (const ManualPage& page : manual.pages()) {
    if (page.file == kManualContents) continue;
    for (const std::string& keyword : page.html.keywords) index.push_back({keyword, page.html.title, page.file});
    for (const HtmlHeading& heading : page.html.headings)
      if (!heading.id.empty()) index.push_back({heading.text, page.html.title, page.file + "#" + heading.id});
  }
  std::sort(index.begin(), index.end(), Before);
  const auto same = [](const IndexEntry& a, const IndexEntry& b) {
    return Lower(a.keyword) == Lower(b.keyword) && FileOf(a) == FileOf(b);
  };
  index.erase(std::unique(index.begin(), index.end(), same), index.end());
  return index;
}

std::vector<IndexEntry> FindInIndex(const std::vector<IndexEntry>& index, std::string_view text) {
  const std::string asked = Lower(text);
  std::vector<IndexEntry> starting;
  std::vector<IndexEntry> holding;
  for (const IndexEntry& entry : index) {
    const std::string keyword = Lower(entry.keyword);
    if (keyword.starts_with(asked)) starting.push_back(entry);
    else if (keyword.find(asked) != std::string::npos) holding.push_back(entry);
  }
  starting.insert(starting.end(), holding.begin(), holding.end());
  return starting;
}

std::vector<std::string> SearchWords(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  for (char c : text) {
    if (IsWordByte(c)) {
      word += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    } else if (!word.empty()) {
      words.push_back(std::move(word));
      word.clear();
    }
  }
  if (!word.empty()) words.push_back(std::move(word));
  return words;
}

std::vector<SearchHit> SearchManual(const HelpManual& manual, std::string_view query) {
  const std::vector<std::string> asked = SearchWords(query);
  std::vector<SearchHit> hits;
  if (asked.empty()) return hits;
  for (const ManualPage& page : manual.pages()) {
    if (page.file == kManualContents) continue;
    if (const int score = Score(WordsOf(page.html), asked); score > 0)
      hits.push_back({page.file, page.html.title, score});
  }
  std::stable_sort(hits.begin(), hits.end(), [](const SearchHit& a, const SearchHit& b) { return a.score > b.score; });
  return hits;
}

}  // namespace tamsic
