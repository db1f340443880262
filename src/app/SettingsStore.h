#pragma once
// The per-user settings store: texts kept by application, section and key.
// The GUI keeps them in the desktop's settings files; tests keep them in memory.
#include <string>

namespace tamsic {

class ISettingsStore {
 public:
  virtual ~ISettingsStore() = default;
  // The stored text, or fallback when the key has never been written.
  virtual std::string GetSetting(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& fallback) const = 0;
  virtual void SaveSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& value) = 0;
};

}  // namespace tamsic
