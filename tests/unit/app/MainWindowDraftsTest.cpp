// What is typed in the main window and not saved survives every way of leaving it.

#include "unit/app/ReminderFixture.h"

namespace kalvora {
namespace {

using Drafts = std::vector<std::string>;

class MainWindowDrafts : public Form1Reminders {
 protected:
  MainWindowDrafts() {
    note("a.txt", "7|30|Alpha");
    note("b.txt", "8|15|Bravo");
  }

  /// The window out, with the first note on show.
  void start() {
    form().Form_Load();
    openWindow();
  }
  /// What was left to be told of drafts.
  void tell() {
    guard.run([this] { tick(TimerId::Date_Update); });
  }
  void type(std::wstring_view content) {
    view.setText(FieldId::Text2, content);
    form().Text2_Change();
  }
  /// "Name|bytes" of every draft, the newest first.
  Drafts drafts() const {
    Drafts found;
    for (const SafetyCopy& copy : copies.newestFirst()) {
      if (!copy.isDraft) continue;
      EXPECT_EQ(copy.kind, NoteKind::Fast);
      found.push_back(std::filesystem::path(copy.name).string() + "|" + copies.read(copy));
    }
    return found;
  }
  const Drafts kTyped = {"a|7|30|typed"};
};

TEST_F(MainWindowDrafts, turningThePageKeepsWhatWasTyped) {
  for (const ButtonId arrow : {ButtonId::Buttons_main_05, ButtonId::Buttons_main_04}) {
    start();
    type(L"typed");
    click(arrow);
    EXPECT_EQ(drafts(), kTyped) << static_cast<int>(arrow);
    std::filesystem::remove_all(folder.path() / "backup");
  }
  EXPECT_EQ(contentOf("a.txt"), "7|30|Alpha");
}

TEST_F(MainWindowDrafts, eachFieldCounts) {
  start();
  view.setText(FieldId::Text1, L"renamed");
  click(ButtonId::Buttons_main_05);
  click(ButtonId::Buttons_main_04);
  view.setText(FieldId::Text3, L"7:45");
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(drafts(), (Drafts{"renamed|7|30|Alpha", "a|7|45|Alpha"}));
}

TEST_F(MainWindowDrafts, theHalfOfTheDayCounts) {
  store.values[L"Sys/AmPm"] = L"True";
  start();
  form().AmPmLabel_Click();
  EXPECT_TRUE(view.runs(TimerId::Draft));
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(drafts(), Drafts{"a|19|30|Alpha"});
}

TEST_F(MainWindowDrafts, newKeepsWhatWasTyped) {
  start();
  type(L"typed");
  click(ButtonId::Buttons_main_01);
  EXPECT_EQ(drafts(), kTyped);
  click(ButtonId::Buttons_main_01);
  EXPECT_EQ(drafts(), kTyped) << "an untouched new note is none";
}

TEST_F(MainWindowDrafts, deletingKeepsWhatWasTyped) {
  for (const ButtonId button : {ButtonId::Buttons_main_03, ButtonId::Buttons_Delete}) {
    note("a.txt", "7|30|Alpha");
    start();
    type(L"typed");
    click(button);
    EXPECT_EQ(drafts(), kTyped) << static_cast<int>(button);
    std::filesystem::remove_all(folder.path() / "backup");
  }
}

TEST_F(MainWindowDrafts, sendingTheWindowAwayAndBringingItBackKeepsWhatWasTyped) {
  start();
  type(L"typed");
  click(ButtonId::Buttons_Close);
  settle();
  openWindow();
  EXPECT_EQ(text(FieldId::Text2), L"Alpha");
  EXPECT_EQ(drafts(), kTyped);
}

TEST_F(MainWindowDrafts, theTrayIconKeepsWhatWasTyped) {
  start();
  type(L"typed");
  doubleClickTray();
  settle();
  openWindow();
  EXPECT_EQ(drafts(), kTyped);
}

TEST_F(MainWindowDrafts, aReminderThatComesOverItKeepsWhatWasTyped) {
  start();
  type(L"typed");
  click(ButtonId::Buttons_Close);
  settle();
  minuteCheckAt(8, 15);
  expectReminder(L"b", L"Bravo");
  EXPECT_EQ(drafts(), kTyped);
}

TEST_F(MainWindowDrafts, aReminderOfANoteThatVanishedKeepsWhatWasTyped) {
  start();
  type(L"typed");
  minuteCheckAt(8, 15);
  std::filesystem::remove(folder.path() / "notes" / "b.txt");
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text1), L"b");
  EXPECT_EQ(drafts(), kTyped);
}

