#include "alarms/FaultTeller.h"

#include <algorithm>
#include <utility>

namespace kalvora {

namespace {

constexpr std::wstring_view kErrorTitle = L"Error!";
constexpr std::wstring_view kTooLarge = L"The file is too large to open!";
constexpr std::wstring_view kUnreadable = L"These notes do not ring, because they cannot be read:";
// A message box as long as the screen is high could not be closed.
constexpr std::size_t kMostNames = 20;

std::wstring messageOf(const std::vector<std::wstring>& names) {
  std::wstring text(kUnreadable);
  const std::size_t count = std::min(names.size(), kMostNames);
  for (std::size_t i = 0; i < count; ++i) text += L"\r\n" + names[i];
  if (names.size() > count)
    text += L"\r\n... and " + std::to_wstring(names.size() - count) + L" more";
  return text;
}

}  // namespace

void FaultTeller::tell(const std::vector<FaultyNote>& faults, AlarmHost& host) {
  std::set<std::wstring> unreadable;
  std::vector<std::wstring> news;
  for (const FaultyNote& note : faults) {
    if (note.fault != NoteFault::Unreadable) continue;
    unreadable.insert(note.fileName);
    if (!unreadable_.contains(note.fileName)) news.push_back(note.fileName);
  }
  unreadable_ = std::move(unreadable);
  for (const FaultyNote& note : faults) {
    if (note.fault == NoteFault::TooLarge) host.showError(kTooLarge, kErrorTitle);
  }
  if (!news.empty()) host.showError(messageOf(news), kErrorTitle);
}

}  // namespace kalvora
