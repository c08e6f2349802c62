#include "Form1Fixture.h"

namespace kalvora {
namespace {

class NoteBrowsing : public Form1Test {
 protected:
  NoteBrowsing() {
    // Room for the texts that the tests read from the rows.
    skinValues.set(L"Graphic Text", L"x of n, Length", L"12");
    skinValues.set(L"Graphic Text", L"File Date/Time, Length", L"20");
  }
};

TEST_F(NoteBrowsing, anEmptyFolderShowsUntitledZeroOfZeroAndNoDate) {
  view.setText(FieldId::Text2, L"what stood there before");
  view.setFieldEditing(FieldId::Text1, Editing::Locked);
  form().Form_Load();
  EXPECT_EQ(text(FieldId::Text1), L"Untiled");
  EXPECT_EQ(text(FieldId::Text2), L"");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"0 of 0"));
  EXPECT_TRUE(rowSays(RowId::lit_czas, L"                    "));
  tick(TimerId::Poczekaj);
  tick(TimerId::scrool);
  EXPECT_EQ(form().window().glyphAt(RowId::lit, 1), 19);   // T
  EXPECT_EQ(form().window().glyphAt(RowId::lit, 15), 18);  // the s of "notes"
  EXPECT_EQ(view.at(FieldId::Text1).editing, Editing::Allowed);
  click(ButtonId::Buttons_Delete);
  EXPECT_TRUE(view.questions.empty()) << "no file is on show";
}

TEST_F(NoteBrowsing, theFirstNoteIsShownAtStart) {
  note("Shopping.txt", "19|30|Milk\r\nBread");
  form().Form_Load();
  EXPECT_EQ(text(FieldId::Text1), L"Shopping");
  EXPECT_EQ(text(FieldId::Text2), L"Milk\r\nBread");
  EXPECT_EQ(text(FieldId::Text3), L"7:30");
  EXPECT_EQ(text(FieldId::AmPmLabel), L"PM");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"1 of 1"));
  const std::filesystem::path file = folder.path() / "notes" / "Shopping.txt";
  EXPECT_TRUE(rowSays(RowId::lit_czas, dateTexts.dateAndTime(files.lastWritten(file))));
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(writer.removed, std::vector<std::string>{"Shopping.txt"}) << "it is what was on show";
}

TEST_F(NoteBrowsing, pagingStopsAtTheFirstAndAtTheLastNote) {
  note("a.txt", "||A");
  note("b.tx1", "8|5|B");
  note("C.tx3", "20|6|2|C");
  form().Form_Load();
  click(ButtonId::Buttons_main_04);
  EXPECT_EQ(text(FieldId::Text2), L"A");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"1 of 3"));
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text2), L"B");
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text2), L"C");
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text2), L"C");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"3 of 3"));
  click(ButtonId::Buttons_main_04);
  EXPECT_EQ(text(FieldId::Text2), L"B");
}

TEST_F(NoteBrowsing, aNoteWithoutATimeLeavesTheTimeBoxEmpty) {
  note("a.txt", "7|30|A");
  note("b.tx3", "20|6|2|B");
  note("c.txt", "||C");
  form().Form_Load();
  EXPECT_EQ(text(FieldId::Text3), L"7:30");
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text3), L"");
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text3), L"");
}

TEST_F(NoteBrowsing, in24HourTimeTheHourIsShownAsItIsStored) {
  store.values[L"Sys/AmPm"] = L"False";
  note("a.txt", "19|30|A");
  form().Form_Load();
  EXPECT_EQ(text(FieldId::Text3), L"19:30");
  EXPECT_EQ(text(FieldId::AmPmLabel), L"");
}

TEST_F(NoteBrowsing, aNoteOf32767BytesOpensAndOneOf32768IsRefusedAndTheWindowKeepsWhatItShowed) {
  note("a.txt", "||A");
  note("b.txt", "||" + std::string(32765, 'b'));
  note("c.txt", "||" + std::string(32766, 'c'));
  form().Form_Load();
  // The reminders refuse it first.
  ASSERT_EQ(view.errors.size(), 1U);
  EXPECT_EQ(view.errors[0].title, L"Error!");
  EXPECT_EQ(view.errors[0].text, L"The file is too large to open!");
  view.errors.clear();
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text2).size(), 32765U);
  EXPECT_TRUE(view.errors.empty());
  click(ButtonId::Buttons_main_05);
  const std::wstring file = (folder.path() / "notes" / "c.txt").wstring();
  ASSERT_EQ(view.errors.size(), 1U);
  EXPECT_EQ(view.errors[0].title, L"Error!");
  EXPECT_EQ(view.errors[0].text, L"The file: " + file + L" is too large to open!");
  EXPECT_EQ(text(FieldId::Text1), L"b");
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(writer.removed, std::vector<std::string>{"c.txt"}) << "the refused one can be deleted";
}

