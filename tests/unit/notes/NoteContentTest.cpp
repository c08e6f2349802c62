#include "notes/NoteContent.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "notes/Draft.h"
#include "notes/NoteFieldReader.h"

namespace kalvora {
namespace {

const Windows1252 kCodePage;

std::string stored(std::wstring_view shown, std::string_view before) {
  return contentToStore(shown, before, kCodePage);
}

TEST(NoteContent, isTheLastFieldOfEachKind) {
  EXPECT_EQ(storedContentOf(NoteKind::Daily, "7|30|a\nb", kCodePage), "a\nb");
  EXPECT_EQ(storedContentOf(NoteKind::Fast, std::string_view("||a\0b", 5), kCodePage),
            std::string("a\0b", 3));
  EXPECT_EQ(storedContentOf(NoteKind::Weekly, "7|30|0|1|0|0|0|1|0|Gym", kCodePage), "Gym");
  EXPECT_EQ(storedContentOf(NoteKind::Monthly, "1|2|3|Rent", kCodePage), "Rent");
  EXPECT_EQ(storedContentOf(NoteKind::Yearly, "1|2|3|4|Rent", kCodePage), "Rent");
}

/// Japanese: 83 7C is one character, whose second byte is that of "|".
class DoubleByteCodePage : public Windows1252 {
 public:
  bool startsPair(char byte) const override { return byte == '\x83'; }
};

TEST(NoteContent, theSecondByteOfACharacterEndsNoField) {
  const DoubleByteCodePage pairs;
  const std::string bytes = "7|30|a\x83|b\x83";
  EXPECT_EQ(storedContentOf(NoteKind::Daily, bytes, pairs), "a\x83|b\x83");
  EXPECT_EQ(storedContentOf(NoteKind::Daily, "7\x83|1|30|a", pairs), "a");
  NoteFieldReader fields(bytes, pairs);
  EXPECT_EQ(fields.Czytaj_zmienna(), L"7");
  EXPECT_EQ(fields.Czytaj_zmienna(), L"30");
  EXPECT_EQ(fields.Czytaj_zmienna(), L"a\u0192|b\u0192");
  EXPECT_EQ(contentOfDraft(NoteKind::Daily, "7\x83|1|30|a", pairs), L"a");
}

TEST(NoteContent, endsAtASeparatorAndIsEmptyWhereTheFileEndsBeforeIt) {
  EXPECT_EQ(storedContentOf(NoteKind::Fast, "||a|b", kCodePage), "a");
  for (const char* bytes : {"", "7", "7|", "7|30", "7|30|"}) {
    EXPECT_EQ(storedContentOf(NoteKind::Fast, bytes, kCodePage), "") << bytes;
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
