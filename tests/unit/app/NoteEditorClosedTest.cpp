// The main window after the note editor was closed.

#include "Form1Fixture.h"

namespace kalvora {
namespace {

class NoteEditorClosed : public Form1Test {
 protected:
  NoteEditorClosed() { skinValues.set(L"Graphic Text", L"x of n, Length", L"12"); }

  /// What the editor does to the main window when it is closed.
  void closeEditor() {
    form().Update_All_Al();
    form().showFirstNote();
  }

  Editing editing(FieldId field) const { return view.at(field).editing; }
};

TEST_F(NoteEditorClosed, theWindowGoesFromAnyNoteToTheFirstOfTheNewListAndLocksItsText) {
  note("b.txt", "||Bravo");
  note("c.txt", "||Charlie");
  form().Form_Load();
  click(ButtonId::Buttons_main_05);
  ASSERT_EQ(text(FieldId::Text2), L"Charlie");
  note("a.tx2", "19|30|0|1|0|0|0|0|0|Alpha");
  closeEditor();
  EXPECT_EQ(text(FieldId::Text1), L"a");
  EXPECT_EQ(text(FieldId::Text2), L"Alpha");
  EXPECT_EQ(text(FieldId::Text3), L"7:30");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"1 of 3"));
  EXPECT_EQ(editing(FieldId::Text2), Editing::Locked);
  EXPECT_EQ(editing(FieldId::Text1), Editing::Allowed);
  EXPECT_EQ(editing(FieldId::Text3), Editing::Allowed);
}

TEST_F(NoteEditorClosed, theTextCanBeEditedAgainOnceTheUserGoesOn) {
  note("a.txt", "||Alpha");
  note("b.txt", "||Bravo");
  form().Form_Load();
  for (const ButtonId button :
       {ButtonId::Buttons_main_01, ButtonId::Buttons_main_02, ButtonId::Buttons_main_04,
        ButtonId::Buttons_main_05, ButtonId::Buttons_main_03}) {
    closeEditor();
    ASSERT_EQ(editing(FieldId::Text2), Editing::Locked);
    click(button);
    EXPECT_EQ(editing(FieldId::Text2), Editing::Allowed) << static_cast<int>(button);
  }
}

TEST_F(NoteEditorClosed, theNameOfTheFirstNoteScrolls) {
  note("b.txt", "||Bravo");
  form().Form_Load();
  note("a.txt", "||Alpha");
  closeEditor();
  tick(TimerId::Poczekaj);
  tick(TimerId::scrool);
  const int glyphOfA = form().window().glyphAt(RowId::lit, 1);
  note("0.txt", "||Zero");
  closeEditor();
  tick(TimerId::Poczekaj);
  tick(TimerId::scrool);
  EXPECT_NE(form().window().glyphAt(RowId::lit, 1), glyphOfA);
}

TEST_F(NoteEditorClosed, withoutAnyNoteTheTextIsEmptyAndEditableAndTheTitleUntiled) {
  note("a.txt", "7|30|Alpha");
  form().Form_Load();
  closeEditor();
  ASSERT_EQ(editing(FieldId::Text2), Editing::Locked);
  std::filesystem::remove(folder.path() / "notes" / "a.txt");
  closeEditor();
  EXPECT_EQ(text(FieldId::Text1), L"Untiled");
  EXPECT_EQ(text(FieldId::Text2), L"");
  EXPECT_EQ(editing(FieldId::Text2), Editing::Allowed);
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"0 of 0"));
  click(ButtonId::Buttons_Delete);
  EXPECT_TRUE(view.questions.empty()) << "no file is on show";
}

TEST_F(NoteEditorClosed, aNoteMadeForTheNextMinuteRings) {
  note("z.txt", "||Zulu");
  form().Form_Load();
  // The clock says 3:17:05.
  note("m.tx1", "3|18|Mike");
  closeEditor();
  clock.time.minute = 18;
  clock.time.second = 1;
  tick(TimerId::Spr1m);
  EXPECT_EQ(text(FieldId::Text1), L"m");
  EXPECT_EQ(text(FieldId::Text2), L"Mike");
  EXPECT_FALSE(form().window().buttonVisible(ButtonId::Buttons_main_02));
}

TEST_F(NoteEditorClosed, aNoteThatWasTakenAwayNoLongerRings) {
  note("m.tx1", "3|18|Mike");
  note("z.txt", "||Zulu");
  form().Form_Load();
  std::filesystem::remove(folder.path() / "notes" / "m.tx1");
  closeEditor();
  clock.time.minute = 18;
  clock.time.second = 1;
  tick(TimerId::Spr1m);
  EXPECT_EQ(text(FieldId::Text1), L"z");
  EXPECT_TRUE(form().window().buttonVisible(ButtonId::Buttons_main_02));
}

}  // namespace
}  // namespace kalvora
