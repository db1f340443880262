#include "app/GlobalSettings.h"

#include <charconv>
#include <string>

#include "model/TextSplit.h"

namespace tamsic {

namespace {

constexpr int kDefault = 1;

int ReadInteger(const ISettingsStore& store, const char* key) {
  const std::string text = store.GetSetting(kSettingsApplication, kGlobalSettingsSection, key, "");
  const std::string_view digits = Trim(text);
  if (digits.empty()) return kDefault;
  int value = kDefault;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value);
  return error == std::errc() && stop == end ? value : kDefault;
}

void Write(ISettingsStore& store, const char* key, int value) {
  store.SaveSetting(kSettingsApplication, kGlobalSettingsSection, key, std::to_string(value));
}

}  // namespace

GlobalSettings ReadGlobalSettings(const ISettingsStore& store) {
  GlobalSettings settings;
  settings.showEquationDialogOnEquals = ReadInteger(store, "ShowEquationDialogOnEquals");
  settings.showWelcome = ReadInteger(store, "ShowWelcome");
  settings.language = ReadInteger(store, "Language");
  if (settings.language < 0 || settings.language > 3) settings.language = kDefault;
  return settings;
}

void SaveSettings(ISettingsStore& store, const GlobalSettings& settings) {
  Write(store, "ShowEquationDialogOnEquals", settings.showEquationDialogOnEquals);
  Write(store, "ShowWelcome", settings.showWelcome);
  Write(store, "Language", settings.language);
}

}  // namespace tamsic
