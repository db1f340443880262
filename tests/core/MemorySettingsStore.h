#pragma once
// A settings store in memory, for tests of what is kept per user.
#include <map>
#include <string>
#include <tuple>

#include "app/SettingsStore.h"

namespace tamsic::test {

class MemorySettingsStore : public ISettingsStore {
 public:
  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) const override {
    const auto found = values.find({application, section, key});
    return found == values.end() ? fallback : found->second;
  }
  void SaveSetting(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) override {
    values[{application, section, key}] = value;
  }
  std::map<std::tuple<std::string, std::string, std::string>, std::string> values;
};

}  // namespace tamsic::test
