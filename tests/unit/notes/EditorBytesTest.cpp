// What each filled page leaves on the disk, byte for byte, and what it looks like when it is read
// back.

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

constexpr HourFormat k12 = HourFormat::Hours12;
constexpr HourFormat k24 = HourFormat::Hours24;
constexpr int kAm = 0;
constexpr int kPm = 1;

const std::wstring kAllowedName =
    L" ~`@#$%^&()-_=+[]{},.;'0123456789"
    L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

class EditorBytes : public EditorFixture {
 protected:
  /// Saves the page as a new note, the only one, and returns the bytes of its file.
  std::string saved(const FilledPage& page, const std::wstring& noteName = L"a") {
    files_.content.clear();
    editor_.cmdNew(page.kind);
    fill(page, noteName);
    editor_.cmdSave(page.kind);
    return files_.content.at(noteName + std::wstring(extensionOf(page.kind)));
  }

  /// The page after another note stood on it and this one was picked again.
  FilledPage readBack(NoteKind kind, const std::wstring& noteName = L"a") {
    editor_.cmdNew(kind);
    EXPECT_TRUE(pick(kind, noteName));
    return shown(kind);
  }
};

// Daily, Weekly and Fast: the time.

struct TimeRow {
  HourFormat format;
  std::wstring hour;
  std::wstring minute;
  int half;
  std::string bytes;  // of the hour, the minute and their separators
  std::wstring hourBack;
  int halfBack;
};

const std::vector<TimeRow> kTimes = {
    {k12, L"7", L"30", kAm, "7|30|", L"7", kAm},
    {k12, L"7", L"30", kPm, "19|30|", L"7", kPm},
    {k12, L"07", L"05", kAm, "7|05|", L"7", kAm},
    {k12, L"007", L"005", kPm, "19|005|", L"7", kPm},
    {k12, L"12", L"0", kAm, "12|0|", L"12", kAm},
    {k12, L"12", L"0", kPm, "24|0|", L"12", kPm},
    {k12, L"0", L"0", kAm, "0|0|", L"0", kAm},
    {k12, L"0", L"0", kPm, "12|0|", L"12", kAm},
    {k12, L"1", L"55", kPm, "13|55|", L"1", kPm},
    {k12, L"11", L"59", kPm, "23|59|", L"11", kPm},
    {k12, L"13", L"0", kAm, "13|0|", L"1", kPm},
    {k12, L"24", L"0", kAm, "24|0|", L"12", kPm},
    {k12, L"24", L"0", kPm, "36|0|", L"24", kPm},
    {k12, L"", L"30", kAm, "|30|", L"", kAm},
    {k12, L"", L"30", kPm, "|30|", L"", kPm},
    {k12, L"7", L"", kAm, "7||", L"7", kAm},
    {k12, L"7", L"", kPm, "19||", L"7", kPm},
    {k12, L"", L"", kPm, "||", L"", kPm},
    {k12, L"32767", L"99999999999", kAm, "32767|99999999999|", L"32755", kPm},
    {k24, L"0", L"0", kAm, "0|0|", L"0", kAm},
    {k24, L"7", L"30", kAm, "7|30|", L"7", kAm},
    {k24, L"7", L"30", kPm, "7|30|", L"7", kPm},
    {k24, L"07", L"5", kAm, "7|5|", L"7", kAm},
    {k24, L"12", L"15", kPm, "12|15|", L"12", kPm},
    {k24, L"19", L"30", kAm, "19|30|", L"19", kAm},
    {k24, L"24", L"0", kAm, "24|0|", L"24", kAm},
    {k24, L"99", L"99", kAm, "99|99|", L"99", kAm},
    {k24, L"", L"45", kAm, "|45|", L"", kAm},
    {k24, L"23", L"", kAm, "23||", L"23", kAm},
    {k24, L"", L"", kAm, "||", L"", kAm},
};

class EditorTimes : public EditorBytes {
 protected:
  void checkAfter(NoteKind kind, const std::string& dateBytes) {
    for (const TimeRow& row : kTimes) {
      open(row.format);
      const FilledPage page{kind, {row.hour, row.minute}, L"x", row.half};
      EXPECT_EQ(saved(page), dateBytes + row.bytes + "x");
      FilledPage back = page;
      back.numbers[0] = row.hourBack;
      // An empty hour leaves the half of the new note that stood there, of the next full hour.
      back.half = row.hour.empty() ? kAm : row.halfBack;
      EXPECT_TRUE(readBack(kind) == back) << row.bytes;
    }
  }
  void check(NoteKind kind, const std::string& weekdays, const std::string& weekdayBytes) {
    ASSERT_GE(kTimes.size(), 25U);
    for (const TimeRow& row : kTimes) {
      open(row.format);
      const FilledPage page{
          kind, {row.hour, row.minute}, L"Water\r\nthe plants", row.half, weekdays};
      EXPECT_EQ(saved(page), row.bytes + weekdayBytes + "Water\r\nthe plants");
      FilledPage back = page;
      back.numbers[0] = row.hourBack;
      back.half = row.halfBack;
      EXPECT_TRUE(readBack(kind) == back) << row.bytes;
    }
  }
};

