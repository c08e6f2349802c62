#include "ReminderFixture.h"

namespace kalvora {
namespace {

using Played = std::vector<std::wstring>;

// Start-up.

TEST_F(Form1Reminders, aNoteDueTodayComesOutAtStartInsteadOfTheWindow) {
  note("a.txt", "||A");
  note("Rent.tx3", "21|||Pay it");
  for (const wchar_t* showAtStart : {L"True", L"False"}) {
    store.values[L"Graph/ShWatS"] = showAtStart;
    view.calls.clear();
    sounds.played.clear();
    Form1 start(ports());
    start.Form_Load();
    EXPECT_EQ(text(FieldId::Text2), L"Pay it");
    EXPECT_EQ(view.lastActivation, Activation::LeaveKeyboard);
    EXPECT_EQ(timesBroughtOut(), 1);
    EXPECT_EQ(sounds.played, Played{L"ring.wav"});
    EXPECT_EQ(putAwayAll(start), Titles{L"Rent"});
  }
}

TEST_F(Form1Reminders, theSoundComesBeforeTheWindowWhichMayFailToCome) {
  note("a.txt", "6|0|A");
  Played heardBefore;
  view.onShow = [&] { heardBefore = sounds.played; };
  form().Form_Load();
  EXPECT_EQ(timesBroughtOut(), 1);
  EXPECT_EQ(heardBefore, Played{L"ring.wav"});
}

TEST_F(Form1Reminders, monthlyNotesWithAdvanceDaysComeOutAtStartOnTheRightDates) {
  note("Rent.tx3", "20|6|2|Pay it");
  for (int day = 1; day <= 30; ++day) {
    clock.time.day = day;
    Form1 start(ports());
    start.Form_Load();
    const bool due = day >= 8 && day <= 20 && day % 2 == 0;
    EXPECT_EQ(putAwayAll(start), due ? Titles{L"Rent"} : Titles{}) << day;
  }
}

TEST_F(Form1Reminders, monthlyNotesComeBeforeThoseOfThisMinute) {
  note("a.txt", "6|0|A");
  note("Rent.tx3", "21|||Pay it");
  note("Birthday.tx4", "21|10|||Cake");
  form().Form_Load();
  expectReminder(L"Rent", L"Pay it");
  EXPECT_EQ(putAwayAll(), (Titles{L"Rent", L"Birthday", L"a"}));
}

TEST_F(Form1Reminders, aStartAtSecondZeroOfANotesMinuteQueuesItTwice) {
  note("a.txt", "7|30|A");
  setTime(7, 30, 0);
  form().Form_Load();
  expectReminder(L"a", L"A");
  EXPECT_EQ(putAwayAll(), Titles{L"a"});
  minuteCheckAt(7, 30, 1);
  EXPECT_EQ(putAwayAll(), Titles{L"a"});
}

TEST_F(Form1Reminders, aStartWithNothingDueLeavesTheWindowInBrowsing) {
  note("a.txt", "7|30|A");
  form().Form_Load();
  EXPECT_FALSE(view.visible);
  EXPECT_TRUE(sounds.played.empty());
  expectBrowsing(L"a");
}

TEST_F(Form1Reminders, aReminderThatComesOutDuringAMessageAtStartIsNotReplacedByTheNext) {
  note("a.tx3", "21|||A");
  note("b.tx3", "21|||B");
  note("large.tx3", std::string(32768, 'x'));
  view.onError = [this] { minuteCheckAt(6, 1); };
  form().Form_Load();
  expectReminder(L"a", L"A");
  settle();
  click(ButtonId::Buttons_Close);
  expectReminder(L"b", L"B");
  EXPECT_EQ(putAwayAll(), Titles{L"b"});
}

TEST_F(Form1Reminders, theMessageOfATooLargeNoteWritesNothingIntoTheReminderThatCameMeanwhile) {
  note("0.txt", std::string(32768, 'x'));
  note("Gym.txt", "6|1|Run");
  view.onError = [this] {
    minuteCheckAt(6, 0);
    std::filesystem::remove(folder.path() / "notes" / "Gym.txt");
    minuteCheckAt(6, 1);
    setTime(6, 2, 30);
  };
  form().Form_Load();
  EXPECT_EQ(text(FieldId::Text2), L"This note is gone.");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L""));
}

