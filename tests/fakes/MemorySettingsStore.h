#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "app/Settings.h"
#include "base/Errors.h"

namespace kalvora {

/// Settings in memory, with a record of the calls: L"get Graph/ShWatS", L"save Sys/AmPm=True".
class MemorySettingsStore : public SettingsStore {
 public:
  std::wstring get(std::wstring_view section, std::wstring_view key,
                   std::wstring_view fallback) const override {
    calls.push_back(L"get " + nameOf(section, key));
    const auto found = values.find(nameOf(section, key));
    return found == values.end() ? std::wstring(fallback) : found->second;
  }

  void save(std::wstring_view section, std::wstring_view key, std::wstring_view text) override {
    if (refuses || ++saves == failingSave) {
      throw Failure(L"This setting cannot be saved: " + std::wstring(key));
    }
    calls.push_back(L"save " + nameOf(section, key) + L"=" + std::wstring(text));
    values.insert_or_assign(nameOf(section, key), std::wstring(text));
  }

  /// By section "/" key.
  std::map<std::wstring, std::wstring> values;
  bool refuses = false;
  /// The number of the one value that cannot be saved, counted from 1; none for 0.
  std::size_t failingSave = 0;
  std::size_t saves = 0;
  mutable std::vector<std::wstring> calls;

 private:
  static std::wstring nameOf(std::wstring_view section, std::wstring_view key) {
    return std::wstring(section) + L"/" + std::wstring(key);
  }
};

}  // namespace kalvora
