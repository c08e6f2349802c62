#include "notes/NotePreview.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

NotePreview previewOf(NoteKind kind, std::string_view bytes, bool isDraft = false) {
  SafetyCopy copy;
  copy.kind = kind;
  copy.isDraft = isDraft;
  return notePreview(copy, bytes, Windows1252());
}

TEST(NotePreviewTest, tellsWhenEachKindComes) {
  EXPECT_EQ(previewOf(NoteKind::Fast, "19|5|x").when, L"at 19:05");
  EXPECT_EQ(previewOf(NoteKind::Daily, "7|30|x").when, L"at 7:30");
  EXPECT_EQ(previewOf(NoteKind::Weekly, "7|30|1|0|0|1|0|0|0|x").when,
            L"at 7:30, Sunday, Wednesday");
  EXPECT_EQ(previewOf(NoteKind::Weekly, "||0|1|0|0|0|0|0|x").when, L"Monday");
  EXPECT_EQ(previewOf(NoteKind::Monthly, "20|6|2|x").when,
            L"day 20, 6 day(s) before, every 2 day(s)");
  EXPECT_EQ(previewOf(NoteKind::Yearly, "20|2|6||x").when, L"20 March, 6 day(s) before");
  EXPECT_EQ(previewOf(NoteKind::Yearly, "|2|||x").when, L"March");
  EXPECT_EQ(previewOf(NoteKind::Once, "2026|11|22|7|5|x").when, L"22 November 2026, at 7:05");
  EXPECT_EQ(previewOf(NoteKind::Once, "2026|1|9|||x").when, L"9 January 2026");
  EXPECT_EQ(previewOf(NoteKind::Once, "2026|2|31|7|5|x").when, L"at 7:05") << "no such day";
}

TEST(NotePreviewTest, aNoteWithoutATimeSaysNothing) {
  EXPECT_EQ(previewOf(NoteKind::Fast, "||x").when, L"");
  EXPECT_EQ(previewOf(NoteKind::Monthly, "|||x").when, L"");
  EXPECT_EQ(previewOf(NoteKind::Weekly, "").when, L"");
  EXPECT_EQ(previewOf(NoteKind::Yearly, "|77|||x").when, L"");
  EXPECT_EQ(previewOf(NoteKind::Once, "|||||x").when, L"");
}

TEST(NotePreviewTest, theTextIsWholeAndItsLineEndsAreSeen) {
  EXPECT_EQ(previewOf(NoteKind::Fast, "||a\nb|c").text, L"a\r\nb|c");
}

TEST(NotePreviewTest, onlyADraftIsReadAsUtf8) {
  EXPECT_EQ(previewOf(NoteKind::Fast, "||\xEF\xBB\xBF\xC5\xBC", true).text, L"\u017C");
  EXPECT_EQ(previewOf(NoteKind::Fast, "||\xEF\xBB\xBF", false).text, L"\u00EF\u00BB\u00BF");
}

}  // namespace
}  // namespace kalvora
