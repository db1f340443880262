#pragma once
// What the help needs of one page of the manual: its title, keywords,
// headings, the ids that links may point at, the links it makes and the
// words it shows. The manual is the program's own plain HTML (no scripts, no
// unclosed quotes), so a scan of tags and text is enough; this is no general
// HTML parser.
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tamsic {

struct HtmlHeading {
  int level = 1;
  std::string text;
  std::string id;  // empty when the heading has none
};

struct HtmlLink {
  std::string title;   // the text of the link
  std::string target;  // as written: "page.html", "page.html#id", "#id"
  int depth = 0;       // how many lists it stands in
};

struct HtmlPage {
  std::string title;
  std::vector<std::string> keywords;  // from <meta name="keywords" content="a, b, c">
  std::vector<HtmlHeading> headings;
  std::set<std::string> ids;
  std::vector<HtmlLink> links;       // <a href>, in the order of the page
  std::vector<std::string> images;   // <img src>
  std::string text;                  // what the page shows, tags removed and entities decoded
};

HtmlPage ScanHtml(std::string_view html);

}  // namespace tamsic
