#include "notes/NoteFieldReader.h"

#include <gtest/gtest.h>

#include <vector>

namespace kalvora {
namespace {

using namespace std::string_view_literals;

const std::wstring kNul(1, L'\0');

std::vector<std::wstring> read(std::string_view bytes, int fields) {
  const Windows1252 codePage;
  NoteFieldReader reader(bytes, codePage);
  std::vector<std::wstring> texts;
  for (int i = 0; i < fields; ++i) texts.push_back(reader.Czytaj_zmienna());
  return texts;
}

using Fields = std::vector<std::wstring>;

TEST(NoteFieldReader, separatorEndsAFieldAndIsDropped) {
  EXPECT_EQ(read("7|30|Gym", 3), (Fields{L"7", L"30", L"Gym"}));
}

TEST(NoteFieldReader, lastFieldRunsToTheEndOfTheFile) {
  EXPECT_EQ(read("7|a\r\nb = c\n", 2), (Fields{L"7", L"a\r\nb = c\n"}));
}

TEST(NoteFieldReader, lastFieldStopsAtASeparatorInIt) {
  EXPECT_EQ(read("7|a|b", 2), (Fields{L"7", L"a"}));
}

TEST(NoteFieldReader, emptyFieldIsEmpty) {
  EXPECT_EQ(read("||x", 3), (Fields{L"", L"", L"x"}));
}

TEST(NoteFieldReader, everyFieldPastTheEndIsOneNulCharacter) {
  EXPECT_EQ(read("7", 3), (Fields{L"7", kNul, kNul}));
  EXPECT_EQ(read("", 2), (Fields{kNul, kNul}));
}

TEST(NoteFieldReader, fieldAfterASeparatorThatEndsTheFileIsANulCharacter) {
  EXPECT_EQ(read("7|", 3), (Fields{L"7", kNul, kNul}));
  EXPECT_EQ(read("|", 2), (Fields{L"", kNul}));
}

TEST(NoteFieldReader, missingSeparatorMakesOneFieldSwallowTheRest) {
  EXPECT_EQ(read("7 30 Gym", 3), (Fields{L"7 30 Gym", kNul, kNul}));
}

TEST(NoteFieldReader, nulsInTheFileAreCharactersLikeOthers) {
  EXPECT_EQ(read("a\0b|\0|"sv, 3), (Fields{std::wstring(L"a\0b", 3), kNul, kNul}));
}

TEST(NoteFieldReader, bytesAreCharactersOfTheCodePage) {
  EXPECT_EQ(read("\x80\xE9\x9C|\xFF", 2), (Fields{L"\u20AC\u00E9\u0153", L"\u00FF"}));
}

TEST(NoteFieldReader, fieldOfTheLargestFileIsReadWhole) {
  const std::string bytes(32767, 'x');
  EXPECT_EQ(read(bytes, 2), (Fields{std::wstring(32767, L'x'), kNul}));
}

}  // namespace
}  // namespace kalvora
