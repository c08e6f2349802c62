#pragma once

#include <span>
#include <string_view>

#include "base/Comfort.h"

namespace kalvora {

/// One tick of the page "Comfort".
struct ComfortTick {
  std::wstring_view key;  // of the section "Comfort" of the settings
  std::wstring_view caption;
  bool Comfort::*member;
  std::wstring_view heading = {};  // above it, where a group of ticks begins
};

/// The only list of the ticks, in the order of the page: the settings and the dialog go through it.
std::span<const ComfortTick> comfortTicks();

}  // namespace kalvora