TEST_F(Form1Reminders, aNoteThatIsWrittenWhileAMessageHoldsTheStartUpRings) {
  note("0.txt", std::string(32768, 'x'));
  view.onError = [this] { note("Gym.txt", "6|5|Run"); };
  form().Form_Load();
  minuteCheckAt(6, 5);
  expectReminder(L"Gym", L"Run");
}

TEST_F(Form1Reminders, aFirstNoteThatIsTooLargeHoldsNoReminderUpWhileItsMessageStandsOpen) {
  note("0.txt", std::string(32768, 'x'));
  note("Gym.txt", "6|1|Run");
  note("a.tx3", "21|||A");
  note("b.tx4", "21|10|||B");
  view.onError = [this] {
    minuteCheckAt(6, 1);
    setTime(6, 2, 30);
  };
  form().Form_Load();
  expectReminder(L"a", L"A");
  for (const auto& [title, content] : {std::pair{L"b", L"B"}, std::pair{L"Gym", L"Run"}}) {
    settle();
    click(ButtonId::Buttons_Close);
    expectReminder(title, content);
  }
  EXPECT_EQ(putAwayAll(), Titles{L"Gym"});
}

TEST_F(Form1Reminders, aReminderWhoseFolderIsAwayWhenTheEditorIsClosedComesWithItsTitle) {
  note("Gym.tx1", "7|30|Run");
  form().Form_Load();
  std::filesystem::rename(folder.path() / "notes", folder.path() / "away");
  form().Update_All_Al();
  minuteCheckAt(7, 30);
  expectReminder(L"Gym", L"This note is gone.");
}

// The minute check.

TEST_F(Form1Reminders, aDailyNoteAt730ComesOutAt073001WithoutTakingTheKeyboard) {
  note("A.txt", "||first of the list");
  note("Gym.tx1", "7|30|Run");
  form().Form_Load();
  for (const int second : {58, 59}) minuteCheckAt(7, 29, second);
  minuteCheckAt(7, 30, 0);
  EXPECT_FALSE(view.visible);
  minuteCheckAt(7, 30, 1);
  expectReminder(L"Gym", L"Run");
  EXPECT_EQ(text(FieldId::Text3), L"7:30");
  EXPECT_EQ(view.lastActivation, Activation::LeaveKeyboard);
  EXPECT_EQ(sounds.played, Played{L"ring.wav"});
  settle();
  EXPECT_TRUE(view.visible);
  expectReminder(L"Gym", L"Run");
}

TEST_F(Form1Reminders, withSoundsOffAReminderComesOutSilently) {
  store.values[L"Sounds/Use_Sounds"] = L"False";
  note("Gym.tx1", "7|30|Run");
  form().Form_Load();
  minuteCheckAt(7, 30);
  expectReminder(L"Gym", L"Run");
  EXPECT_TRUE(sounds.played.empty());
}

TEST_F(Form1Reminders, theNotesOwnTitleDoesNotScrollOverTheReminder) {
  note("Gym.tx1", "7|30|Run");
  form().Form_Load();
  minuteCheckAt(7, 30);
  tick(TimerId::Poczekaj);
  for (int step = 0; step < 60; ++step) {
    tick(TimerId::scrool);
    ASSERT_TRUE(titleStripReads(L" REMINDER")) << step;
  }
}

TEST_F(Form1Reminders, whatFallsDueWhileTheWindowIsOutWaitsUntilItIsSentAway) {
  note("a.txt", "||A");
  note("Gym.tx1", "7|30|Run");
  form().Form_Load();
  openWindow();
  minuteCheckAt(7, 30);
  minuteCheckAt(7, 31);
  expectFields(Editing::Allowed);
  EXPECT_EQ(text(FieldId::Text1), L"a");
  EXPECT_TRUE(sounds.played.empty());
  click(ButtonId::Buttons_Close);
  expectReminder(L"Gym", L"Run");
  settle();
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(putAwayAll(), Titles{L"Gym"});
}

