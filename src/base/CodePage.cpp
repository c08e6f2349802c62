#include "base/CodePage.h"

#include <algorithm>
#include <array>

namespace kalvora {

namespace {

// Bytes 0x80 to 0x9F; every other byte is its own character.
constexpr std::array<wchar_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

wchar_t toCharacter(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (code >= 0x80 && code <= 0x9F) return kUpperControls[code - 0x80U];
  return static_cast<wchar_t>(code);
}

char toByte(wchar_t c) {
  const auto* const found = std::ranges::find(kUpperControls, c);
  if (found != kUpperControls.end())
    return static_cast<char>(0x80 + (found - kUpperControls.begin()));
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
  return '?';
}

}  // namespace

std::wstring Windows1252::toText(std::string_view bytes) const {
  std::wstring text(bytes.size(), L'\0');
  std::ranges::transform(bytes, text.begin(), toCharacter);
  return text;
}

std::string Windows1252::toBytes(std::wstring_view text) const {
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(), toByte);
  return bytes;
}

}  // namespace kalvora
