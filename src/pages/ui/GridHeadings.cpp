#include "pages/ui/GridHeadings.h"

#include "model/HeadingWords.h"
#include "pages/ui/PageContext.h"

QString GridHeadings::shown(const std::string& stored) const {
  auto found = cache_.find(stored);
  if (found == cache_.end()) found = cache_.emplace(stored, translate(stored)).first;
  return found->second;
}

QString GridHeadings::translate(const std::string& stored) const {
  if (const auto heading = tamsic::ShownHeading(stored, context_.strings)) return QString::fromStdString(*heading);
  return FromRecord(stored);
}
