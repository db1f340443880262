#pragma once
// The locale that writes dates and numbers the way the chosen language does.
#include <QLocale>

inline QLocale LanguageLocale(int language) {
  switch (language) {
    case 0: return QLocale(QLocale::Portuguese, QLocale::Brazil);
    case 2: return QLocale(QLocale::Spanish);
    case 3: return QLocale(QLocale::German);
    default: return QLocale(QLocale::English);
  }
}