TEST_F(MainWindowDrafts, closingTheEditorKeepsWhatWasTyped) {
  start();
  type(L"typed");
  form().showFirstNote();
  EXPECT_EQ(drafts(), kTyped);
}

TEST_F(MainWindowDrafts, theEndOfTheProgramKeepsWhatWasTypedHereAndInTheOtherWindows) {
  start();
  type(L"typed");
  form().Koniec_Kalvora();
  EXPECT_EQ(drafts(), kTyped);
  EXPECT_EQ(others.keeps, 1);
}

TEST_F(MainWindowDrafts, aSkinThatEndsTheProgramKeepsWhatWasTyped) {
  start();
  type(L"typed");
  std::filesystem::remove_all(folder.path() / "skins");
  form().Load_skin_to_form(SkinChange::WhileRunning);
  EXPECT_TRUE(view.unloaded);
  EXPECT_EQ(drafts(), kTyped);
  EXPECT_EQ(others.keeps, 1);
}

TEST_F(MainWindowDrafts, aNewNoteIsKeptUnderItsTitle) {
  start();
  click(ButtonId::Buttons_main_01);
  view.setText(FieldId::Text1, L"Shopping");
  type(L"Milk");
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(drafts(), Drafts{"Shopping|7|30|Milk"});
}

TEST_F(MainWindowDrafts, withoutNotesTheEmptySheetIsKeptTooOnceTypedIn) {
  std::filesystem::remove_all(folder.path() / "notes");
  start();
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(drafts(), Drafts{});
  type(L"typed");
  click(ButtonId::Buttons_main_05);
  EXPECT_EQ(drafts(), Drafts{"Untiled|||typed"});
}

TEST_F(MainWindowDrafts, aSaveNeedsNoDraftAndTakesTheOneThereWas) {
  start();
  type(L"typed");
  tick(TimerId::Draft);
  ASSERT_EQ(drafts(), kTyped);
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("a.txt"), "7|30|typed");
  EXPECT_EQ(drafts(), Drafts{});
}

TEST_F(MainWindowDrafts, aSaveThatFailsKeepsWhatWasTyped) {
  start();
  type(L"typed");
  writer.refusesToWrite = true;
  EXPECT_THROW(click(ButtonId::Buttons_main_02), FileError);
  EXPECT_EQ(drafts(), kTyped);
  view.setText(FieldId::Text3, L"7:30:15");
  EXPECT_THROW(click(ButtonId::Buttons_main_02), ConversionError);
  EXPECT_EQ(drafts(), Drafts{"a|||7:30:15\r\ntyped"});
}

TEST_F(MainWindowDrafts, aSaveThatTheUserDeclinesKeepsEveryLetter) {
  start();
  type(L"\u65E5");
  view.answer = Answer::Cancel;
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(drafts(), Drafts{"a|7|30|\xEF\xBB\xBF\xE6\x97\xA5"});
  view.answer = Answer::Ok;
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("a.txt"), "7|30|?");
  EXPECT_EQ(drafts(), Drafts{"a|7|30|\xEF\xBB\xBF\xE6\x97\xA5"});
}

TEST_F(MainWindowDrafts, typingIsKeptEveryFewSecondsInOneFile) {
  start();
  EXPECT_FALSE(view.runs(TimerId::Draft)) << "nothing is typed yet";
  type(L"t");
  EXPECT_EQ(view.timers[TimerId::Draft], 3000);
  tick(TimerId::Draft);
  EXPECT_FALSE(view.runs(TimerId::Draft));
  EXPECT_EQ(drafts(), Drafts{"a|7|30|t"});
  ++clock.time.second;
  type(L"typed");
  EXPECT_TRUE(view.runs(TimerId::Draft));
  tick(TimerId::Draft);
  EXPECT_EQ(drafts(), kTyped);
}

