#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/Errors.h"
#include "base/SettingsStore.h"
#include "fakes/Fault.h"

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
    const bool meetsFault = left_ > 0 && --left_ == 0;
    if (refuses || (meetsFault && fault_ == Fault::Fail)) {
      throw Failure(L"This setting cannot be saved: " + std::wstring(key));
    }
    if (dead_ || (meetsFault && fault_ == Fault::KillBefore)) {
      dead_ = true;
      return;
    }
    dead_ = meetsFault;
    calls.push_back(L"save " + nameOf(section, key) + L"=" + std::wstring(text));
    values.insert_or_assign(nameOf(section, key), std::wstring(text));
  }

  /// From now on the Nth save, counted from 1, meets this: Fail, KillBefore or KillAfter. Of a
  /// killed program nothing more is stored.
  void arm(Fault fault, int save) {
    fault_ = fault;
    left_ = save;
  }
  /// The killed program is started again: it stores as ever.
  void revive() {
    dead_ = false;
    left_ = -1;
  }
  /// Whether that save came.
  bool wasReached() const { return left_ <= 0; }

  /// By section "/" key.
  std::map<std::wstring, std::wstring> values;
  bool refuses = false;
  mutable std::vector<std::wstring> calls;

 private:
  static std::wstring nameOf(std::wstring_view section, std::wstring_view key) {
    return std::wstring(section) + L"/" + std::wstring(key);
  }

  Fault fault_ = Fault::Fail;
  int left_ = -1;
  bool dead_ = false;
};

}  // namespace kalvora
