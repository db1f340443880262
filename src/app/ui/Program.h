#pragma once
// What the windows of one running program share: the texts (the string
// table's and Qt's own), the settings and their store, the message box, the
// recent projects, the save-file dialog and how to close the engine. main()
// builds one; each test builds its own, with recording stand-ins for the
// dialogs.
#include <functional>

#include "app/GlobalSettings.h"
#include "app/RecentProjects.h"
#include "app/StringTable.h"
#include "app/ui/QtTranslations.h"
#include "files/ProjectSaveFlow.h"
#include "model/Messages.h"

struct Program {
  Program(tamsic::StringTable& table, tamsic::ISettingsStore& settingsStore, tamsic::IMessageBox& box,
          tamsic::ISaveFileDialog& dialog)
      : strings(table),
        store(settingsStore),
        messages(box, table),
        settings(tamsic::ReadGlobalSettings(settingsStore)),
        recent(settingsStore),
        saveDialog(dialog),
        qtTexts(table) {
    strings.setLanguage(static_cast<tamsic::Language>(settings.language));
    qtTexts.use(settings.language);
  }

  // Sets the language of windows opened from now on and keeps it for the next start.
  void setLanguage(int language) {
    settings.language = language;
    strings.setLanguage(static_cast<tamsic::Language>(language));
    qtTexts.use(language);
    tamsic::SaveSettings(store, settings);
  }

  tamsic::StringTable& strings;
  tamsic::ISettingsStore& store;
  tamsic::Messages messages;
  tamsic::GlobalSettings settings;
  tamsic::RecentProjects recent;
  tamsic::ISaveFileDialog& saveDialog;
  QtTranslations qtTexts;
  char decimalSeparator = '.';
  // Called once when the main frame closes.
  std::function<void()> closeEngine = [] {};
};
