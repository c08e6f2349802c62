#include "notes/NoteReader.h"

#include <gtest/gtest.h>

#include <random>

#include "notes/NoteKind.h"

namespace kalvora {
namespace {

using namespace std::string_view_literals;

ShownNote read(std::wstring_view name, std::string_view bytes,
               HourFormat format = HourFormat::Hours12, NoteKinds kinds = kNoteKinds) {
  return readNote(name, bytes, Windows1252(), format, kinds);
}

TEST(NoteReader, dailyNoteShowsItsTimeAndText) {
  EXPECT_EQ(read(L"Gym.tx1", "7|30|Bring water"),
            (ShownNote{L"Gym", L"Bring water", L"7:30", HalfOfDay::Am}));
}

TEST(NoteReader, weeklyNoteShowsItsTimeAndText) {
  EXPECT_EQ(read(L"Gym.tx2", "19|30|0|1|0|0|0|1|0|Bring water"),
            (ShownNote{L"Gym", L"Bring water", L"7:30", HalfOfDay::Pm}));
}

TEST(NoteReader, monthlyNoteShowsNoTime) {
  EXPECT_EQ(read(L"Rent.tx3", "1|3|1|Pay it"), (ShownNote{L"Rent", L"Pay it", L"", std::nullopt}));
}

TEST(NoteReader, yearlyNoteShowsNoTime) {
  EXPECT_EQ(read(L"Birthday.tx4", "24|11|3|1|Cake"),
            (ShownNote{L"Birthday", L"Cake", L"", std::nullopt}));
}

TEST(NoteReader, fastNoteShowsItsTimeAndText) {
  EXPECT_EQ(read(L"Call.TXT", "24|0|Line 1\r\nLine 2"),
            (ShownNote{L"Call", L"Line 1\r\nLine 2", L"12:0", HalfOfDay::Pm}));
}

TEST(NoteReader, noteForOneDateShowsItsTimeAndText) {
  EXPECT_EQ(read(L"Dentist.tx5", "2026|11|22|19|30|Upstairs"),
            (ShownNote{L"Dentist", L"Upstairs", L"7:30", HalfOfDay::Pm}));
  EXPECT_EQ(read(L"Dentist.tx5", "2026|2|31|7|30|Upstairs"),
            (ShownNote{L"Dentist", L"Upstairs", L"7:30", HalfOfDay::Am}));
}

TEST(NoteReader, fileForOneDateIsOfNoKindWhereTheUserHasNoSuchNotes) {
  EXPECT_EQ(read(L"Dentist.tx5", "2026|11|22|19|30|Upstairs", HourFormat::Hours12, knownKinds({})),
            (ShownNote{L"Dentist", L"", L"", std::nullopt}));
}

TEST(NoteReader, twentyFourHourDisplayShowsTheStoredHourWithoutAHalfOfTheDay) {
  EXPECT_EQ(read(L"a.txt", "19|30|x", HourFormat::Hours24),
            (ShownNote{L"a", L"x", L"19:30", std::nullopt}));
}

TEST(NoteReader, noteWithoutATimeShowsAnEmptyTimeLine) {
  EXPECT_EQ(read(L"a.txt", "||x"), (ShownNote{L"a", L"x", L"", std::nullopt}));
}

TEST(NoteReader, halfATimeIsShownAsItIs) {
  EXPECT_EQ(read(L"a.txt", "7||x"), (ShownNote{L"a", L"x", L"7:", HalfOfDay::Am}));
  EXPECT_EQ(read(L"a.txt", "|30|x"), (ShownNote{L"a", L"x", L":30", std::nullopt}));
}

TEST(NoteReader, contentIsShownUpToItsFirstSeparatorOnly) {
  EXPECT_EQ(read(L"a.txt", "7|30|a|b").text, L"a");
  EXPECT_EQ(read(L"a.txt", "7|30||b").text, L"");
}

TEST(NoteReader, noteWithoutATextShowsNone) {
  EXPECT_EQ(read(L"a.txt", "7|30|"), (ShownNote{L"a", L"", L"7:30", HalfOfDay::Am}));
}

TEST(NoteReader, emptyFileShowsItsTitleOnly) {
  for (const NoteKind kind : kNoteKinds) {
    EXPECT_EQ(read(L"a" + std::wstring(extensionOf(kind)), ""),
              (ShownNote{L"a", L"", L"", std::nullopt}));
  }
}

TEST(NoteReader, fileThatEndsEarlyShowsWhatItHas) {
  EXPECT_EQ(read(L"a.txt", "7"), (ShownNote{L"a", L"", L"7:", HalfOfDay::Am}));
  EXPECT_EQ(read(L"a.tx2", "19|30|0|1"), (ShownNote{L"a", L"", L"7:30", HalfOfDay::Pm}));
  EXPECT_EQ(read(L"a.tx3", "1|2"), (ShownNote{L"a", L"", L"", std::nullopt}));
}

TEST(NoteReader, hourThatIsNoNumberIsShownAsItIsWithoutAHalfOfTheDay) {
  EXPECT_EQ(read(L"a.txt", "seven|30|x"), (ShownNote{L"a", L"x", L"seven:30", std::nullopt}));
  EXPECT_EQ(read(L"a.txt", "99999|30|x"), (ShownNote{L"a", L"x", L"99999:30", std::nullopt}));
  EXPECT_EQ(read(L"a.txt", "Just a text"), (ShownNote{L"a", L"", L"Just a text:", std::nullopt}));
}

TEST(NoteReader, nulCharactersAreLeftOut) {
  EXPECT_EQ(read(L"a.txt", "\0007\0|3\0000|a\0b\0"sv),
            (ShownNote{L"a", L"ab", L"7:30", HalfOfDay::Am}));
}

TEST(NoteReader, fileOfNoKindShowsItsTitleOnly) {
  EXPECT_EQ(read(L"picture.bmp", "7|30|x"), (ShownNote{L"picture", L"", L"", std::nullopt}));
  EXPECT_EQ(read(L"abc", "7|30|x"), (ShownNote{L"", L"", L"", std::nullopt}));
}

TEST(NoteReader, noteOfTheLargestSizeIsShownWhole) {
  const std::string bytes = "7|30|" + std::string(kLargestNoteSize - 5, 'x');
  EXPECT_EQ(read(L"a.txt", bytes).text.size(), kLargestNoteSize - 5);
}

TEST(NoteReader, anyBytesAreShownWithoutAnError) {
  std::mt19937 random(2027);
  for (int round = 0; round < 3000; ++round) {
    std::string bytes(random() % 300, '\0');
    for (char& byte : bytes) {
      byte = random() % 6 == 0 ? '|' : static_cast<char>(random());
      if (round % 3 == 0 && byte != '|') byte = "0123456789+-.e "[random() % 15];
    }
    for (const NoteKind kind : kNoteKinds) {
      const ShownNote note = read(L"note" + std::wstring(extensionOf(kind)), bytes);
      EXPECT_EQ(note.title, L"note");
      EXPECT_LE(note.text.size() + note.time.size(), bytes.size() + 1);
      EXPECT_EQ(note.text.find(L'\0'), std::wstring::npos);
      if (!hasClockTime(kind)) {
        EXPECT_EQ(note.time, L"");
      }
    }
  }
}

}  // namespace
}  // namespace kalvora