TEST_F(NoteBrowsing, aSaveNeverRemovesAFileThatTheWindowDidNotShow) {
  note("a.txt", "||A");
  note("b.txt", "||" + std::string(32766, 'b'));
  note("c.doc", "no note at all");
  form().Form_Load();
  click(ButtonId::Buttons_main_05);  // refused; a is still on show
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(files.size(folder.path() / "notes" / "b.txt"), 32768U);
  click(ButtonId::Buttons_main_05);
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text1), L"c");
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(files.size(folder.path() / "notes" / "c.doc"), 14U);
}

TEST_F(NoteBrowsing, whatAKilledSaveLeftBehindIsNoNote) {
  note("a.txt", "||A");
  note("~kalvora-1-1.tmp", "||half a no");
  form().Form_Load();
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"1 of 1"));
  EXPECT_EQ(titlesByPaging(), std::vector<std::wstring>{L"a"});
}

TEST_F(NoteBrowsing, aNoteThatVanishedOnlyBringsTheListUpToDate) {
  note("a.txt", "||A");
  note("b.txt", "||B");
  form().Form_Load();
  std::filesystem::remove(folder.path() / "notes" / "b.txt");
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text2), L"A");
  EXPECT_TRUE(view.errors.empty());
  click(ButtonId::Buttons_main_05);
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"1 of 1"));
}

TEST_F(NoteBrowsing, aNoteThatCannotBeReadIsNamedAndPassedOver) {
  note("a.txt", "||A");
  note("b.txt", "9|30|B");
  note("c.txt", "||C");
  form().Form_Load();
  files.unreadable = L"b.txt";
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text1), L"b");
  EXPECT_TRUE(text(FieldId::Text2).starts_with(L"This note cannot be read."));
  EXPECT_EQ(text(FieldId::Text3), L"");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"2 of 3"));
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text2), L"C");
}

TEST_F(NoteBrowsing, theSentenceInPlaceOfANoteIsNeverSavedAsOne) {
  note("a.tx1", "9|30|A");
  form().Form_Load();
  files.unreadable = L"a.tx1";
  form().showFirstNote();
  EXPECT_THROW(click(ButtonId::Buttons_main_02), Failure);
  EXPECT_EQ(contentOf("a.txt"), std::nullopt);
  EXPECT_EQ(contentOf("a.tx1"), "9|30|A");
}

TEST_F(NoteBrowsing, whatIsTypedIntoThatSentenceIsADraftAndNeverTheNote) {
  note("a.txt", "9|30|A");
  form().Form_Load();
  files.unreadable = L"a.txt";
  form().showFirstNote();
  files.unreadable.clear();
  view.setText(FieldId::Text2, text(FieldId::Text2) + L" Call Bob.");
  EXPECT_THROW(click(ButtonId::Buttons_main_02), Failure);
  EXPECT_EQ(contentOf("a.txt"), "9|30|A");
  ASSERT_EQ(copies.newestFirst().size(), 1U);
  EXPECT_TRUE(copies.read(copies.newestFirst()[0]).ends_with(" Call Bob."));
}

TEST_F(NoteBrowsing, aFolderThatWasAwayIsListedAgainAtTheSamePlace) {
  for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt"})
    note(name, std::string("||") + name);
  form().Form_Load();
  click(ButtonId::Buttons_main_05);
  std::filesystem::rename(folder.path() / "notes", folder.path() / "away");
  for (int i = 0; i < 3; ++i) click(ButtonId::Buttons_main_05);
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"0 of 0"));
  std::filesystem::rename(folder.path() / "away", folder.path() / "notes");
  click(ButtonId::Buttons_main_04);
  EXPECT_EQ(text(FieldId::Text2), L"c.txt") << "where the first press would have led";
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"3 of 4"));
  click(ButtonId::Buttons_main_04);
  EXPECT_EQ(text(FieldId::Text2), L"b.txt");
}

TEST_F(NoteBrowsing, aNoteOfRandomBytesIsShownWithoutAnError) {
  std::string bytes;
  unsigned state = 12345;
  for (int i = 0; i < 5000; ++i) {
    state = state * 1664525U + 1013904223U;
    bytes += static_cast<char>(state >> 24U);
  }
  for (const char* name : {"a.txt", "b.tx1", "c.tx2", "d.tx3", "e.tx4", "f.xyz"}) note(name, bytes);
  form().Form_Load();
  // The reminders tell of those that cannot ring.
  view.errors.clear();
  for (int i = 0; i < 6; ++i) click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text1), L"f");
  EXPECT_TRUE(view.errors.empty());
}

TEST_F(NoteBrowsing, theTitleScrollsWithoutTheExtension) {
  note("Shopping.txt", "||A");
  form().Form_Load();
  EXPECT_TRUE(view.runs(TimerId::Poczekaj));
  EXPECT_EQ(view.timers[TimerId::Poczekaj], 1);
  tick(TimerId::Poczekaj);
  tick(TimerId::scrool);
  EXPECT_EQ(view.timers[TimerId::Poczekaj], 5000);
  EXPECT_EQ(form().window().glyphAt(RowId::lit, 1), 18);  // S
  EXPECT_EQ(form().window().glyphAt(RowId::lit, 8), 6);   // g
  EXPECT_EQ(form().window().glyphAt(RowId::lit, 9), kBlankGlyph);
}

}  // namespace
}  // namespace kalvora
