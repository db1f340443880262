#pragma once
// The file-dialog filter for project files. Written "Tamsic Project Files
// (*.tpj) | *.tpj" in the classic description|pattern form; Qt takes the
// pattern inside the description.
#include <QString>

inline const QString kProjectFilter = QStringLiteral("Tamsic Project Files (*.tpj)");
