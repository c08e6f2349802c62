#include "alarms/TimeTable.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "alarms/TimeTableScanner.h"
#include "base/Errors.h"
#include "base/Text.h"

namespace kalvora {

namespace {

constexpr int kDaysOfWeek = 7;

struct ClockTime {
  std::wstring hour;
  std::wstring minute;
};

ClockTime readClockTime(AlarmNoteReader& notes) {
  std::wstring hour = notes.Czytaj_zmienna();
  return {std::move(hour), notes.Czytaj_zmienna()};
}

/// Reads all weekdays, also after today's: a note is either sound or tells its fault every day.
/// A weekday that is missing is not ticked. Throws ConversionError and OverflowError.
bool readTickedFor(AlarmNoteReader& notes, int weekday) {
  bool ticked = false;
  for (int day = 0; day < kDaysOfWeek; ++day) {
    const bool flag = fieldNumber(notes.Czytaj_zmienna_weak()) == 1;
    if (day == weekday) ticked = flag;
  }
  return ticked;
}

void appendEntry(std::wstring& table, const ClockTime& time, const std::wstring& fileName) {
  table += time.hour;
  table += L':';
  table += time.minute;
  table += L'-';
  table += fileName;
  table += L'|';
}

void appendDailyNotes(AlarmNoteReader& notes, NoteKind kind, std::wstring& table) {
  for (const std::wstring& fileName : notes.list(kind)) {
    if (!notes.Inicjuj_czytanie(fileName)) continue;
    appendEntry(table, readClockTime(notes), fileName);
    notes.Zakoncz_czytanie();
  }
}

void appendWeeklyNotes(AlarmNoteReader& notes, int weekday, std::wstring& table) {
  for (const std::wstring& fileName : notes.list(NoteKind::Weekly)) {
    if (!notes.Inicjuj_czytanie(fileName)) continue;
    try {
      const ClockTime time = readClockTime(notes);
      if (readTickedFor(notes, weekday)) appendEntry(table, time, fileName);
    } catch (const Failure&) {
      notes.addUnreadable(fileName);
    }
    notes.Zakoncz_czytanie();
  }
}

std::wstring freshEntries(AlarmNoteReader& notes, int weekday) {
  std::wstring table;
  appendDailyNotes(notes, NoteKind::Fast, table);
  appendDailyNotes(notes, NoteKind::Daily, table);
  appendWeeklyNotes(notes, weekday, table);
  return table;
}

/// An entry as it rings: a part of a table.
struct Entry {
  std::int16_t hour;
  std::int16_t minute;
  std::wstring_view name;
  std::wstring_view text;
};

template <typename Visitor>
void forEachEntry(std::wstring_view table, const Visitor& visit) {
  TimeTableScanner scanner;
  do {
    const std::size_t start = std::min(scanner.position(), table.size());
    const std::int16_t hour = scanner.Czytaj_zmienna_na_kolejke(table);
    const std::int16_t minute = scanner.Czytaj_zmienna_na_kolejke(table);
    const std::wstring_view name = scanner.Czytaj_zmienna_na_kolejke_plik(table);
    visit(Entry{hour, minute, name, table.substr(start, scanner.position() - start)});
  } while (!scanner.atEnd());
}

template <typename Test>
std::wstring entriesWhere(std::wstring_view table, const Test& kept) {
  std::wstring entries;
  forEachEntry(table, [&](const Entry& entry) {
    if (kept(std::wstring(entry.name))) entries += entry.text;
  });
  return entries;
}

/// Fast, daily, weekly; each kind in the order of names.
bool comesBefore(std::wstring_view a, std::wstring_view b) {
  const auto isFast = [](auto name) { return kindOfFileName(name) == NoteKind::Fast; };
  if (isFast(a) != isFast(b)) return isFast(a);
  if (kindOfFileName(a) != kindOfFileName(b)) return kindOfFileName(a) < kindOfFileName(b);
  return nameComesBefore(a, b);
}

/// Two tables of different notes as one, in the order of a table.
std::wstring merged(const std::wstring& table, const std::wstring& other) {
  std::vector<Entry> others;
  if (!other.empty()) forEachEntry(other, [&](const Entry& entry) { others.push_back(entry); });
  auto next = others.begin();
  std::wstring result;
  forEachEntry(table, [&](const Entry& entry) {
    for (; next != others.end() && comesBefore(next->name, entry.name); ++next)
      result += next->text;
    result += entry.text;
  });
  for (; next != others.end(); ++next) result += next->text;
  return result;
}

std::set<std::wstring> asSet(const std::vector<std::wstring>& names) {
  return {names.begin(), names.end()};
}

/// The notes that `notes` lists and could read.
std::set<std::wstring> readNames(const AlarmNoteReader& notes) {
  std::set<std::wstring> names;
  for (const NoteKind kind : {NoteKind::Fast, NoteKind::Daily, NoteKind::Weekly}) {
    names.insert(notes.list(kind).begin(), notes.list(kind).end());
  }
  for (const std::wstring& name : notes.unread()) names.erase(name);
  return names;
}

}  // namespace

void TimeTable::dropWeekly() {
  if (Alarmy[0].empty()) return;
  const auto isOfAnyDay = [](const std::wstring& name) {
    return kindOfFileName(name) != NoteKind::Weekly;
  };
  Alarmy[0] = entriesWhere(Alarmy[0], isOfAnyDay);
}

void TimeTable::rebuild(AlarmNoteReader& notes, int weekday) {
  std::wstring fresh = freshEntries(notes, weekday);
  if (!notes.unread().empty()) {
    const std::set<std::wstring> unread = asSet(notes.unread());
    const auto isUnread = [&](const std::wstring& name) { return unread.contains(name); };
    fresh = merged(fresh, entriesWhere(Alarmy[0], isUnread));
  }
  Alarmy[0] = std::move(fresh);
}

void TimeTable::update(AlarmNoteReader& notes, int weekday) {
  const std::wstring fresh = freshEntries(notes, weekday);
  const std::set<std::wstring> read = readNames(notes);
  if (read.empty()) return;
  const auto isOther = [&](const std::wstring& name) { return !read.contains(name); };
  Alarmy[0] = merged(entriesWhere(Alarmy[0], isOther), fresh);
}

std::set<std::wstring> TimeTable::listed(const std::vector<std::wstring>& names) const {
  if (names.empty()) return {};
  const std::set<std::wstring> wanted = asSet(names);
  std::set<std::wstring> found;
  forEachEntry(Alarmy[0], [&](const Entry& entry) {
    const auto name = wanted.find(std::wstring(entry.name));
    if (name != wanted.end()) found.insert(*name);
  });
  return found;
}

void TimeTable::queueDue(int hour, int minute, AlarmQueue& queue) const {
  constexpr std::int16_t kNoNumber = TimeTableScanner::kNoNumber;
  forEachEntry(Alarmy[0], [&](const Entry& entry) {
    const bool whole = entry.hour != kNoNumber && entry.minute != kNoNumber &&
                       entry.name != TimeTableScanner::kNoName;
    if (whole && entry.hour == hour && entry.minute == minute) queue.append(entry.name);
  });
}

}  // namespace kalvora
