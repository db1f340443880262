#pragma once
// The headings of the grids in the user's language. A record holds its grids'
// headings as the layouts write them, in English, so that project files read
// the same whatever language saved them; the views show them translated. A
// heading that is no layout heading (a population's label) shows as stored.
#include <QString>
#include <string>
#include <unordered_map>

struct PageContext;

class GridHeadings {
 public:
  explicit GridHeadings(const PageContext& context) : context_(context) {}

  QString shown(const std::string& stored) const;

 private:
  QString translate(const std::string& stored) const;

  const PageContext& context_;
  mutable std::unordered_map<std::string, QString> cache_;
};
