#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

#include "alarms/FieldNumber.h"
#include "alarms/TableDay.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// When a note with a time of day rings, as a time table needs it.
struct RingTime {
  static constexpr std::uint8_t kEveryDay = 0x7F;

  std::wstring clockTime;             // hour ":" minute, as they stand in the note
  std::uint8_t weekdays = kEveryDay;  // a bit for each, Sunday the lowest
  /// The only date of a note that is for one.
  std::optional<std::chrono::year_month_day> date = std::nullopt;

  bool ringsOn(const TableDay& day) const {
    return ((weekdays >> day.weekday) & 1) != 0 && (!date || date == day.date);
  }

  auto members() const { return std::tie(clockTime, weekdays, date); }
  std::size_t longestText() const { return clockTime.size(); }
};

/// The first fields of a note for one date: year, month, day, hour and minute.
using OnceTexts = std::array<std::wstring, 5>;

/// One whose year, month or day is missing rings on no weekday. Throws ConversionError where there
/// is no such date, and where a number is written in other characters than digits.
RingTime ringTimeOnce(const OnceTexts& texts);

/// Reads it from the first fields of a note, be they an AlarmNoteReader's or a NoteFieldReader's. A
/// weekday that is missing is not ticked. Throws ConversionError and OverflowError where a weekday
/// is no number, and what ringTimeOnce() throws.
template <typename Fields>
RingTime readRingTime(NoteKind kind, Fields& fields) {
  constexpr unsigned kDaysOfWeek = 7;
  if (kind == NoteKind::Once) {
    OnceTexts texts;
    for (std::wstring& text : texts) text = fields.Czytaj_zmienna();
    return ringTimeOnce(texts);
  }
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