// Saving.

TEST_F(Form1Reminders, aSaveInTheMinuteOfANoteShowsItAtOnceAndTheTimerQueuesItAgain) {
  note("a.txt", "||A");
  form().Form_Load();
  openWindow();
  setTime(7, 30, 0);
  view.setText(FieldId::Text3, L"7:30");
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("a.txt"), "7|30|A");
  expectReminder(L"a", L"A");
  minuteCheckAt(7, 30, 1);
  EXPECT_EQ(putAwayAll(), (Titles{L"a", L"a"}));
}

TEST_F(Form1Reminders, aSavedNoteRingsAtItsTime) {
  note("a.txt", "||A");
  form().Form_Load();
  openWindow();
  view.setText(FieldId::Text3, L"7:5");
  click(ButtonId::Buttons_main_02);
  expectBrowsing(L"a");
  click(ButtonId::Buttons_Close);
  settle();
  minuteCheckAt(7, 4);
  EXPECT_FALSE(view.visible);
  minuteCheckAt(7, 5);
  expectReminder(L"a", L"A");
}

TEST_F(Form1Reminders, aSaveWithAReminderWaitingShowsIt) {
  note("a.txt", "||A");
  note("Gym.tx1", "7|30|Run");
  form().Form_Load();
  openWindow();
  minuteCheckAt(7, 30);
  setTime(7, 31, 30);
  click(ButtonId::Buttons_main_02);
  expectReminder(L"Gym", L"Run");
}

// Trouble.

TEST_F(Form1Reminders, aBrokenWeeklyNoteIsToldOnceAndTheOthersRing) {
  note("a.txt", "||A");
  note("Broken.tx2", "7|30|0|0|0|0|0|0|yes|x");
  note("Choir.tx2", "7|30|0|0|0|0|0|0|1|Sing");
  form().Form_Load();
  ASSERT_EQ(view.errors.size(), 1U);
  EXPECT_EQ(
      view.errors[0],
      (FakeForm1View::Message{
          L"Error!", L"These notes do not ring, because they cannot be read:\r\nBroken.tx2"}));
  for (int minute = 0; minute < 30; ++minute) minuteCheckAt(7, minute);
  form().Update_All_Al();
  minuteCheckAt(7, 30);
  expectReminder(L"Choir", L"Sing");
  EXPECT_EQ(view.errors.size(), 1U);
  EXPECT_TRUE(reporter.messages.empty());
}

TEST_F(Form1Reminders, aNoteThatVanishesBeforeItIsShownDoesNotKeepTheNextFromRinging) {
  note("A.txt", "||first of the list");
  note("Gym.txt", "7|30|Run");
  note("Pills.tx1", "7|30|Two of them");
  form().Form_Load();
  std::filesystem::remove(folder.path() / "notes" / "Gym.txt");
  minuteCheckAt(7, 30);
  expectReminder(L"Gym", L"This note is gone.");
  settle();
  click(ButtonId::Buttons_Close);
  expectReminder(L"Pills", L"Two of them");
  settle();
  click(ButtonId::Buttons_Close);
  expectBrowsing(L"A");
}

TEST_F(Form1Reminders, withoutItsFolderTheProgramRunsOnWithoutAMessageEveryMinute) {
  note("Gym.tx1", "7|30|Run");
  form().Form_Load();
  std::filesystem::remove_all(folder.path() / "notes");
  for (int minute = 0; minute < 60; ++minute) minuteCheckAt(7, minute);
  clock.time.weekday = 0;
  clock.time.day = 22;
  for (int minute = 0; minute < 60; ++minute) minuteCheckAt(0, minute);
  EXPECT_LE(view.errors.size(), 1U);
  EXPECT_TRUE(reporter.messages.empty());
  note("Gym.tx1", "7|30|Run");
  form().Update_All_Al();
  settle();
  click(ButtonId::Buttons_Close);
  settle();
  minuteCheckAt(7, 30);
  expectReminder(L"Gym", L"Run");
}

}  // namespace
}  // namespace kalvora
