#include "notes/NoteDate.h"

#include <gtest/gtest.h>

#include "notes/NewNote.h"

namespace kalvora {
namespace {

using namespace std::chrono;

TEST(NoteDate, isThatOfTheCalendarWithItsMonthFromOne) {
  EXPECT_EQ(noteDate(L"2026", L"11", L"22"), 2026y / November / 22);
  EXPECT_EQ(noteDate(L"2026", L"01", L"09"), 2026y / January / 9);
  EXPECT_EQ(noteDate(L"2028", L"2", L"29"), 2028y / February / 29);
  EXPECT_EQ(noteDate(L"1753", L"1", L"1"), 1753y / January / 1);
  EXPECT_EQ(noteDate(L"9999", L"12", L"31"), 9999y / December / 31);
}

TEST(NoteDate, isNoneWhereThereIsNoSuchDay) {
  EXPECT_EQ(noteDate(L"2026", L"2", L"31"), std::nullopt);
  EXPECT_EQ(noteDate(L"2027", L"2", L"29"), std::nullopt);
  EXPECT_EQ(noteDate(L"2026", L"0", L"1"), std::nullopt);
  EXPECT_EQ(noteDate(L"2026", L"13", L"1"), std::nullopt);
  EXPECT_EQ(noteDate(L"2026", L"1", L"0"), std::nullopt);
  EXPECT_EQ(noteDate(L"2026", L"257", L"1"), std::nullopt) << "which 8 bits would take for 1";
  EXPECT_EQ(noteDate(L"2026", L"1", L"257"), std::nullopt);
  EXPECT_EQ(noteDate(L"1752", L"12", L"31"), std::nullopt);
  EXPECT_EQ(noteDate(L"10000", L"1", L"1"), std::nullopt);
}

TEST(NoteDate, isNoneOfOtherTextsThanDigits) {
  for (const wchar_t* day : {L"", L" 1", L"1 ", L"+1", L"-1", L"1.0", L"1e0", L"x", L"0x1",
                             L"99999999999999999999", L"0000001", L"\u0661"}) {
    EXPECT_EQ(noteDate(L"2026", L"1", day), std::nullopt);
  }
  EXPECT_EQ(noteDate(L"2026", L"1", std::wstring(1, L'\0')), std::nullopt);
}

/// The first five fields of a new note for one date.
OnceFields newOnceAt(const LocalTime& now) {
  return std::get<OnceFields>(newNoteFields(NoteKind::Once, now));
}

TEST(NewNote, forOneDateBeginsWithTheNextFullHour) {
  const LocalTime morning{.year = 2026, .month = 3, .day = 2, .hour = 7, .minute = 5};
  EXPECT_EQ(newOnceAt(morning), (OnceFields{L"2026", L"3", L"2", L"8", L"0", L""}));
  const LocalTime full{.year = 2026, .month = 3, .day = 2, .hour = 7, .minute = 0};
  EXPECT_EQ(newOnceAt(full), (OnceFields{L"2026", L"3", L"2", L"8", L"0", L""}));
}

TEST(NewNote, forOneDateIsTomorrowsBeforeMidnight) {
  const LocalTime late{.year = 2026, .month = 12, .day = 31, .hour = 23, .minute = 0};
  EXPECT_EQ(newOnceAt(late), (OnceFields{L"2027", L"1", L"1", L"0", L"0", L""}));
  const LocalTime february{.year = 2028, .month = 2, .day = 28, .hour = 23, .minute = 59};
  EXPECT_EQ(newOnceAt(february), (OnceFields{L"2028", L"2", L"29", L"0", L"0", L""}));
}

TEST(NewNote, ofEveryOtherKindIsEmptyButForJanuary) {
  for (const NoteKind kind : knownKinds({})) {
    NoteFields expected = emptyFields(kind);
    if (kind == NoteKind::Yearly) std::get<YearlyFields>(expected).month = L"0";
    EXPECT_EQ(newNoteFields(kind, {}), expected);
  }
}

}  // namespace
}  // namespace kalvora
