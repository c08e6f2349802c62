#pragma once

#include <string>
#include <string_view>

namespace kalvora {

/// An upper-case form for comparing names: ordinal, one character at a time, in no language and no
/// locale. Knows the letters of the Latin, Greek, Cyrillic and Armenian scripts.
wchar_t ordinalUpper(wchar_t c);
bool equalIgnoringCase(std::wstring_view a, std::wstring_view b);
/// The order of names everywhere in the program: ignoring case, ordinal; names that differ in case
/// only stand in plain ordinal order.
bool nameComesBefore(std::wstring_view a, std::wstring_view b);

/// Without the blanks, tabs and line ends at both ends.
std::wstring_view trimmed(std::wstring_view text);

}  // namespace kalvora
