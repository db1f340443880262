#include "app/ui/QtTranslations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include "app/ui/LanguageLocale.h"

QtTranslations::QtTranslations(const tamsic::IStringTable& strings) : gaps_(strings) {
  // The desktop's own file dialogs would speak the desktop's language rather
  // than the one chosen in the program; Qt's dialogs speak the translator's.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

QtTranslations::~QtTranslations() {
  QCoreApplication::removeTranslator(&qt_);
  QCoreApplication::removeTranslator(&gaps_);
}

void QtTranslations::use(int language) {
  QCoreApplication::removeTranslator(&qt_);
  QCoreApplication::removeTranslator(&gaps_);
  // The translator installed last is asked first.
  QCoreApplication::installTranslator(&gaps_);
  // Without the translations installed (package qt6-translations-l10n) Qt's texts stay English.
  if (qt_.load(LanguageLocale(language), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&qt_);
}

// Qt's Spanish and Portuguese leave the type of a drive in the file dialogs in English.
QString QtTranslations::Gaps::translate(const char*, const char* source, const char*, int) const {
  if (qstrcmp(source, "Drive") == 0) return QString::fromStdString(strings_.text(8717));
  return {};
}
