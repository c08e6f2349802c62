#include "alarms/DueNote.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#include "alarms/DueRule.h"
#include "alarms/Occurrences.h"
#include "base/Errors.h"

namespace kalvora {

namespace {

constexpr wchar_t kPartEnd = L'|';
// How a moment is written; "0" stands for any digit.
constexpr std::wstring_view kMomentForm = L"0000-00-00 00:00";

std::optional<DueRule> ruleOf(NoteKind kind, AlarmNoteReader& notes) {
  try {
    return readDueRule(kind, notes);
  } catch (const Failure&) {
    // The user is told by whoever builds the time table.
    return std::nullopt;
  }
}

std::wstring padded(int number, std::size_t digits) {
  std::wstring text = std::to_wstring(number);
  return text.size() < digits ? std::wstring(digits - text.size(), L'0') + text : text;
}

bool hasMomentForm(std::wstring_view text) {
  return std::ranges::equal(text, kMomentForm, [](wchar_t c, wchar_t form) {
    return form == L'0' ? c >= L'0' && c <= L'9' : c == form;
  });
}

/// The next part of a text, up to a separator, and takes both off. Nothing at its end.
std::optional<std::wstring_view> takePart(std::wstring_view& text) {
  const std::size_t end = text.find(kPartEnd);
  if (end == std::wstring_view::npos) return std::nullopt;
  const std::wstring_view part = text.substr(0, end);
  text.remove_prefix(end + 1);
  return part;
}

}  // namespace

bool isDueAllDay(std::wstring_view fileName) {
  const std::optional<NoteKind> kind = kindOfFileName(fileName, kNoteKinds);
  return kind && !hasClockTime(*kind);
}

std::vector<DueNote> dueBetween(AlarmNoteReader& notes, LocalMinute after, LocalMinute until) {
  const std::chrono::minutes step(1);
  std::vector<DueNote> due;
  for (const NoteKind kind : kNoteKinds) {
    notes.forEach(kind, [&](const ListedFile& note) {
      if (!notes.Inicjuj_czytanie(note.name)) return;
      if (const std::optional<DueRule> rule = ruleOf(kind, notes)) {
        for (const LocalMinute moment : occurrences(*rule, after + step, until + step)) {
          due.push_back({moment, std::wstring(note.name)});
        }
      }
      notes.Zakoncz_czytanie();
    });
  }
  std::ranges::sort(due, std::less<>());
  return due;
}

std::vector<DueNote> latestOfEach(std::vector<DueNote> due) {
  std::map<std::wstring, LocalMinute> latest;
  for (DueNote& note : due) {
    const auto [entry, isNew] = latest.try_emplace(std::move(note.fileName), note.moment);
    if (!isNew) entry->second = std::max(entry->second, note.moment);
  }
  due.clear();
  for (const auto& [name, moment] : latest) due.push_back({moment, name});
  std::ranges::sort(due, std::less<>());
  return due;
}

std::wstring momentToText(LocalMinute moment) {
  const LocalTime time = timeOf(moment);
  return padded(time.year, 4) + L"-" + padded(time.month, 2) + L"-" + padded(time.day, 2) + L" " +
         padded(time.hour, 2) + L":" + padded(time.minute, 2);
}

std::optional<LocalMinute> textToMoment(std::wstring_view text) {
  if (!hasMomentForm(text)) return std::nullopt;
  const auto number = [text](std::size_t at, std::size_t digits) {
    int value = 0;
    for (const wchar_t digit : text.substr(at, digits)) value = 10 * value + (digit - L'0');
    return value;
  };
  LocalTime time;
  time.year = number(0, 4);
  time.month = number(5, 2);
  time.day = number(8, 2);
  time.hour = number(11, 2);
  time.minute = number(14, 2);
  using namespace std::chrono;
  const bool exists =
      (year(time.year) / time.month / time.day).ok() && time.hour < 24 && time.minute < 60;
  return exists ? std::optional(minuteOf(time)) : std::nullopt;
}

std::wstring dueNotesToText(const std::vector<DueNote>& notes) {
  std::wstring text;
  for (const DueNote& note : notes) {
    text += momentToText(note.moment) + kPartEnd + note.fileName + kPartEnd;
  }
  return text;
}

std::vector<DueNote> textToDueNotes(std::wstring_view text, std::optional<LocalMinute> unknown) {
  std::vector<DueNote> notes;
  for (;;) {
    const std::optional<std::wstring_view> first = takePart(text);
    const std::optional<std::wstring_view> name = takePart(text);
    if (!first || !name) return notes;
    std::optional<LocalMinute> moment = textToMoment(*first);
    if (!moment) moment = unknown;
    if (moment && !name->empty()) notes.push_back({*moment, std::wstring(*name)});
  }
}

}  // namespace kalvora
