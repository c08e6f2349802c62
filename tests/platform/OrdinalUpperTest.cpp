#include <gtest/gtest.h>
#include <windows.h>

#include "base/Text.h"

namespace kalvora {
namespace {

/// Equal without regard to case, as Windows compares file names.
bool sameForWindows(wchar_t a, wchar_t b) {
  return CompareStringOrdinal(&a, 1, &b, 1, TRUE) == CSTR_EQUAL;
}

TEST(OrdinalUpper, pairsTheLettersOfTheSupportedScriptsAsWindowsDoes) {
  const std::pair<wchar_t, wchar_t> scripts[] = {{0x0000, 0x024F}, {0x0370, 0x058F},
                                                 {0x1E00, 0x1EFF}, {0x2000, 0x206F},
                                                 {0x4E00, 0x4FFF}, {0xFF00, 0xFFEF}};
  for (const auto& [first, last] : scripts) {
    for (wchar_t c = first; c <= last; ++c) {
      const wchar_t upper = ordinalUpper(c);
      wchar_t expected = c;
      LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, &c, 1, &expected, 1, nullptr, nullptr,
                    0);
      ASSERT_TRUE(sameForWindows(c, upper)) << std::hex << unsigned{c};
      if (upper == c) {
        ASSERT_TRUE(expected == c || !sameForWindows(c, expected)) << std::hex << unsigned{c};
      }
    }
  }
}

}  // namespace
}  // namespace kalvora
