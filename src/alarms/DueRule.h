#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

#include "alarms/DayNote.h"
#include "alarms/RingTime.h"
#include "base/CodePage.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// When a note is due: on each day whose weekday, day of the month and month are ticked, all three;
/// where it is for one date, on that one alone.
struct DueRule {
  static constexpr std::uint8_t kEveryWeekday = RingTime::kEveryDay;
  static constexpr std::uint32_t kEveryDay = 0xFFFF'FFFE;
  static constexpr std::uint16_t kEveryMonth = 0x1FFE;

  /// After the day's beginning; nothing for a note that is due on a day as a whole.
  std::optional<std::chrono::minutes> time = std::nullopt;
  std::uint8_t weekdays = kEveryWeekday;  // a bit for each, Sunday the lowest
  std::uint32_t days = kEveryDay;         // bits 1 to 31
  std::uint16_t months = kEveryMonth;     // bits 1 to 12
  std::optional<std::chrono::year_month_day> onlyOn = std::nullopt;

  bool dueOn(std::chrono::local_days day) const;
  friend bool operator==(const DueRule&, const DueRule&) = default;
};

/// When a note rings, as its fields say.
using NoteTime = std::variant<RingTime, DayNote>;

/// The rules of notes as the time table and the queue understand their fields. Nothing for a note
/// that is never due.
std::optional<DueRule> dueRuleOf(const RingTime& time);
std::optional<DueRule> dueRuleOf(const DayNote& note);
std::optional<DueRule> dueRuleOf(const NoteTime& time);
/// Reads it from the first fields of a note, be they an AlarmNoteReader's or a NoteFieldReader's.
/// Throws ConversionError and OverflowError where a number cannot be read.
template <typename Fields>
std::optional<DueRule> readDueRule(NoteKind kind, Fields& fields) {
  return hasClockTime(kind) ? dueRuleOf(readRingTime(kind, fields))
                            : dueRuleOf(readDayNote(kind, fields));
}
/// The rule of a note file's bytes. Nothing also for one that is too long to be opened, and for one
/// with a number that cannot be read where it is needed.
std::optional<DueRule> dueRuleOf(NoteKind kind, std::string_view bytes, const CodePage& codePage);

}  // namespace kalvora