TEST_F(MainWindowDrafts, typingOnDoesNotPutTheTimerOff) {
  start();
  type(L"t");
  view.timers[TimerId::Draft] = 1;
  type(L"ty");
  EXPECT_EQ(view.timers[TimerId::Draft], 1);
}

TEST_F(MainWindowDrafts, whatIsTypedBeforeAnyNoteCouldBeShownIsKept) {
  note("a.txt", std::string(32768, 'x'));
  form().Form_Load();
  form().Nastepny_Load_Formy();
  view.setText(FieldId::Text1, L"New one");
  type(L"typed");
  tick(TimerId::Draft);
  EXPECT_EQ(drafts(), Drafts{"New one|||typed"});
}

TEST_F(MainWindowDrafts, thatNoneCanBeMadeHindersNothingAndIsToldOnceALittleLater) {
  folder.write("backup", "no folder");
  start();
  type(L"typed");
  tick(TimerId::Draft);
  EXPECT_TRUE(reporter.messages.empty());
  tell();
  ASSERT_EQ(reporter.messages.size(), 1U);
  EXPECT_TRUE(reporter.messages[0].starts_with(
      L"What is typed and not saved cannot be kept as a draft. Where it is left without being "
      L"saved, it is lost.\r\n\r\n"));
  EXPECT_TRUE(reporter.messages[0].ends_with(L"backup"));
  type(L"more");
  tick(TimerId::Draft);
  click(ButtonId::Buttons_main_05);
  tell();
  EXPECT_EQ(reporter.messages.size(), 1U);
  EXPECT_EQ(text(FieldId::Text1), L"b");
  type(L"in another note");
  tick(TimerId::Draft);
  tell();
  EXPECT_EQ(reporter.messages.size(), 2U);
}

TEST_F(MainWindowDrafts, onceOneWasKeptTheNextFaultIsToldAgain) {
  folder.write("backup", "no folder");
  start();
  type(L"typed");
  tick(TimerId::Draft);
  tell();
  std::filesystem::remove(folder.path() / "backup");
  type(L"more");
  tick(TimerId::Draft);
  tell();
  EXPECT_EQ(reporter.messages.size(), 1U);
  std::filesystem::remove_all(folder.path() / "backup");
  folder.write("backup", "no folder");
  type(L"again");
  tick(TimerId::Draft);
  tell();
  EXPECT_EQ(reporter.messages.size(), 2U);
}

TEST_F(MainWindowDrafts, oneThatCannotBeKeptIsTriedAgainThoughNothingMoreIsTyped) {
  folder.write("backup", "no folder");
  start();
  type(L"typed");
  tick(TimerId::Draft);
  EXPECT_EQ(view.timers[TimerId::Draft], 10000);
  std::filesystem::remove(folder.path() / "backup");
  tick(TimerId::Draft);
  EXPECT_EQ(drafts(), kTyped);
  EXPECT_FALSE(view.runs(TimerId::Draft));
}

TEST_F(MainWindowDrafts, newLettersDoNotWaitForTheNextTry) {
  folder.write("backup", "no folder");
  start();
  type(L"typ");
  tick(TimerId::Draft);
  type(L"typed");
  EXPECT_EQ(view.timers[TimerId::Draft], 3000);
}

TEST_F(MainWindowDrafts, theEndOfTheProgramTellsOfWhatItCouldNotKeep) {
  folder.write("backup", "no folder");
  start();
  type(L"typed");
  form().Koniec_Kalvora();
  EXPECT_EQ(reporter.messages.size(), 1U);
  EXPECT_TRUE(view.unloaded);
}

TEST_F(MainWindowDrafts, theEndOfTheSessionWaitsForNoAnswer) {
  folder.write("backup", "no folder");
  start();
  type(L"typed");
  form().endWithSession();
  EXPECT_TRUE(reporter.messages.empty());
  EXPECT_TRUE(view.unloaded);
}

}  // namespace
}  // namespace kalvora
