#include "app/IniText.h"

#include <string_view>

#include "base/CodePage.h"

namespace kalvora {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf16BigEndianMark = "\xFE\xFF";
constexpr wchar_t kReplacement = 0xFFFD;

unsigned at(std::string_view bytes, std::size_t index) {
  return static_cast<unsigned char>(bytes[index]);
}

std::wstring fromUtf16(std::string_view bytes, std::size_t highByte) {
  std::wstring text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    text += static_cast<wchar_t>((at(bytes, i + highByte) << 8U) | at(bytes, i + 1 - highByte));
  }
  return text;
}

/// The bytes that follow a first byte in its character; nothing where it is no first byte.
std::size_t followersOf(unsigned first) {
  if (first >= 0xC2 && first <= 0xDF) return 1;
  if (first >= 0xE0 && first <= 0xEF) return 2;
  if (first >= 0xF0 && first <= 0xF4) return 3;
  return 0;
}

std::wstring fromUtf8(std::string_view bytes) {
  std::wstring text;
  for (std::size_t i = 0; i < bytes.size();) {
    const unsigned first = at(bytes, i++);
    const std::size_t followers = followersOf(first);
    if (followers == 0) {
      text += first < 0x80 ? static_cast<wchar_t>(first) : kReplacement;
      continue;
    }
    unsigned code = first & (0x3FU >> followers);
    std::size_t read = 0;
    for (; read < followers && i < bytes.size() && (at(bytes, i) & 0xC0U) == 0x80; ++read) {
      code = (code << 6U) | (at(bytes, i++) & 0x3FU);
    }
    // No code page holds what lies beyond 16 bits: such a character is two that cannot be held.
    if (read == followers && code <= 0xFFFF) {
      text += static_cast<wchar_t>(code);
    } else {
      text.append(read == followers ? 2 : 1, kReplacement);
    }
  }
  return text;
}

}  // namespace

std::string iniTextOf(std::string fileBytes) {
  const std::string_view bytes = fileBytes;
  const Windows1252 codePage;
  if (bytes.starts_with(kUtf8Mark)) {
    return codePage.toBytes(fromUtf8(bytes.substr(kUtf8Mark.size())));
  }
  if (bytes.starts_with(kUtf16Mark)) {
    return codePage.toBytes(fromUtf16(bytes.substr(kUtf16Mark.size()), 1));
  }
  if (bytes.starts_with(kUtf16BigEndianMark)) {
    return codePage.toBytes(fromUtf16(bytes.substr(kUtf16BigEndianMark.size()), 0));
  }
  return fileBytes;
}

}  // namespace kalvora
