#include "alarms/TimeTable.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "alarms/TimeTableScanner.h"
#include "base/Text.h"

namespace kalvora {

namespace {

constexpr std::array kKinds = {NoteKind::Fast, NoteKind::Daily, NoteKind::Weekly, NoteKind::Once};

void appendEntry(std::wstring& table, std::wstring_view clockTime, std::wstring_view fileName) {
  table += clockTime;
  table += L'-';
  table += fileName;
  table += L'|';
}

/// Builds the entries of a table, of notes that are remembered and others.
class EntriesBuilder {
 public:
  EntriesBuilder(AlarmNoteReader& notes, const TableDay& day,
                 const RememberedNotes<RingTime>& known)
      : day_(day), times_(notes.listing()) {
    const auto read = [](NoteKind kind, AlarmNoteReader& fields) {
      return readRingTime(kind, fields);
    };
    const auto append = [this](const ListedFile& note, const RingTime& time) { ring(note, time); };
    for (const NoteKind kind : kKinds) forEachTime(kind, notes, known, times_, read, append);
  }

  std::wstring takeTable() { return std::move(table_); }
  /// What is known now of the notes.
  RememberedNotes<RingTime> takeTimes() { return std::move(times_); }

 private:
  void ring(const ListedFile& note, const RingTime& time) {
    if (time.ringsOn(day_)) appendEntry(table_, time.clockTime, note.name);
  }

  const TableDay& day_;
  std::wstring table_;
  RememberedNotes<RingTime> times_;
};

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

/// Fast, daily, weekly, for one date; each kind in the order of names.
bool comesBefore(std::wstring_view a, std::wstring_view b) {
  const auto kindOf = [](auto name) { return kindOfFileName(name, kKinds); };
  const auto isFast = [&](auto name) { return kindOf(name) == NoteKind::Fast; };
  if (isFast(a) != isFast(b)) return isFast(a);
  if (kindOf(a) != kindOf(b)) return kindOf(a) < kindOf(b);
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
  for (const NoteKind kind : kKinds) {
    notes.forEach(kind, [&](const ListedFile& note) { names.insert(note.name); });
  }
  for (const std::wstring& name : notes.unread()) names.erase(name);
  return names;
}

}  // namespace

bool TimeTable::turnTo(const TableDay& day) {
  if (isFor(day)) return false;
  if (day.weekday != day_.weekday) drop(NoteKind::Weekly);
  if (day.date != day_.date) drop(NoteKind::Once);
  day_ = day;
  return true;
}

void TimeTable::drop(NoteKind kind) {
  if (Alarmy[0].empty()) return;
  const auto isOther = [&](const std::wstring& name) {
    return kindOfFileName(name, kKinds) != kind;
  };
  Alarmy[0] = entriesWhere(Alarmy[0], isOther);
}

void TimeTable::rebuild(AlarmNoteReader& notes) {
  EntriesBuilder builder(notes, day_, times_);
  times_ = builder.takeTimes();
  std::wstring fresh = builder.takeTable();
  if (!notes.unread().empty()) {
    const std::set<std::wstring> unread = asSet(notes.unread());
    const auto isUnread = [&](const std::wstring& name) { return unread.contains(name); };
    fresh = merged(fresh, entriesWhere(Alarmy[0], isUnread));
  }
  Alarmy[0] = std::move(fresh);
}

void TimeTable::update(AlarmNoteReader& notes) {
  const std::wstring fresh = EntriesBuilder(notes, day_, times_).takeTable();
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
