#include "notes/NoteContent.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace kalvora {
namespace {

const Windows1252 kCodePage;

std::string stored(std::wstring_view shown, std::string_view before) {
  return contentToStore(shown, before, kCodePage);
}

TEST(NoteContent, isTheLastFieldOfEachKind) {
  EXPECT_EQ(contentOf(NoteKind::Daily, "7|30|a\nb"), "a\nb");
  EXPECT_EQ(contentOf(NoteKind::Fast, std::string_view("||a\0b", 5)), std::string("a\0b", 3));
  EXPECT_EQ(contentOf(NoteKind::Weekly, "7|30|0|1|0|0|0|1|0|Gym"), "Gym");
  EXPECT_EQ(contentOf(NoteKind::Monthly, "1|2|3|Rent"), "Rent");
  EXPECT_EQ(contentOf(NoteKind::Yearly, "1|2|3|4|Rent"), "Rent");
}

TEST(NoteContent, endsAtASeparatorAndIsEmptyWhereTheFileEndsBeforeIt) {
  EXPECT_EQ(contentOf(NoteKind::Fast, "||a|b"), "a");
  for (const char* bytes : {"", "7", "7|", "7|30", "7|30|"}) {
    EXPECT_EQ(contentOf(NoteKind::Fast, bytes), "") << bytes;
  }
}

TEST(NoteContent, anUnchangedTextKeepsItsBytes) {
  EXPECT_EQ(stored(L"", ""), "");
  EXPECT_EQ(stored(L"a\nb", "a\nb"), "a\nb");
  EXPECT_EQ(stored(L"a\rb\n\r\n\n", "a\rb\n\r\n\n"), "a\rb\n\r\n\n");
  EXPECT_EQ(stored(L"ab\ncaf\x00E9", std::string_view("a\0b\ncaf\xE9\0", 9)),
            std::string("a\0b\ncaf\xE9\0", 9));
}

TEST(NoteContent, theBoxMayShowOtherLineEnds) {
  EXPECT_EQ(stored(L"a\r\nb\r\n", "a\nb\n"), "a\nb\n");
}

TEST(NoteContent, whatIsTypedHasWindowsLineEnds) {
  EXPECT_EQ(stored(L"a\nb\r\nc", ""), "a\r\nb\r\nc");
  EXPECT_EQ(stored(L"\n\n", ""), "\r\n\r\n");
}

TEST(NoteContent, onlyChangedLinesAreWrittenAnew) {
  EXPECT_EQ(stored(L"a\r\nx\r\nc\r\nd", "a\nb\nc\nd"), "a\nx\r\nc\nd");
  EXPECT_EQ(stored(L"new\r\na\r\nb", "a\nb"), "new\r\na\nb");
  EXPECT_EQ(stored(L"a\r\nb\r\nnew", "a\nb"), "a\nb\r\nnew");
  EXPECT_EQ(stored(L"a\r\nc", "a\nb\nc"), "a\nc");
  EXPECT_EQ(stored(L"x", "a\nb"), "x");
  EXPECT_EQ(stored(L"", "a\nb\n"), "");
}

TEST(NoteContent, linesThatAreRepeatedAreNotCountedTwice) {
  EXPECT_EQ(stored(L"a\r\na", "a\na\na"), "a\na");
  EXPECT_EQ(stored(L"a\r\na\r\na\r\na", "a\na"), "a\na\r\na\r\na");
}

TEST(NoteContent, whatTheCodePageCannotHoldIsReplaced) {
  EXPECT_EQ(stored(L"a \x03A9", "a"), "a ?");
}

}  // namespace
}  // namespace kalvora
