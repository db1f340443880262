#include "app/HtmlScan.h"

#include <cctype>
#include <map>
#include <optional>

namespace tamsic {

namespace {

struct Tag {
  std::string name;  // lower case
  bool closing = false;
  std::map<std::string, std::string> attributes;  // names in lower case
};

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

bool IsNameCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_' || c == ':'; }

std::string Utf8(unsigned long code) {
  std::string out;
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
  return out;
}

// The character an entity stands for; nothing for one the manual does not use.
std::optional<std::string> Entity(std::string_view name) {
  static const std::map<std::string_view, unsigned long> named = {
      {"amp", '&'},     {"lt", '<'},       {"gt", '>'},       {"quot", '"'},     {"apos", '\''},
      {"nbsp", 0xA0},   {"ndash", 0x2013}, {"mdash", 0x2014}, {"times", 0xD7},   {"plusmn", 0xB1},
      {"le", 0x2264},   {"ge", 0x2265},    {"minus", 0x2212}, {"rarr", 0x2192},  {"hellip", 0x2026},
      {"middot", 0xB7}, {"sup2", 0xB2},    {"radic", 0x221A}, {"lambda", 0x3BB}, {"deg", 0xB0},
      {"ne", 0x2260}};
  if (name.size() > 1 && name[0] == '#') {
    const bool hex = name[1] == 'x' || name[1] == 'X';
    const std::string digits(name.substr(hex ? 2 : 1));
    if (digits.empty() || digits.find_first_not_of(hex ? "0123456789abcdefABCDEF" : "0123456789") != std::string::npos)
      return std::nullopt;
    return Utf8(std::stoul(digits, nullptr, hex ? 16 : 10));
  }
  const auto it = named.find(name);
  if (it == named.end()) return std::nullopt;
  return Utf8(it->second);
}

std::string Decode(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t end = text[i] == '&' ? text.find(';', i) : std::string_view::npos;
    if (end != std::string_view::npos && end - i <= 10) {
      if (const auto character = Entity(text.substr(i + 1, end - i - 1))) {
        out += *character;
        i = end;
        continue;
      }
    }
    out += text[i];
  }
  return out;
}

// Runs of blanks and line ends become one blank; none at either end.
std::string Simplified(std::string_view text) {
  std::string out;
  bool blank = false;
  for (char c : text) {
    if (std::isspace(static_cast<unsigned char>(c))) {
      blank = !out.empty();
      continue;
    }
    if (blank) out += ' ';
    blank = false;
    out += c;
  }
  return out;
}

Tag ParseTag(std::string_view inside) {
  Tag tag;
  std::size_t i = 0;
  if (i < inside.size() && inside[i] == '/') {
    tag.closing = true;
    ++i;
  }
  const std::size_t start = i;
  while (i < inside.size() && IsNameCharacter(inside[i])) ++i;
  tag.name = Lower(inside.substr(start, i - start));
  while (i < inside.size()) {
    while (i < inside.size() && !IsNameCharacter(inside[i])) ++i;
    const std::size_t nameStart = i;
    while (i < inside.size() && IsNameCharacter(inside[i])) ++i;
    const std::string name = Lower(inside.substr(nameStart, i - nameStart));
    while (i < inside.size() && inside[i] == ' ') ++i;
    std::string value;
    if (i < inside.size() && inside[i] == '=') {
      ++i;
      while (i < inside.size() && inside[i] == ' ') ++i;
      if (i < inside.size() && (inside[i] == '"' || inside[i] == '\'')) {
        const std::size_t close = inside.find(inside[i], i + 1);
        const std::size_t end = close == std::string_view::npos ? inside.size() : close;
        value = Decode(inside.substr(i + 1, end - i - 1));
        i = end + 1;
      } else {
        const std::size_t valueStart = i;
        while (i < inside.size() && !std::isspace(static_cast<unsigned char>(inside[i]))) ++i;
        value = Decode(inside.substr(valueStart, i - valueStart));
      }
    }
    if (!name.empty()) tag.attributes[name] = value;
  }
  return tag;
}

std::string Attribute(const Tag& tag, const std::string& name) {
  const auto it = tag.attributes.find(name);
  return it == tag.attributes.end() ? std::string() : it->second;
}

std::vector<std::string> SplitKeywords(std::string_view list) {
  std::vector<std::string> keywords;
  std::size_t start = 0;
  while (start <= list.size()) {
    const std::size_t comma = std::min(list.find(',', start), list.size());
    std::string keyword = Simplified(list.substr(start, comma - start));
    if (!keyword.empty()) keywords.push_back(std::move(keyword));
    start = comma + 1;
  }
  return keywords;
}

bool IsHeading(const std::string& name) {
  return name.size() == 2 && name[0] == 'h' && name[1] >= '1' && name[1] <= '6';
}

// Tags after which the words of the text do not run on into the next ones.
bool Separates(const std::string& name) {
  static const std::set<std::string> separating = {"p", "br", "li", "td", "th", "tr", "div", "dt", "dd", "pre",
                                                   "ul", "ol", "table", "title", "h1", "h2", "h3", "h4", "h5", "h6"};
  return separating.contains(name);
}

// Follows the tags of a page and collects what the help needs.
class Scanner {
 public:
  void tag(const Tag& tag) {
    if (Separates(tag.name)) page_.text += '\n';
    if (!tag.closing) {
      if (const std::string id = Attribute(tag, "id"); !id.empty()) page_.ids.insert(id);
      if (tag.name == "a" && !Attribute(tag, "name").empty()) page_.ids.insert(Attribute(tag, "name"));
    }
    if (tag.name == "head") inHead_ = !tag.closing;
    else if (tag.name == "style" || tag.name == "script") skipping_ = !tag.closing;
    else if (tag.name == "title") title_.open = !tag.closing;
    else if (tag.name == "ul" || tag.name == "ol") depth_ += tag.closing ? -1 : 1;
    else if (tag.name == "meta" && Lower(Attribute(tag, "name")) == "keywords")
      page_.keywords = SplitKeywords(Attribute(tag, "content"));
    else if (tag.name == "img") page_.images.push_back(Attribute(tag, "src"));
    else if (tag.name == "a") link(tag);
    else if (IsHeading(tag.name)) heading(tag);
  }

