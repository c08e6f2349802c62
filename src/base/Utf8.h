#pragma once

#include <string>
#include <string_view>

namespace kalvora {

/// What a file of UTF-8 begins with where it says so.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

/// A text as UTF-8, without a mark. A half of a surrogate pair that stands alone is encoded like
/// any other character, so that fromUtf8() gives back every text of 16-bit characters.
std::string toUtf8(std::wstring_view text);

/// UTF-8 as 16-bit characters: what lies beyond them becomes a surrogate pair, what is no UTF-8 the
/// replacement character. Never throws for what the bytes are.
std::wstring fromUtf8(std::string_view bytes);

}  // namespace kalvora
