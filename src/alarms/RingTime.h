#pragma once

#include <cstdint>
#include <string>

#include "alarms/FieldNumber.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// When a fast, daily or weekly note rings, as a time table needs it.
struct RingTime {
  static constexpr std::uint8_t kEveryDay = 0x7F;

  std::wstring clockTime;             // hour ":" minute, as they stand in the note
  std::uint8_t weekdays = kEveryDay;  // a bit for each, Sunday the lowest

  bool ringsOn(int weekday) const { return ((weekdays >> weekday) & 1) != 0; }
};

/// Reads it from the first fields of a note, be they an AlarmNoteReader's or a NoteFieldReader's. A
/// weekday that is missing is not ticked. Throws ConversionError and OverflowError where a weekday
/// is no number.
template <typename Fields>
RingTime readRingTime(NoteKind kind, Fields& fields) {
  constexpr unsigned kDaysOfWeek = 7;
  const std::wstring hour = fields.Czytaj_zmienna();
  RingTime time{.clockTime = hour + L":" + fields.Czytaj_zmienna()};
  if (kind != NoteKind::Weekly) return time;
  time.weekdays = 0;
  // All of them, also those of which none is needed: a note is either sound or tells its fault
  // every day.
  for (unsigned day = 0; day < kDaysOfWeek; ++day) {
    if (fieldNumber(fields.Czytaj_zmienna_weak()) == 1) {
      time.weekdays = static_cast<std::uint8_t>(time.weekdays | 1U << day);
    }
  }
  return time;
}

}  // namespace kalvora