  void text(std::string_view raw) {
    if (skipping_) return;
    const std::string decoded = Decode(raw);
    for (std::string* capture : {title_.open ? &title_.text : nullptr, heading_.open ? &heading_.text : nullptr,
                                 link_.open ? &link_.text : nullptr})
      if (capture != nullptr) *capture += decoded;
    if (!inHead_) page_.text += decoded;
  }

  HtmlPage done() {
    page_.title = Simplified(title_.text);
    return std::move(page_);
  }

 private:
  struct Capture {
    bool open = false;
    std::string text;
  };

  void link(const Tag& tag) {
    if (!tag.closing) {
      linkTarget_ = Attribute(tag, "href");
      link_ = {!linkTarget_.empty(), {}};
      return;
    }
    if (link_.open) page_.links.push_back({Simplified(link_.text), linkTarget_, depth_});
    link_.open = false;
  }

  void heading(const Tag& tag) {
    if (!tag.closing) {
      heading_ = {true, {}};
      headingLevel_ = tag.name[1] - '0';
      headingId_ = Attribute(tag, "id");
      return;
    }
    if (heading_.open) page_.headings.push_back({headingLevel_, Simplified(heading_.text), headingId_});
    heading_.open = false;
  }

  HtmlPage page_;
  bool inHead_ = false;
  bool skipping_ = false;
  int depth_ = 0;
  Capture title_;
  Capture heading_;
  int headingLevel_ = 1;
  std::string headingId_;
  Capture link_;
  std::string linkTarget_;
};

}  // namespace

HtmlPage ScanHtml(std::string_view html) {
  Scanner scanner;
  std::size_t i = 0;
  while (i < html.size()) {
    const std::size_t open = html.find('<', i);
    if (open == std::string_view::npos) {
      scanner.text(html.substr(i));
      break;
    }
    scanner.text(html.substr(i, open - i));
    if (html.substr(open, 4) == "<!--") {
      const std::size_t end = html.find("-->", open + 4);
      i = end == std::string_view::npos ? html.size() : end + 3;
      continue;
    }
    const std::size_t close = html.find('>', open);
    if (close == std::string_view::npos) break;
    const std::string_view inside = html.substr(open + 1, close - open - 1);
    if (!inside.empty() && inside[0] != '!' && inside[0] != '?') scanner.tag(ParseTag(inside));
    i = close + 1;
  }
  return scanner.done();
}

}  // namespace tamsic
