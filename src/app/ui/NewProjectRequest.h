#pragma once
// What the new-project dialog asks for.
#include <QString>

struct NewProjectRequest {
  QString folder;
  QString name;
  QString user;
  QString fromTemplate{};  // a project file to start from; empty for a blank project
};
