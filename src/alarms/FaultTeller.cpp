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

/// Forgets the notes that do not have that fault any more.
void keepFaulty(std::set<std::wstring>& names, const std::vector<FaultyNote>& faults,
                NoteFault fault) {
  std::set<std::wstring> faulty;
  for (const FaultyNote& note : faults) {
    if (note.fault == fault) faulty.insert(note.fileName);
  }
  std::erase_if(names, [&](const auto& name) { return !faulty.contains(name); });
}

}  // namespace

void FaultTeller::hear(const std::vector<FaultyNote>& faults, TellTooLarge told) {
  keepFaulty(unreadable_, faults, NoteFault::Unreadable);
  keepFaulty(tooLarge_, faults, NoteFault::TooLarge);
  hearMore(faults, told);
}

void FaultTeller::hearMore(const std::vector<FaultyNote>& faults, TellTooLarge told) {
  std::vector<std::wstring> news;
  for (const FaultyNote& note : faults) {
    if (note.fault == NoteFault::TooLarge) {
      const bool isNew = tooLarge_.insert(note.fileName).second;
      if (isNew || told == TellTooLarge::EachTime) messages_.emplace_back(kTooLarge);
    } else if (unreadable_.insert(note.fileName).second) {
      news.push_back(note.fileName);
    }
  }
  if (!news.empty()) messages_.push_back(messageOf(news));
}

}  // namespace kalvora
