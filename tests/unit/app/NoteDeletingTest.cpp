#include "Form1Fixture.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

class NoteDeleting : public Form1Test {
 protected:
  NoteDeleting() { skinValues.set(L"Graphic Text", L"x of n, Length", L"12"); }

  void start() {
    form().Form_Load();
    form().Nastepny_Load_Formy();
    while (view.runs(TimerId::Timer1)) tick(TimerId::Timer1);
  }

  void next() { click(ButtonId::Buttons_main_05); }
  void plainDelete() { click(ButtonId::Buttons_main_03); }
  void fastDelete() { click(ButtonId::Buttons_Delete); }
};

TEST_F(NoteDeleting, plainDeleteNeverAsksAndThePreviousNoteIsShown) {
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) note(name, "||x");
  store.values[L"Sys/Fast_delete_msg"] = L"True";
  start();
  next();
  plainDelete();
  EXPECT_TRUE(view.questions.empty());
  EXPECT_EQ(contentOf("b.txt"), std::nullopt);
  EXPECT_EQ(text(FieldId::Text1), L"a");
  EXPECT_FALSE(view.runs(TimerId::Timer1)) << "the window stays";
  EXPECT_EQ(titlesByPaging(), (Names{L"a", L"c"}));
}

TEST_F(NoteDeleting, deletingTheFirstNoteShowsTheNewFirstOne) {
  for (const char* name : {"a.txt", "b.txt"}) note(name, "||x");
  start();
  plainDelete();
  EXPECT_EQ(text(FieldId::Text1), L"b");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"1 of 1"));
}

TEST_F(NoteDeleting, deletingTheLastNoteOfTheListShowsTheNewLastOne) {
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) note(name, "||x");
  start();
  next();
  next();
  plainDelete();
  EXPECT_EQ(text(FieldId::Text1), L"b");
}

TEST_F(NoteDeleting, deletingTheLastNoteOfTheListFastShowsTheNewLastOne) {
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) note(name, "||x");
  start();
  next();
  next();
  fastDelete();
  EXPECT_EQ(text(FieldId::Text1), L"b");
}

TEST_F(NoteDeleting, deletingTheOnlyNoteGivesTheEmptyState) {
  for (const ButtonId button : {ButtonId::Buttons_main_03, ButtonId::Buttons_Delete}) {
    note("a.txt", "7|30|x");
    Form1 lone(ports());
    lone.Form_Load();
    lone.Form_MouseDown(MouseButton::Left, middleOf(button));
    lone.mouseUp(MouseButton::Left, middleOf(button));
    EXPECT_EQ(contentOf("a.txt"), std::nullopt);
    EXPECT_EQ(text(FieldId::Text1), L"Untiled");
    EXPECT_EQ(text(FieldId::Text2), L"");
    view.questions.clear();
    lone.pressButton(ButtonId::Buttons_Delete);
    EXPECT_TRUE(view.questions.empty()) << "no file is on show";
  }
}

TEST_F(NoteDeleting, withoutNotesBothDeletesDoNothing) {
  start();
  plainDelete();
  fastDelete();
  EXPECT_TRUE(view.questions.empty());
  EXPECT_TRUE(writer.removed.empty());
  EXPECT_FALSE(view.runs(TimerId::Timer1)) << "the window stays";
}

TEST_F(NoteDeleting, onANewNoteBothDeletesDoNothing) {
  note("a.txt", "||x");
  start();
  click(ButtonId::Buttons_main_01);
  view.setText(FieldId::Text2, L"typed");
  plainDelete();
  fastDelete();
  EXPECT_TRUE(view.questions.empty());
  EXPECT_TRUE(writer.removed.empty());
  EXPECT_EQ(contentOf("a.txt"), "||x");
  EXPECT_EQ(text(FieldId::Text2), L"typed");
}

TEST_F(NoteDeleting, fastDeleteAsksAndCancelKeepsTheNoteAndTheWindow) {
  note("a.txt", "||x");
  start();
  view.answer = Answer::Cancel;
  fastDelete();
  ASSERT_EQ(view.questions.size(), 1U);
  EXPECT_EQ(view.questions[0],
            (FakeForm1View::Message{L"Delete", L"Are you sure you want delete this note ?"}));
  EXPECT_EQ(contentOf("a.txt"), "||x");
  EXPECT_FALSE(view.runs(TimerId::Timer1));
}

