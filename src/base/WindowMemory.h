#pragma once

#include <string_view>

#include "base/Geometry.h"
#include "base/SettingsStore.h"

namespace kalvora {

/// What a window remembers of how it looked, as numbers in a section of its own. Nothing is stored
/// of what is as it was designed, and what cannot be read counts as missing: it is no more than a
/// look.
class WindowMemory {
 public:
  /// `section` is a literal; `settings` must outlive this object.
  WindowMemory(SettingsStore& settings, std::wstring_view section)
      : settings_(settings), section_(section) {}

  int number(std::wstring_view key, int fallback) const;
  /// Throws Failure where it cannot be stored.
  void store(std::wstring_view key, int number, int fallback);
  /// In pixels.
  Size size(Size designed) const;
  void storeSize(Size size, Size designed);

 private:
  SettingsStore& settings_;
  std::wstring_view section_;
};

}  // namespace kalvora
