#include "pages/ui/GridHeadings.h"

#include <QRegularExpression>
#include <vector>

#include "model/GridLayouts.h"
#include "pages/ui/PageContext.h"

QString GridHeadings::shown(const std::string& stored) const {
  auto found = cache_.find(stored);
  if (found == cache_.end()) found = cache_.emplace(stored, translate(stored)).first;
  return found->second;
}

QString GridHeadings::translate(const std::string& stored) const {
  static const std::vector<tamsic::HeadingCaption> captions = tamsic::HeadingCaptions();
  for (const auto& [heading, number, numbered] : captions)
    if (!numbered && stored == heading) return context_.text(number);
  const QString text = FromRecord(stored);
  static const QRegularExpression numbered("^(.*) (\\d+)$");
  if (const auto match = numbered.match(text); match.hasMatch())
    for (const auto& [heading, number, isNumbered] : captions)
      if (isNumbered && match.captured(1).toStdString() == heading)
        return context_.text(number) + " " + match.captured(2);
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
