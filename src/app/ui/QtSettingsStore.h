#pragma once
// The per-user settings store on the desktop's settings files: each
// application name is its own settings file, each section a group in it.
#include <QSettings>
#include <map>
#include <memory>

#include "app/SettingsStore.h"

class QtSettingsStore : public tamsic::ISettingsStore {
 public:
  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) const override;
  void SaveSetting(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) override;

 private:
  // One open file per application: opening one for every key read and
  // written the whole file each time, and the recent list writes twenty keys.
  QSettings& file(const std::string& application) const;

  mutable std::map<std::string, std::unique_ptr<QSettings>> files_;
};
