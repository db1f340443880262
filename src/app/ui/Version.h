#pragma once
// The version the program shows in its about and splash windows.
#include <QString>

inline const QString kTamsicVersion = QStringLiteral("9.99c");
