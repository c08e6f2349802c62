#pragma once

#include <array>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/CodePage.h"
#include "notes/NoteKind.h"

namespace kalvora {

// The texts of a note file as they are stored; a field that the file no longer has is one NUL
// character. Members stand in the order of the file.

/// Daily and Fast notes.
struct ClockFields {
  std::wstring hour;  // 24-hour form, or empty for no time
  std::wstring minute;
  std::wstring content;
  friend bool operator==(const ClockFields&, const ClockFields&) = default;
};

struct WeeklyFields {
  std::wstring hour;
  std::wstring minute;
  std::array<std::wstring, 7> weekdays;  // "0" or "1", Sunday first; see weekdayFlag()
  std::wstring content;
  friend bool operator==(const WeeklyFields&, const WeeklyFields&) = default;
};

struct MonthlyFields {
  std::wstring day;
  std::wstring daysBefore;
  std::wstring everyDays;
  std::wstring content;
  friend bool operator==(const MonthlyFields&, const MonthlyFields&) = default;
};

struct YearlyFields {
  std::wstring day;
  std::wstring month;  // "0" is January
  std::wstring daysBefore;
  std::wstring everyDays;
  std::wstring content;
  friend bool operator==(const YearlyFields&, const YearlyFields&) = default;
};

struct OnceFields {
  std::wstring year;
  std::wstring month;  // "1" is January
  std::wstring day;
  std::wstring hour;
  std::wstring minute;
  std::wstring content;
  friend bool operator==(const OnceFields&, const OnceFields&) = default;
};

using NoteFields = std::variant<ClockFields, WeeklyFields, MonthlyFields, YearlyFields, OnceFields>;

/// Empty fields of a kind.
NoteFields emptyFields(NoteKind kind);

/// The fields in the order in which a file holds them, the content last: the one place that knows
/// the layouts, for reading and for writing.
std::vector<std::wstring*> inFileOrder(NoteFields& fields);

/// All fields of a note file. Reads any bytes; never throws.
NoteFields readFields(NoteKind kind, std::string_view bytes, const CodePage& codePage);

/// A field as a control can show it: no control holds a NUL character.
std::wstring withoutNuls(std::wstring_view stored);

/// A weekday field as a tick box takes it: a text that is not exactly one character long counts
/// as "0".
std::wstring weekdayFlag(std::wstring_view stored);

/// The state of the tick box: the number that the flag is, 0 where it is no digit (so a weekday
/// that the file no longer has is not ticked).
int weekdayState(std::wstring_view stored);

}  // namespace kalvora
