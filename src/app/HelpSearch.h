#pragma once
// The keyword index and the full-text search of the manual. The index lists
// each page's keywords and its headings that carry an id; the search finds
// the pages that hold every word asked for and puts first the pages about
// them: a word in a page's title weighs most, then in its keywords, then in
// its headings, then each time it stands in the text.
#include <string>
#include <string_view>
#include <vector>

#include "app/HelpManual.h"

namespace tamsic {

struct IndexEntry {
  std::string keyword;
  std::string title;   // the page's title
  std::string target;  // "page.html" or "page.html#id"
};

// Sorted by keyword regardless of letter case. A keyword given twice for one
// page (as a keyword and as a heading) is listed once, leading to the heading.
std::vector<IndexEntry> BuildIndex(const HelpManual& manual);

// The entries whose keyword begins with the text, then those that hold it elsewhere, letter case aside.
std::vector<IndexEntry> FindInIndex(const std::vector<IndexEntry>& index, std::string_view text);

struct SearchHit {
  std::string file;
  std::string title;
  int score = 0;
};

// The words of a text as the search compares them: letters and digits, lower case.
std::vector<std::string> SearchWords(std::string_view text);

// Pages holding every word of the query (a word of three letters or more
// also finds longer words it begins: "extinct" finds "extinction"), best first.
std::vector<SearchHit> SearchManual(const HelpManual& manual, std::string_view query);

}  // namespace tamsic
