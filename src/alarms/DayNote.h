#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

#include "alarms/FieldNumber.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// When a monthly or yearly note rings: on its day, and ahead of it.
struct DayNote {
  /// In place of a day that is missing. Not a day of any month; the days ahead still count down
  /// from it.
  static constexpr std::int16_t kNoDay = 99;
  static constexpr int kLongestMonth = 31;

  NoteKind kind;
  std::int16_t day = kNoDay;
  std::optional<std::int16_t> month;  // of a yearly note, from 0; one without never rings
  std::wstring daysBefore;            // as they stand in the note
  std::wstring everyDays;

  /// Whether it can ring in a month, from 1.
  bool ringsIn(int ofYear) const { return kind == NoteKind::Monthly || month == ofYear - 1; }
  /// How often it rings on a day of such a month, from 1: on its own day once, and ahead of it as
  /// often as advanceMatches() says. Throws ConversionError and OverflowError where a number of
  /// days is needed and cannot be read.
  int timesOn(int today) const;

  auto members() const { return std::tie(kind, day, month, daysBefore, everyDays); }
  std::size_t longestText() const { return std::max(daysBefore.size(), everyDays.size()); }
};

/// Reads it from the first fields of a note, be they an AlarmNoteReader's or a NoteFieldReader's.
/// Throws ConversionError and OverflowError where the day or the month is no number.
template <typename Fields>
DayNote readDayNote(NoteKind kind, Fields& fields) {
  DayNote note{.kind = kind,
               .day = fieldNumber(fields.Czytaj_zmienna()).value_or(DayNote::kNoDay),
               .month = std::nullopt,
               .daysBefore = {},
               .everyDays = {}};
  if (kind == NoteKind::Yearly) note.month = fieldNumber(fields.Czytaj_zmienna());
  note.daysBefore = fields.Czytaj_zmienna();
  note.everyDays = fields.Czytaj_zmienna();
  return note;
}

}  // namespace kalvora
