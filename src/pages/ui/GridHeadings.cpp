#include "pages/ui/GridHeadings.h"

#include <QRegularExpression>
#include <array>
#include <utility>

#include "pages/ui/PageContext.h"

namespace {

// Layout headings and the message of their caption.
constexpr std::array<std::pair<const char*, int>, 35> kHeadings = {{
    {"Label", 206},
    {"Name", 246},
    {"Init fn", 247},
    {"Birth fn", 248},
    {"Transition fn", 249},
    {"Density dependent?", 424},
    {"% Breeding at Low Density, P(0)", 425},
    {"% Breeding at Carrying Capacity, P(K)", 426},
    {"Allee Parameter, A", 427},
    {"Steepness Parameter, B", 428},
    {"% Adult Females Breeding", 508},
    {"EV in % Breeding", 509},
    {"Mean progeny per brood", 513},
    {"SD", 514},
    {"Offspring per brood", 518},
    {"Broods per year", 516},
    {"% Males in Breeding Pool", 807},
    {"% Males Successfully Siring Offspring", 808},
    {"Mean Offspring per Successful Sire", 809},
    {"Initial population size", 909},
    {"Carrying Capacity (K)", 1008},
    {"SD in K Due to EV", 1009},
    {"Trend in K?", 1010},
    {"Over how many years?", 1011},
    {"% annual increase/decrease", 1012},
    {"Population Harvested?", 1114},
    {"First Year of Harvest", 1115},
    {"Last Year of Harvest", 1116},
    {"Interval Between Harvests", 1117},
    {"Optional Criterion for Harvest", 1118},
    {"Population Supplemented?", 1213},
    {"First Year of Supplement", 1214},
    {"Last Year of Supplement", 1215},
    {"Interval Between Supplements", 1216},
    {"Optional Criterion for Supplement", 1217},
}};

// Headings with a number in them: a caption, then the number.
constexpr std::array<std::pair<const char*, int>, 8> kNumbered = {{
    {"Global/Local", 709},
    {"Frequency %", 710},
    {"Reproduction", 711},
    {"Survival", 712},
    {"Catastrophe", 714},
    {"Females Age", 910},
    {"Males Age", 911},
    {"Age", 1111},
}};

}  // namespace

QString GridHeadings::shown(const std::string& stored) const {
  auto found = cache_.find(stored);
  if (found == cache_.end()) found = cache_.emplace(stored, translate(stored)).first;
  return found->second;
}

QString GridHeadings::translate(const std::string& stored) const {
  for (const auto& [heading, number] : kHeadings)
    if (stored == heading) return context_.text(number);
  const QString text = FromRecord(stored);
  static const QRegularExpression numbered("^(.*) (\\d+)$");
  if (const auto match = numbered.match(text); match.hasMatch())
    for (const auto& [caption, number] : kNumbered)
      if (match.captured(1) == caption) return context_.text(number) + " " + match.captured(2);
  // Mortality headings are pieces with the ages between them.
  static const QRegularExpression from("^Mortality From Age (\\d+) to (\\d+)$");
  static const QRegularExpression sd("^SD in (\\d+) to (\\d+) Mortality Due to EV$");
  static const QRegularExpression after("^Annual Mortality After Age (\\d+)$");
  static const QRegularExpression sdAfter("^SD in Mortality After Age (\\d+)$");
  if (const auto m = from.match(text); m.hasMatch())
    return context_.text(608) + m.captured(1) + context_.text(609) + m.captured(2);
  if (const auto m = sd.match(text); m.hasMatch())
    return context_.text(610) + m.captured(1) + context_.text(609) + m.captured(2) + context_.text(611);
  if (const auto m = after.match(text); m.hasMatch()) return context_.text(612) + m.captured(1);
  if (const auto m = sdAfter.match(text); m.hasMatch()) return context_.text(613) + m.captured(1);
  return text;
}
