#include "app/ui/QtSettingsStore.h"

namespace {

QString Key(const std::string& section, const std::string& key) {
  return QString::fromStdString(section + "/" + key);
}

}  // namespace

QSettings& QtSettingsStore::file(const std::string& application) const {
  std::unique_ptr<QSettings>& settings = files_[application];
  if (!settings) {
    const QString name = QString::fromStdString(application);
    settings = std::make_unique<QSettings>(name, name);
  }
  return *settings;
}

std::string QtSettingsStore::GetSetting(const std::string& application, const std::string& section,
                                        const std::string& key, const std::string& fallback) const {
  const QVariant value = file(application).value(Key(section, key));
  return value.isValid() ? value.toString().toStdString() : fallback;
}

void QtSettingsStore::SaveSetting(const std::string& application, const std::string& section,
                                  const std::string& key, const std::string& value) {
  file(application).setValue(Key(section, key), QString::fromStdString(value));
}