TEST_F(NoteDeleting, fastDeleteWithOkDeletesShowsAnotherNoteAndSendsTheWindowAway) {
  for (const char* name : {"a.txt", "b.txt"}) note(name, "||x");
  start();
  fastDelete();
  EXPECT_EQ(contentOf("a.txt"), std::nullopt);
  EXPECT_EQ(text(FieldId::Text1), L"b") << "the note at the same place of the list";
  EXPECT_TRUE(view.runs(TimerId::Timer1));
  while (view.runs(TimerId::Timer1)) tick(TimerId::Timer1);
  EXPECT_FALSE(view.visible);
}

TEST_F(NoteDeleting, fastDeleteDoesNotAskAUserWhoDoesNotWantIt) {
  note("a.txt", "||x");
  store.values[L"Sys/Fast_delete_msg"] = L"False";
  start();
  view.answer = Answer::Cancel;
  fastDelete();
  EXPECT_TRUE(view.questions.empty());
  EXPECT_EQ(contentOf("a.txt"), std::nullopt);
}

TEST_F(NoteDeleting, fastDeleteDeletesTheNoteThatItAskedAboutWhateverComesOnShowMeanwhile) {
  for (const char* name : {"a.txt", "b.txt"}) note(name, "||x");
  start();
  view.onAsk = [this] { next(); };
  fastDelete();
  EXPECT_EQ(contentOf("a.txt"), std::nullopt);
  EXPECT_EQ(contentOf("b.txt"), "||x");
}

TEST_F(NoteDeleting, whatCameOnShowDuringTheQuestionStaysThere) {
  for (const char* name : {"a.txt", "b.txt"}) note(name, "||x");
  start();
  view.onAsk = [this] { next(); };
  fastDelete();
  EXPECT_EQ(text(FieldId::Text1), L"b");
  EXPECT_FALSE(view.runs(TimerId::Timer1)) << "the window stays";
}

TEST_F(NoteDeleting, aFastDeleteRightAfterTheRefusalOfATooLargeNoteDeletesThatNote) {
  note("a.txt", "||x");
  note("b.txt", "||" + std::string(32766, 'b'));
  start();
  view.errors.clear();  // the reminders refused it too
  next();
  ASSERT_EQ(view.errors.size(), 1U);
  fastDelete();
  EXPECT_EQ(contentOf("b.txt"), std::nullopt);
  EXPECT_EQ(contentOf("a.txt"), "||x");
  EXPECT_EQ(text(FieldId::Text1), L"a");
}

TEST_F(NoteDeleting, aNoteThatIsGoneAlreadyCannotBeDeletedAndTheUserIsTold) {
  for (const ButtonId button : {ButtonId::Buttons_main_03, ButtonId::Buttons_Delete}) {
    note("a.txt", "||x");
    Form1 shown(ports());
    shown.Form_Load();
    std::filesystem::remove(folder.path() / "notes" / "a.txt");
    shown.Form_MouseDown(MouseButton::Left, middleOf(button));
    EXPECT_THROW(shown.mouseUp(MouseButton::Left, middleOf(button)), FileError);
  }
}

TEST_F(NoteDeleting, aNoteThatCannotBeDeletedStaysOnShow) {
  for (const char* name : {"a.txt", "b.txt"}) note(name, "||x");
  start();
  next();
  writer.refusesToRemove = true;
  EXPECT_THROW(plainDelete(), FileError);
  EXPECT_THROW(fastDelete(), FileError);
  EXPECT_EQ(contentOf("b.txt"), "||x");
  EXPECT_EQ(text(FieldId::Text1), L"b");
  EXPECT_FALSE(view.runs(TimerId::Timer1));
  writer.refusesToRemove = false;
  plainDelete();
  EXPECT_EQ(writer.removed, std::vector<std::string>{"b.txt"}) << "the next try is for it, too";
}

}  // namespace
}  // namespace kalvora
