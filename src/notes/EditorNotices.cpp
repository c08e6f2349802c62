#include "notes/EditorNotices.h"

namespace kalvora {

namespace {

/// As much of a name as leaves room for the rest of a line.
constexpr std::size_t kLongestNamed = 24;

std::wstring wasDeleted(std::wstring_view name) {
  std::wstring notice = L"\x201C" + std::wstring(name.substr(0, kLongestNamed));
  if (name.size() > kLongestNamed) notice += L"\x2026";
  return notice + L"\x201D was deleted. ";
}

}  // namespace

std::wstring deletedNotice(std::wstring_view name) {
  return wasDeleted(name) + L"Restore\x2026 brings it back.";
}

std::wstring typedOverDeletedNotice(std::wstring_view name) {
  return wasDeleted(name) + L"Restore\x2026 has what you typed.";
}

}  // namespace kalvora
