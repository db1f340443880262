#pragma once
// The three settings a user keeps across all projects. They are read once at
// start and written back whenever the user changes them.
#include "app/SettingsStore.h"

namespace tamsic {

inline constexpr const char* kSettingsApplication = "Tamsic 9.99c";
inline constexpr const char* kGlobalSettingsSection = "GlobalSettings";

struct GlobalSettings {
  int showEquationDialogOnEquals = 1;  // typing "=" in a cell opens the function editor
  int showWelcome = 1;                 // the welcome dialog opens at start
  int language = 1;                    // 0 Portuguese, 1 English, 2 Spanish, 3 German
  bool operator==(const GlobalSettings&) const = default;
};

// A value that is absent or not a whole number falls back to 1, and so does a
// language without a block in the string table.
GlobalSettings ReadGlobalSettings(const ISettingsStore& store);
void SaveSettings(ISettingsStore& store, const GlobalSettings& settings);

}  // namespace tamsic
