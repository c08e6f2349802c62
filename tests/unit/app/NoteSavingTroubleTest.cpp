#include "Form1Fixture.h"
#include "fakes/SilentScrollTimers.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

constexpr std::wstring_view kOmega = L"one \x03A9";  // Code page 1252 has no omega.

/// Saves that go wrong or are declined: the user loses nothing.
class NoteSavingTrouble : public Form1Test {
 protected:
  NoteSavingTrouble() {
    note("a.txt", "||Alpha");
    note("b.txt", "||Bravo, which is longer");
  }

  void type(std::wstring_view title, std::wstring_view content) {
    view.setText(FieldId::Text1, title);
    view.setText(FieldId::Text2, content);
  }
  void save() { click(ButtonId::Buttons_main_02); }

  void expectNothingChanged() {
    EXPECT_EQ(contentOf("a.txt"), "||Alpha");
    EXPECT_EQ(contentOf("b.txt"), "||Bravo, which is longer");
    EXPECT_EQ(namesOnDisk(), (Names{L"a.txt", L"b.txt"}));
  }
  /// The file on show is still the first one of the list: a save that succeeds renames it, and what
  /// is first then comes on show.
  void expectTheNextTryToGoOnWhereTheFirstFailed() {
    view.setText(FieldId::Text3, L"");
    type(L"new", L"changed");
    save();
    EXPECT_EQ(contentOf("new.txt"), "||changed");
    EXPECT_EQ(namesOnDisk(), (Names{L"b.txt", L"new.txt"}));
    EXPECT_EQ(text(FieldId::Text1), L"b");
  }
  Names namesOnDisk() const { return files.files(folder.path() / "notes", L"*"); }
};

TEST_F(NoteSavingTrouble, aNoteThatCannotBeWrittenLeavesTheOldOneAndWhatTheUserTyped) {
  form().Form_Load();
  writer.refusesToWrite = true;
  for (const std::wstring_view title : {L"a", L"A", L"b", L"new"}) {
    type(title, L"changed");
    EXPECT_THROW(save(), FileError);
    expectNothingChanged();
    EXPECT_TRUE(writer.removed.empty());
    EXPECT_EQ(text(FieldId::Text1), title);
    EXPECT_EQ(text(FieldId::Text2), L"changed");
  }
  writer.refusesToWrite = false;
  expectTheNextTryToGoOnWhereTheFirstFailed();
}

TEST_F(NoteSavingTrouble, whereTheOldFileCannotGoWhatWasWrittenIsTakenBack) {
  form().Form_Load();
  writer.locked = "a.txt";
  for (const std::wstring_view title : {L"A", L"b", L"new"}) {
    type(title, L"changed");
    EXPECT_THROW(save(), FileError);
    expectNothingChanged();
    EXPECT_EQ(text(FieldId::Text1), title);
    EXPECT_EQ(text(FieldId::Text2), L"changed");
  }
  writer.locked.clear();
  expectTheNextTryToGoOnWhereTheFirstFailed();
}

TEST_F(NoteSavingTrouble, aTimeThatIsNoneIsNamedAndNothingIsWritten) {
  form().Form_Load();
  const std::vector<std::pair<std::wstring_view, std::wstring_view>> times = {
      {L"99999:30", L"The hour of the note's alarm: "},
      {L"seven:30", L"The hour of the note's alarm: "},
      {L"7:30:15", L"The minute of the note's alarm: "}};
  for (const auto& [time, named] : times) {
    type(L"a", L"changed");
    view.setText(FieldId::Text3, time);
    try {
      save();
      ADD_FAILURE() << "no error";
    } catch (const Failure& failure) {
      EXPECT_TRUE(failure.message().starts_with(named));
    }
    expectNothingChanged();
    EXPECT_EQ(text(FieldId::Text2), L"changed");
    EXPECT_EQ(text(FieldId::Text3), time);
  }
  expectTheNextTryToGoOnWhereTheFirstFailed();
}

TEST_F(NoteSavingTrouble, aNoteTooLargeToBeOpenedIsNotWrittenOver) {
  const std::string large(32768, 'x');
  note("large.txt", large);
  form().Form_Load();
  type(L"large", L"x");
  EXPECT_THROW(save(), Failure);
  EXPECT_EQ(contentOf("large.txt"), large);
  EXPECT_EQ(contentOf("a.txt"), "||Alpha");
}

TEST_F(NoteSavingTrouble, anotherNoteThatCannotBeReadIsNotWrittenOver) {
  form().Form_Load();
  files.unreadable = L"b.txt";
  type(L"b", L"x");
  EXPECT_THROW(save(), FileError);
  expectNothingChanged();
  files.unreadable.clear();
  expectTheNextTryToGoOnWhereTheFirstFailed();
}

