#include "model/HeadingWords.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include "model/ScenarioFields.h"

namespace tamsic {

namespace {

// Words of a heading in English and the message number of the same words in
// every language; an empty piece has no number.
struct Piece {
  std::string_view english;
  int caption = 0;
};

// A made heading: its first piece, then for each number the piece after it.
struct Form {
  Piece pieces[3];
  int numbers;
};

// In the order of MadeHeading.
constexpr Form kForms[] = {
    {{{"Mortality From Age ", 608}, {" to ", 609}, {}}, 2},
    {{{"SD in ", 610}, {" to ", 609}, {" Mortality Due to EV", 611}}, 2},
    {{{"Annual Mortality After Age ", 612}, {}, {}}, 1},
    {{{"SD in Mortality After Age ", 613}, {}, {}}, 1},
    {{{"Adults", 1119}, {}, {}}, 0},
};

std::size_t DigitsAtStart(std::string_view text) {
  const auto digit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), digit) - text.begin());
}

std::optional<std::string> ShownForm(std::string_view stored, const Form& form, const IStringTable& words) {
  std::string shown;
  for (int i = 0;; ++i) {
    const Piece& piece = form.pieces[i];
    if (!stored.starts_with(piece.english)) return std::nullopt;
    stored.remove_prefix(piece.english.size());
    if (piece.caption) {
      const std::string word = words.text(piece.caption);
      if (word.empty()) return std::nullopt;
      shown += word;
    }
    if (i == form.numbers) break;
    const std::size_t digits = DigitsAtStart(stored);
    if (digits == 0) return std::nullopt;
    shown += stored.substr(0, digits);
    stored.remove_prefix(digits);
  }
  if (!stored.empty()) return std::nullopt;
  return shown;
}

// A grid line's heading with its caption; a numbered one stands before a
// blank and a number ("Frequency % 2").
struct LineHeading {
  std::string_view heading;
  int caption;
  bool numbered;
};

std::vector<LineHeading> LineHeadings() {
  std::vector<LineHeading> headings;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const GridDescription* d = Describe(Field{i}).input.grid;
    if (!d) continue;
    const bool numbered = d->lines != Lines::Fixed && d->shape != GridShape::Distribution &&
                          d->shape != GridShape::PopulationLabels;
    for (const GridLine& line : d->line)
      if (line.caption) headings.push_back({line.heading, line.caption, numbered});
  }
  return headings;
}

}  // namespace

std::string MakeHeading(MadeHeading heading, int age) {
  const Form& form = kForms[static_cast<std::size_t>(heading)];
  std::string text(form.pieces[0].english);
  for (int i = 0; i < form.numbers; ++i) text += std::to_string(age + i) + std::string(form.pieces[i + 1].english);
  return text;
}

std::optional<std::string> ShownHeading(std::string_view stored, const IStringTable& words) {
  static const std::vector<LineHeading> lines = LineHeadings();
  for (const LineHeading& line : lines) {
    const std::size_t size = line.heading.size();
    const std::string_view number = stored.size() > size + 1 ? stored.substr(size + 1) : std::string_view();
    const bool numbered = line.numbered && !number.empty() && stored.starts_with(line.heading) &&
                          stored[size] == ' ' && DigitsAtStart(number) == number.size();
    const bool plain = !line.numbered && stored == line.heading;
    if (!numbered && !plain) continue;
    const std::string word = words.text(line.caption);
    if (word.empty()) return std::nullopt;
    return numbered ? word + " " + std::string(number) : word;
  }
  for (const Form& form : kForms)
    if (auto shown = ShownForm(stored, form, words)) return shown;
  return std::nullopt;
}

}  // namespace tamsic
