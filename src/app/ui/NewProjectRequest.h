#pragma once
// What the new-project dialog asks for.
#include <QString>

struct NewProjectRequest {
  QString folder;
  QString name;
  QString user;
};