TEST_F(NoteSavingTrouble, aMissingNotesFolderIsToldAndNotMade) {
  std::filesystem::remove_all(folder.path() / "notes");
  form().Form_Load();
  type(L"new", L"text");
  EXPECT_THROW(save(), FileError);
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "notes"));
  EXPECT_EQ(text(FieldId::Text2), L"text");
}

TEST_F(NoteSavingTrouble, charactersThatANoteCannotHoldAreAskedAboutBeforeTheyAreReplaced) {
  form().Form_Load();
  type(L"a", kOmega);
  view.answer = Answer::Cancel;
  save();
  ASSERT_EQ(view.questions.size(), 1U);
  EXPECT_EQ(view.questions[0].title, L"Save");
  expectNothingChanged();
  EXPECT_EQ(text(FieldId::Text2), kOmega);
  view.answer = Answer::Ok;
  save();
  EXPECT_EQ(contentOf("a.txt"), "||one ?");
}

TEST_F(NoteSavingTrouble, charactersThatANoteCanHoldAreNotAskedAbout) {
  form().Form_Load();
  type(L"a", L"caf\x00E9 \x20AC 5 \x2026");
  save();
  EXPECT_TRUE(view.questions.empty());
  EXPECT_EQ(contentOf("a.txt"), "||caf\xE9 \x80 5 \x85");
}

TEST_F(NoteSavingTrouble, aNoteThatComesOnShowWhileTheQuestionStandsOpenIsNotTakenForTheSavedOne) {
  form().Form_Load();
  type(L"new", kOmega);
  view.onAsk = [this] { click(ButtonId::Buttons_main_05); };
  save();
  EXPECT_EQ(contentOf("new.txt"), "||one ?");
  EXPECT_EQ(contentOf("b.txt"), "||Bravo, which is longer") << "it only came on show meanwhile";
  EXPECT_EQ(contentOf("a.txt"), std::nullopt) << "it was renamed";
}

/// A browser of its own, for the spare way of writing that no button reaches.
class SpareSaving : public Form1Test {
 protected:
  SpareSaving() {
    note("a.txt", "||Alpha");
    window_.wear(loadSkin(files, skinValues, folder.path() / "skins/One"));
    browser.refresh();
    browser.Odczytaj_na_przycisku();
    view.setText(FieldId::Text2, L"new");
    view.setText(FieldId::Text3, L"7:30");
    browser.alarmLine().begin();
    browser.alarmLine().AmPmLabel_Click();
  }

  void write(const std::string& title) {
    browser.zapisz_temporay_do_zmazania____________OooooooO(folder.path() / "notes" / title);
  }

 private:
  Settings settings_;
  SkinnedWindow window_;
  SilentScrollTimers scrollTimers_;
  TitleScroller scroller_{scrollTimers_};

 protected:
  NoteBrowser browser{{folder.path() / "notes", files, writer, codePage, copies},
                      clock,
                      dateTexts,
                      view,
                      settings_,
                      window_,
                      scroller_};
};

TEST_F(SpareSaving, writesWhatASaveWritesAndLeavesTheFileOfTheCurrentName) {
  write("b");
  EXPECT_EQ(contentOf("b.txt"), "19|30|new");
  EXPECT_EQ(contentOf("a.txt"), "||Alpha");
  EXPECT_TRUE(writer.removed.empty());
}

TEST_F(SpareSaving, withTheTitleUnlockedAnotherNotesTailStays) {
  note("b.txt", "19|30|something longer");
  write("b");
  EXPECT_EQ(contentOf("b.txt"), "19|30|newething longer");
}

TEST_F(SpareSaving, withTheTitleLockedThatFileIsDeletedFirstAndTheTitleUnlocked) {
  note("b.txt", "19|30|something longer");
  browser.setEditing(Editing::Locked);
  EXPECT_EQ(view.at(FieldId::Text1).editing, Editing::Locked);
  write("b");
  EXPECT_EQ(contentOf("b.txt"), "19|30|new");
  EXPECT_EQ(view.at(FieldId::Text1).editing, Editing::Allowed);
  write("b");
  EXPECT_EQ(writer.removed, (std::vector<std::string>{"b.txt"})) << "only while it was locked";
}

TEST_F(SpareSaving, withTheTitleLockedAFileThatIsGoneEndsIt) {
  browser.setEditing(Editing::Locked);
  EXPECT_THROW(write("b"), FileError);
  EXPECT_EQ(contentOf("b.txt"), std::nullopt);
}

TEST_F(SpareSaving, aTimeThatIsNoneDeletesNothing) {
  browser.setEditing(Editing::Locked);
  view.setText(FieldId::Text3, L"x");
  EXPECT_THROW(write("a"), ConversionError);
  EXPECT_EQ(contentOf("a.txt"), "||Alpha");
}

}  // namespace
}  // namespace kalvora
