#include "base/Text.h"

#include <algorithm>
#include <cwctype>

namespace kalvora {

namespace {

// ASCII and Latin-1 by hand, so that the order does not hang on the C library's locale.
constexpr bool isLowerLatin1(wchar_t c) {
  return (c >= L'a' && c <= L'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7);
}

constexpr std::wstring_view kBlanks = L" \t\r\n\v\f";

}  // namespace

wchar_t ordinalUpper(wchar_t c) {
  if (isLowerLatin1(c)) return static_cast<wchar_t>(c - 0x20);
  if (c < 0x100) return c;
  return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c)));
}

bool equalIgnoringCase(std::wstring_view a, std::wstring_view b) {
  return std::ranges::equal(a, b, {}, ordinalUpper, ordinalUpper);
}

bool nameComesBefore(std::wstring_view a, std::wstring_view b) {
  if (equalIgnoringCase(a, b)) return a < b;
  return std::ranges::lexicographical_compare(a, b, {}, ordinalUpper, ordinalUpper);
}

std::wstring_view trimmed(std::wstring_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace kalvora
