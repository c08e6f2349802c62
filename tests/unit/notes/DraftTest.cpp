#include "notes/Draft.h"

#include <gtest/gtest.h>

#include "base/Utf8.h"

namespace kalvora {
namespace {

const Windows1252 kCodePage;
const std::string kMark(kUtf8Mark);

TypedNote fast(std::wstring_view title, std::wstring_view time, std::wstring_view text,
               HalfOfDay half = HalfOfDay::Am, HourFormat format = HourFormat::Hours12) {
  return typedFastNote(title, time, text, half, format);
}

std::string bytesOf(const TypedNote& note) {
  return draftOf(note, kCodePage).bytes;
}

TEST(Draft, isWhatASaveWouldWrite) {
  const Draft draft = draftOf(fast(L"Gym", L"7:30", L"a\r\nb|c", HalfOfDay::Pm), kCodePage);
  EXPECT_EQ(draft.kind, NoteKind::Fast);
  EXPECT_EQ(draft.name, L"Gym");
  EXPECT_EQ(draft.bytes, "19|30|a\r\nb|c");
  EXPECT_TRUE(draft.canBeSaved);
}

TEST(Draft, aTimeThatIsNoneStandsAsTypedAboveTheText) {
  EXPECT_EQ(bytesOf(fast(L"Gym", L"7:30:15", L"Mat", HalfOfDay::Pm)), "||7:30:15 PM\r\nMat");
  EXPECT_EQ(bytesOf(fast(L"Gym", L"99999:1", L"Mat", HalfOfDay::Am, HourFormat::Hours24)),
            "||99999:1\r\nMat");
  EXPECT_FALSE(draftOf(fast(L"Gym", L"7:30:15", L"Mat"), kCodePage).canBeSaved);
}

TEST(Draft, lettersOutsideTheCodePageAreKeptAsUtf8) {
  const TypedNote note = fast(L"Gym", L"7:30", L"\u65E5\r\n|\u017C");
  const Draft draft = draftOf(note, kCodePage);
  EXPECT_EQ(draft.bytes, "7|30|" + kMark + "\xE6\x97\xA5\r\n|\xC5\xBC");
  EXPECT_FALSE(draft.canBeSaved);
  EXPECT_EQ(contentOfDraft(NoteKind::Fast, draft.bytes, kCodePage), L"\u65E5\r\n|\u017C");
}

TEST(Draft, aTextThatBeginsLikeTheMarkComesBackToo) {
  const std::wstring text = kCodePage.toText(kMark) + L"x";
  const std::string bytes = bytesOf(fast(L"Gym", L"", text));
  EXPECT_EQ(contentOfDraft(NoteKind::Fast, bytes, kCodePage), text);
  EXPECT_EQ(noteOfDraft(NoteKind::Fast, bytes, kCodePage), "||" + kMark + "x");
}

TEST(Draft, aTextTooLongForANoteIsKeptWhole) {
  EXPECT_EQ(bytesOf(fast(L"Gym", L"", std::wstring(100000, L'x'))),
            "||" + std::string(100000, 'x'));
}

TEST(Draft, aNameTooLongForAFileStandsWholeAboveTheText) {
  const std::wstring name(300, L'n');
  const Draft draft = draftOf(fast(name, L"", L"Mat"), kCodePage);
  EXPECT_EQ(draft.name, name.substr(0, 100));
  EXPECT_EQ(draft.bytes, "||" + std::string(300, 'n') + "\r\nMat");
}

TEST(Draft, aNameThatWindowsTakesForADeviceBecomesOneThatItDoesNot) {
  EXPECT_EQ(draftOf(fast(L"com1", L"", L"Mat"), kCodePage).name, L"_com1");
  EXPECT_EQ(draftOf(fast(L"Aux .x", L"", L"Mat"), kCodePage).name, L"_Aux .x");
  EXPECT_EQ(draftOf(fast(L"Common", L"", L"Mat"), kCodePage).name, L"Common");
}

TEST(Draft, aNoteOfADraftHoldsNoMark) {
  const std::string bytes = bytesOf(fast(L"Gym", L"7:30", L"\u65E5 caf\u00E9"));
  EXPECT_EQ(noteOfDraft(NoteKind::Fast, bytes, kCodePage), "7|30|? caf\xE9");
  EXPECT_EQ(noteOfDraft(NoteKind::Fast, "7|30|a|b", kCodePage), "7|30|a|b");
}

TEST(Draft, theTextOfEachKindGoesToTheEndOfTheFile) {
  EXPECT_EQ(contentOf(NoteKind::Daily, "7|30|a|b", kCodePage), L"a|b");
  EXPECT_EQ(contentOf(NoteKind::Weekly, "7|30|0|0|0|0|0|0|0|a|b", kCodePage), L"a|b");
  EXPECT_EQ(contentOf(NoteKind::Monthly, "1|2|3|a|b", kCodePage), L"a|b");
  EXPECT_EQ(contentOf(NoteKind::Yearly, "1|2|3|4|a|b", kCodePage), L"a|b");
  EXPECT_EQ(contentOf(NoteKind::Yearly, "1|2", kCodePage), L"");
}

TEST(Draft, aNameThatTheFolderHasNoRoomForStandsAboveTheText) {
  const Draft draft = draftOf(fast(L"A long name", L"", L"text"), kCodePage, 6);
  EXPECT_EQ(draft.name, L"A long");
  EXPECT_EQ(draft.bytes, "||A long name\r\ntext");
}

TEST(Draft, anUntouchedSheetIsBlank) {
  EXPECT_TRUE(isBlank(fast(L"Untiled", L"", L"")));
  EXPECT_TRUE(isBlank(fast(L"", L"", L"")));
  EXPECT_TRUE(isBlank({NoteKind::Yearly, L"New", YearlyFields{L"", L"0", L"", L"", L""}, {}, {}}));
  EXPECT_FALSE(isBlank(fast(L"Gym", L"", L"")));
  EXPECT_FALSE(isBlank(fast(L"Untiled", L"0:", L"")));
  EXPECT_FALSE(isBlank(fast(L"Untiled", L"::", L"")));
  EXPECT_FALSE(isBlank(fast(L"Untiled", L"", L"0")));
  WeeklyFields weekly;
  weekly.weekdays.fill(L"0");
  EXPECT_TRUE(isBlank({NoteKind::Weekly, L"New", weekly, {}, {}}));
  weekly.weekdays[3] = L"1";
  EXPECT_FALSE(isBlank({NoteKind::Weekly, L"New", weekly, {}, {}}));
}

}  // namespace
}  // namespace kalvora
