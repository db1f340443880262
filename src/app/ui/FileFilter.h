#pragma once
// The file-dialog filter for project files, written "Tamsic Project Files
// (*.tpj) | *.tpj" in the classic description|pattern form; Qt takes the
// pattern inside the description. The description is in the user's language.
#include <QString>

#include "model/Messages.h"

inline QString ProjectFilter(const tamsic::IStringTable& strings) {
  return QString::fromStdString(strings.text(9038)) + " (*.tpj)";
}
