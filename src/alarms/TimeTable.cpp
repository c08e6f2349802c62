#include "alarms/TimeTable.h"

#include <utility>

#include "alarms/TimeTableScanner.h"
#include "base/Errors.h"

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

}  // namespace

void TimeTable::rebuild(AlarmNoteReader& notes, int weekday) {
  std::wstring table;
  appendDailyNotes(notes, NoteKind::Fast, table);
  appendDailyNotes(notes, NoteKind::Daily, table);
  appendWeeklyNotes(notes, weekday, table);
  Alarmy[0] = std::move(table);
}

void TimeTable::queueDue(int hour, int minute, AlarmQueue& queue) const {
  constexpr std::int16_t kNoNumber = TimeTableScanner::kNoNumber;
  const std::wstring& table = Alarmy[0];
  TimeTableScanner scanner;
  do {
    const std::int16_t a = scanner.Czytaj_zmienna_na_kolejke(table);
    const std::int16_t b = scanner.Czytaj_zmienna_na_kolejke(table);
    const std::wstring_view name = scanner.Czytaj_zmienna_na_kolejke_plik(table);
    const bool whole = a != kNoNumber && b != kNoNumber && name != TimeTableScanner::kNoName;
    if (whole && a == hour && b == minute) queue.append(name);
  } while (!scanner.atEnd());
}

}  // namespace kalvora