TEST_F(EditorTimes, ofADailyNoteAreWrittenAndReadBack) {
  check(NoteKind::Daily, "", "");
}

TEST_F(EditorTimes, ofAFastNoteAreWrittenAndReadBack) {
  check(NoteKind::Fast, "", "");
}

TEST_F(EditorTimes, ofAWeeklyNoteAreWrittenAndReadBack) {
  check(NoteKind::Weekly, "0101010", "0|1|0|1|0|1|0|");
}

TEST_F(EditorBytes, theDateOfANoteForOneDateIsWrittenWithItsMonthFromOneAndReadBack) {
  using namespace std::chrono;
  const std::vector<std::pair<year_month_day, std::string>> rows = {
      {2026y / January / 1, "2026|1|1|19|05|Dentist"},
      {2026y / November / 22, "2026|11|22|19|05|Dentist"},
      {2028y / February / 29, "2028|2|29|19|05|Dentist"},
      {1753y / January / 1, "1753|1|1|19|05|Dentist"},
      {9999y / December / 31, "9999|12|31|19|05|Dentist"}};
  for (const auto& [date, bytes] : rows) {
    FilledPage page{NoteKind::Once, {L"7", L"05"}, L"Dentist", kPm};
    page.date = date;
    EXPECT_EQ(saved(page), bytes);
    EXPECT_TRUE(readBack(NoteKind::Once) == page) << bytes;
    EXPECT_EQ(view_.notice, L"");
  }
}

TEST_F(EditorTimes, ofANoteForOneDateAreWrittenAndReadBack) {
  checkAfter(NoteKind::Once, "2027|3|28|");
}

TEST_F(EditorBytes, everyCombinationOfWeekdaysIsWrittenAndReadBack) {
  for (int combination = 0; combination < 128; ++combination) {
    std::string weekdays;
    std::string bytes = "7|30|";
    for (int day = 0; day < 7; ++day) {
      const char flag = (combination >> day) % 2 == 1 ? '1' : '0';
      weekdays += flag;
      bytes += std::string(1, flag) + "|";
    }
    const FilledPage page{NoteKind::Weekly, {L"7", L"30"}, L"Gym", kAm, weekdays};
    EXPECT_EQ(saved(page), bytes + "Gym");
    EXPECT_TRUE(readBack(NoteKind::Weekly) == page) << weekdays;
  }
}

TEST_F(EditorBytes, aWeeklyNoteOnMondayAndFridayIsThese22Bytes) {
  const std::string bytes =
      saved({NoteKind::Weekly, {L"7", L"30"}, L"Gym", kAm, "0100010"}, L"Gym");
  EXPECT_EQ(bytes, "7|30|0|1|0|0|0|1|0|Gym");
  EXPECT_EQ(bytes.size(), 22U);
}

// Monthly and Yearly: days.

struct DayRow {
  std::wstring day;
  std::wstring daysBefore;
  std::wstring everyDays;
  std::string dayBytes;
  std::string reminderBytes;
};

const std::vector<DayRow> kDays = {
    {L"1", L"1", L"1", "1|", "1|1|"},
    {L"31", L"21", L"7", "31|", "21|7|"},
    {L"20", L"6", L"2", "20|", "6|2|"},
    {L"2", L"3", L"1", "2|", "3|1|"},
    {L"2", L"3", L"2", "2|", "3|2|"},
    {L"15", L"", L"", "15|", "||"},
    {L"15", L"5", L"", "15|", "5||"},
    {L"15", L"", L"3", "15|", "|3|"},
    {L"", L"", L"", "|", "||"},
    {L"", L"1", L"", "|", "1||"},
    {L"", L"", L"1", "|", "|1|"},
    {L"", L"21", L"7", "|", "21|7|"},
    {L"01", L"01", L"01", "01|", "01|01|"},
    {L"007", L"002", L"007", "007|", "002|007|"},
    {L"0", L"0", L"0", "0|", "0|0|"},
    {L"32", L"22", L"8", "32|", "22|8|"},
    {L"99", L"99", L"99", "99|", "99|99|"},
    {L"00", L"00", L"00", "00|", "00|00|"},
    {L"28", L"14", L"7", "28|", "14|7|"},
    {L"29", L"1", L"7", "29|", "1|7|"},
    {L"30", L"10", L"5", "30|", "10|5|"},
    {L"10", L"9", L"3", "10|", "9|3|"},
    {L"12345678901234567890", L"1", L"1", "12345678901234567890|", "1|1|"},
    {L"9", L"8", L"7", "9|", "8|7|"},
    {L"11", L"0", L"1", "11|", "0|1|"},
    {L"13", L"1", L"0", "13|", "1|0|"},
};

TEST_F(EditorBytes, theDaysOfAMonthlyNoteAreWrittenAndReadBack) {
  ASSERT_GE(kDays.size(), 25U);
  for (const DayRow& row : kDays) {
    const FilledPage page{NoteKind::Monthly, {row.day, row.daysBefore, row.everyDays}, L"Rent"};
    EXPECT_EQ(saved(page), row.dayBytes + row.reminderBytes + "Rent");
    EXPECT_TRUE(readBack(NoteKind::Monthly) == page) << row.dayBytes;
  }
}

