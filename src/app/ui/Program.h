#pragma once
// What the windows of one running program share: the texts, the settings and
// their store, the message box, the recent projects, the save-file dialog and
// how to close the engine. main() builds one; each test builds its own, with
// recording stand-ins for the dialogs.
#include <functional>

#include "app/GlobalSettings.h"
#include "app/RecentProjects.h"
#include "app/StringTable.h"
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
        saveDialog(dialog) {
    strings.setLanguage(static_cast<tamsic::Language>(settings.language));
  }

  // Sets the language of windows opened from now on and keeps it for the next start.
  void setLanguage(int language) {
    settings.language = language;
    strings.setLanguage(static_cast<tamsic::Language>(language));
    tamsic::SaveSettings(store, settings);
  }

  tamsic::StringTable& strings;
  tamsic::ISettingsStore& store;
  tamsic::Messages messages;
  tamsic::GlobalSettings settings;
  tamsic::RecentProjects recent;
  tamsic::ISaveFileDialog& saveDialog;
  char decimalSeparator = '.';
  // Called once when the main frame closes.
  std::function<void()> closeEngine = [] {};
};
