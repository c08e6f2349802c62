#include "alarms/FaultTeller.h"

#include <algorithm>

namespace kalvora {

namespace {

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

void FaultTeller::hear(const std::vector<FaultyNote>& faults) {
  std::set<std::wstring> unreadable;
  for (const FaultyNote& note : faults) {
    if (note.fault == NoteFault::Unreadable) unreadable.insert(note.fileName);
  }
  std::erase_if(unreadable_, [&](const auto& name) { return !unreadable.contains(name); });
  hearMore(faults);
}

void FaultTeller::hearMore(const std::vector<FaultyNote>& faults) {
  std::vector<std::wstring> news;
  for (const FaultyNote& note : faults) {
    if (note.fault == NoteFault::TooLarge) {
      messages_.emplace_back(kTooLarge);
    } else if (unreadable_.insert(note.fileName).second) {
      news.push_back(note.fileName);
    }
  }
  if (!news.empty()) messages_.push_back(messageOf(news));
}

}  // namespace kalvora
