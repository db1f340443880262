#pragma once
// Qt's own texts in the program's language. The standard buttons, the file
// dialogs, the text boxes' context menus and the window menus are Qt's, not
// the string table's: they come from Qt's translations (qtbase_de.qm, ...).
// The translator of a newly chosen language replaces the one before, and
// windows opened afterwards use it.
#include <QTranslator>

#include "model/Messages.h"

class QtTranslations {
 public:
  explicit QtTranslations(const tamsic::IStringTable& strings);
  ~QtTranslations();
  QtTranslations(const QtTranslations&) = delete;
  QtTranslations& operator=(const QtTranslations&) = delete;

  // A language code of the settings: 0 Portuguese, 1 English, 2 Spanish, 3 German.
  void use(int language);

 private:
  // The few texts of Qt's that Qt's translation of a language lacks, in the
  // string table's words for the same thing; asked after Qt's own.
  class Gaps : public QTranslator {
   public:
    explicit Gaps(const tamsic::IStringTable& strings) : strings_(strings) {}
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation, int n) const override;

   private:
    const tamsic::IStringTable& strings_;
  };

  Gaps gaps_;
  QTranslator qt_;
};