TEST_F(EditorBytes, theDaysOfAYearlyNoteAreWrittenAndReadBack) {
  for (const DayRow& row : kDays) {
    FilledPage page{NoteKind::Yearly, {row.day, row.daysBefore, row.everyDays}, L"Cake"};
    page.month = 4;
    EXPECT_EQ(saved(page), row.dayBytes + "4|" + row.reminderBytes + "Cake");
    EXPECT_TRUE(readBack(NoteKind::Yearly) == page) << row.dayBytes;
  }
}

TEST_F(EditorBytes, everyMonthAndNoMonthAreWrittenAndReadBack) {
  const std::vector<std::string> bytes = {
      "3|-1|1|2|x", "3|0|1|2|x", "3|1|1|2|x", "3|2|1|2|x", "3|3|1|2|x",  "3|4|1|2|x", "3|5|1|2|x",
      "3|6|1|2|x",  "3|7|1|2|x", "3|8|1|2|x", "3|9|1|2|x", "3|10|1|2|x", "3|11|1|2|x"};
  for (int month = -1; month < 12; ++month) {
    FilledPage page{NoteKind::Yearly, {L"3", L"1", L"2"}, L"x"};
    page.month = month;
    EXPECT_EQ(saved(page), bytes.at(static_cast<std::size_t>(month + 1)));
    EXPECT_TRUE(readBack(NoteKind::Yearly) == page) << month;
  }
}

// All kinds: content and name.

struct ContentRow {
  std::wstring content;
  std::string bytes;
  std::wstring back;
};

const std::vector<ContentRow> kContents = {
    {L"", "", L""},
    {L"Gym", "Gym", L"Gym"},
    {L"a|b", "a|b", L"a"},
    {L"|", "|", L""},
    {L"||a", "||a", L""},
    {L"a\r\n|b\r\n", "a\r\n|b\r\n", L"a\r\n"},
    {L"a\r\n\r\nb\r\n", "a\r\n\r\nb\r\n", L"a\r\n\r\nb\r\n"},
    {L"\r\n", "\r\n", L"\r\n"},
    {L"  blanks \t", "  blanks \t", L"  blanks \t"},
    {L"\u20AC caf\u00E9", "\x80 caf\xE9", L"\u20AC caf\u00E9"},
    {L"\u0142\u65E5", "??", L"??"},
};

FilledPage emptyPage(NoteKind kind) {
  FilledPage page{kind, {L"1", L"1"}, L""};
  if (!hasClockTime(kind)) page.numbers.push_back(L"1");
  if (kind == NoteKind::Weekly) page.weekdays = "0000000";
  return page;
}

std::string fieldsOfEmptyPage(NoteKind kind) {
  switch (kind) {
    case NoteKind::Weekly:
      return "1|1|0|0|0|0|0|0|0|";
    case NoteKind::Monthly:
      return "1|1|1|";
    case NoteKind::Yearly:
      return "1|0|1|1|";
    case NoteKind::Once:
      return "2027|3|28|1|1|";
    default:
      return "1|1|";
  }
}

TEST_F(EditorBytes, theContentOfEveryKindIsWrittenToTheEndAndReadUpToASeparator) {
  for (const NoteKind kind : kNoteKinds) {
    for (const ContentRow& row : kContents) {
      FilledPage page = emptyPage(kind);
      page.content = row.content;
      EXPECT_EQ(saved(page), fieldsOfEmptyPage(kind) + row.bytes);
      page.content = row.back;
      // A file that ends after its last separator has no content: a NUL, which no box shows.
      EXPECT_TRUE(readBack(kind) == page) << row.bytes;
      editor_.cmdDel(kind);
    }
  }
}

TEST_F(EditorBytes, aNoteOfEveryKindIsNamedWithAnyAllowedCharacterOrNothing) {
  for (const NoteKind kind : kNoteKinds) {
    for (const std::wstring& noteName :
         {kAllowedName, std::wstring(), std::wstring(L"a.b"), std::wstring(L"..."),
          std::wstring(L" a "), std::wstring(L"x.tx1")}) {
      type(nameBox(kind), noteName);
      EXPECT_EQ(name(kind), noteName);
      FilledPage page = emptyPage(kind);
      page.content = L"x";
      EXPECT_EQ(saved(page, noteName), fieldsOfEmptyPage(kind) + "x");
      EXPECT_TRUE(readBack(kind, noteName) == page);
      EXPECT_EQ(name(kind), noteName);
      EXPECT_EQ(loadedNote(kind), noteName);
    }
  }
}

TEST_F(EditorBytes, aNoteWithAnEmptyNameIsTheExtensionAlone) {
  for (const NoteKind kind : kNoteKinds) {
    saved(emptyPage(kind), L"");
    EXPECT_TRUE(files_.content.contains(std::wstring(extensionOf(kind))));
    EXPECT_EQ(names(kind), std::vector<std::wstring>{L""});
  }
}

}  // namespace
}  // namespace kalvora
