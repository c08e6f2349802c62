#include "base/Utf8.h"

#include <cstdint>
#include <type_traits>

namespace kalvora {

namespace {

constexpr wchar_t kReplacement = 0xFFFD;
constexpr std::uint32_t kFirstHigh = 0xD800;
constexpr std::uint32_t kFirstLow = 0xDC00;
constexpr std::uint32_t kBeyondLow = 0xE000;
constexpr std::uint32_t kFirstBeyond16Bits = 0x10000;

std::uint32_t at(std::string_view bytes, std::size_t index) {
  return static_cast<unsigned char>(bytes[index]);
}

void append(std::string& bytes, std::uint32_t byte) {
  bytes += static_cast<char>(static_cast<unsigned char>(byte));
}

/// The bytes behind the first one, six bits each.
void appendRest(std::string& bytes, std::uint32_t code, unsigned count) {
  while (count > 0) append(bytes, 0x80U | ((code >> (6U * --count)) & 0x3FU));
}

void appendCharacter(std::string& bytes, std::uint32_t code) {
  if (code < 0x80) return append(bytes, code);
  const unsigned rest = code < 0x800 ? 1 : code < kFirstBeyond16Bits ? 2 : 3;
  append(bytes, ((0xF00U >> (rest + 1)) & 0xF0U) | (code >> (6U * rest)));
  appendRest(bytes, code, rest);
}

bool isPair(std::uint32_t high, std::uint32_t low) {
  return high >= kFirstHigh && high < kFirstLow && low >= kFirstLow && low < kBeyondLow;
}

void appendUnits(std::wstring& text, std::uint32_t code) {
  if (code < kFirstBeyond16Bits) {
    text += static_cast<wchar_t>(code);
    return;
  }
  const std::uint32_t beyond = code - kFirstBeyond16Bits;
  text += static_cast<wchar_t>(kFirstHigh + (beyond >> 10U));
  text += static_cast<wchar_t>(kFirstLow + (beyond & 0x3FFU));
}

/// The bytes that follow a first byte in its character; nothing where it is no first byte.
std::size_t followersOf(std::uint32_t first) {
  if (first >= 0xC2 && first <= 0xDF) return 1;
  if (first >= 0xE0 && first <= 0xEF) return 2;
  if (first >= 0xF0 && first <= 0xF4) return 3;
  return 0;
}

/// Where wide characters have a sign, none of them means it.
std::uint32_t codeOf(wchar_t character) {
  return static_cast<std::make_unsigned_t<wchar_t>>(character);
}

}  // namespace

std::string toUtf8(std::wstring_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t code = codeOf(text[i]);
    const std::uint32_t next = i + 1 < text.size() ? codeOf(text[i + 1]) : 0U;
    if (isPair(code, next)) {
      code = kFirstBeyond16Bits + ((code - kFirstHigh) << 10U) + (next - kFirstLow);
      ++i;
    }
    appendCharacter(bytes, code);
  }
  return bytes;
}

std::wstring fromUtf8(std::string_view bytes) {
  std::wstring text;
  for (std::size_t i = 0; i < bytes.size();) {
    const std::uint32_t first = at(bytes, i++);
    const std::size_t followers = followersOf(first);
    if (followers == 0) {
      text += first < 0x80 ? static_cast<wchar_t>(first) : kReplacement;
      continue;
    }
    std::uint32_t code = first & (0x3FU >> followers);
    std::size_t read = 0;
    for (; read < followers && i < bytes.size() && (at(bytes, i) & 0xC0U) == 0x80; ++read) {
      code = (code << 6U) | (at(bytes, i++) & 0x3FU);
    }
    appendUnits(text, read == followers ? code : static_cast<std::uint32_t>(kReplacement));
  }
  return text;
}

}  // namespace kalvora
