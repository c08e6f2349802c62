#include "base/Text.h"

#include <algorithm>
#include <array>

namespace kalvora {

namespace {

/// Small letters `first`, `first` + `step` and so on to `last`, whose capital is `toUpper` further.
struct LetterRun {
  int first;
  int last;
  int step;
  int toUpper;
};

// The letters of the Latin, Greek, Cyrillic and Armenian scripts whose capital is one character,
// as Windows pairs them for file names. A table of our own, because the C library's answer hangs
// on its locale and differs between systems. In order; ASCII is left to ordinalUpper().
constexpr std::array kLetterRuns = std::to_array<LetterRun>({
    {0x00E0, 0x00F6, 1, -32},   {0x00F8, 0x00FE, 1, -32}, {0x00FF, 0x00FF, 1, 121},
    {0x0101, 0x012F, 2, -1},    {0x0133, 0x0137, 2, -1},  {0x013A, 0x0148, 2, -1},
    {0x014B, 0x0177, 2, -1},    {0x017A, 0x017E, 2, -1},  {0x0180, 0x0180, 1, 195},
    {0x0183, 0x0185, 2, -1},    {0x0188, 0x0188, 1, -1},  {0x018C, 0x018C, 1, -1},
    {0x0192, 0x0192, 1, -1},    {0x0195, 0x0195, 1, 97},  {0x0199, 0x0199, 1, -1},
    {0x019A, 0x019A, 1, 163},   {0x019E, 0x019E, 1, 130}, {0x01A1, 0x01A5, 2, -1},
    {0x01A8, 0x01A8, 1, -1},    {0x01AD, 0x01AD, 1, -1},  {0x01B0, 0x01B0, 1, -1},
    {0x01B4, 0x01B6, 2, -1},    {0x01B9, 0x01B9, 1, -1},  {0x01BD, 0x01BD, 1, -1},
    {0x01BF, 0x01BF, 1, 56},    {0x01C6, 0x01C6, 1, -2},  {0x01C9, 0x01C9, 1, -2},
    {0x01CC, 0x01CC, 1, -2},    {0x01CE, 0x01DC, 2, -1},  {0x01DD, 0x01DD, 1, -79},
    {0x01DF, 0x01EF, 2, -1},    {0x01F3, 0x01F3, 1, -2},  {0x01F5, 0x01F5, 1, -1},
    {0x01F9, 0x021F, 2, -1},    {0x0223, 0x0233, 2, -1},  {0x023C, 0x023C, 1, -1},
    {0x023F, 0x0240, 1, 10815}, {0x0242, 0x0242, 1, -1},  {0x0247, 0x024F, 2, -1},
    {0x0371, 0x0373, 2, -1},    {0x0377, 0x0377, 1, -1},  {0x037B, 0x037D, 1, 130},
    {0x03AC, 0x03AC, 1, -38},   {0x03AD, 0x03AF, 1, -37}, {0x03B1, 0x03C1, 1, -32},
    {0x03C3, 0x03CB, 1, -32},   {0x03CC, 0x03CC, 1, -64}, {0x03CD, 0x03CE, 1, -63},
    {0x03D7, 0x03D7, 1, -8},    {0x03D9, 0x03EF, 2, -1},  {0x03F2, 0x03F2, 1, 7},
    {0x03F3, 0x03F3, 1, -116},  {0x03F8, 0x03F8, 1, -1},  {0x03FB, 0x03FB, 1, -1},
    {0x0430, 0x044F, 1, -32},   {0x0450, 0x045F, 1, -80}, {0x0461, 0x0481, 2, -1},
    {0x048B, 0x04BF, 2, -1},    {0x04C2, 0x04CE, 2, -1},  {0x04CF, 0x04CF, 1, -15},
    {0x04D1, 0x052F, 2, -1},    {0x0561, 0x0586, 1, -48}, {0x1E01, 0x1E95, 2, -1},
    {0x1EA1, 0x1EFF, 2, -1},    {0xFF41, 0xFF5A, 1, -32},
});

constexpr std::wstring_view kBlanks = L" \t\r\n\v\f";

}  // namespace

wchar_t ordinalUpper(wchar_t c) {
  if (c >= L'a' && c <= L'z') return static_cast<wchar_t>(c - 0x20);
  if (c < 0x80) return c;
  // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wide character, which is never negative here
  const int code = static_cast<int>(c);
  const auto* const run = std::ranges::lower_bound(kLetterRuns, code, {}, &LetterRun::last);
  const bool small =
      run != kLetterRuns.end() && code >= run->first && (code - run->first) % run->step == 0;
  return small ? static_cast<wchar_t>(code + run->toUpper) : c;
}

bool equalIgnoringCase(std::wstring_view a, std::wstring_view b) {
  return std::ranges::equal(a, b, {}, ordinalUpper, ordinalUpper);
}

bool nameComesBefore(std::wstring_view a, std::wstring_view b) {
  const auto [inA, inB] = std::ranges::mismatch(a, b, [](wchar_t left, wchar_t right) {
    return left == right || ordinalUpper(left) == ordinalUpper(right);
  });
  if (inA == a.end() && inB == b.end()) return a < b;
  if (inA == a.end() || inB == b.end()) return inA == a.end();
  return ordinalUpper(*inA) < ordinalUpper(*inB);
}

std::wstring_view trimmed(std::wstring_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace kalvora
