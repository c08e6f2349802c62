#include <algorithm>

#include "Form1Fixture.h"
#include "skin/BitmapFont.h"

namespace kalvora {
namespace {

using Played = std::vector<std::wstring>;

/// Reminders in the whole program: where they come from, and by which ways they are dismissed. It
/// is Saturday, 21 November 2026; the window comes out rolled down.
class Form1Reminders : public Form1Test {
 protected:
  Form1Reminders() {
    store.values[L"Graph/WysRZF1"] = L"True";
    store.values[L"Sounds/Use_Sounds"] = L"True";
    store.values[L"Sounds/Snd_Alarm"] = L"ring.wav";
    store.values[L"Sys/AmPm"] = L"False";
    setTime(6, 0, 30);
  }

  void setTime(int hour, int minute, int second) {
    clock.time.hour = hour;
    clock.time.minute = minute;
    clock.time.second = second;
  }
  void minuteCheckAt(int hour, int minute, int second = 1) {
    setTime(hour, minute, second);
    tick(TimerId::Spr1m);
  }
  void doubleClickTray() { form().pichook_MouseMove(515); }
  /// The window out and at rest, showing the note of normal browsing.
  void openWindow() {
    doubleClickTray();
    settle();
  }

  const std::wstring& queued() { return form().alarms().queue().text(); }
  std::ptrdiff_t timesBroughtOut() const { return std::ranges::count(view.calls, "show"); }

  bool titleStripReads(std::wstring_view text) {
    const SkinnedWindow& window = form().window();
    for (int cell = 0; cell < window.rowLength(RowId::lit); ++cell) {
      const auto place = static_cast<std::size_t>(cell);
      const wchar_t character = place < text.size() ? text[place] : L' ';
      const int glyph = window.glyphAt(RowId::lit, cell);
      const bool blank = character == L' ' && glyph == kBlankGlyph;
      if (!blank && glyph != glyphOf(character)) return false;
    }
    return window.rowLength(RowId::lit) > 0;
  }

  void expectReminder(std::wstring_view title, std::wstring_view content) {
    EXPECT_TRUE(view.visible);
    EXPECT_EQ(text(FieldId::Text1), title);
    EXPECT_EQ(text(FieldId::Text2), content);
    EXPECT_TRUE(titleStripReads(L" REMINDER"));
    expectFields(Editing::Locked);
    expectMainButtons(false);
  }
  void expectBrowsing(std::wstring_view title) {
    EXPECT_EQ(text(FieldId::Text1), title);
    EXPECT_FALSE(form().alarms().onShow());
    expectFields(Editing::Allowed);
    expectMainButtons(true);
    tick(TimerId::scrool, 40);
    EXPECT_FALSE(titleStripReads(L" REMINDER"));
  }
  void expectFields(Editing editing) {
    for (const FieldId field : {FieldId::Text1, FieldId::Text2, FieldId::Text3}) {
      EXPECT_EQ(view.at(field).editing, editing) << static_cast<int>(field);
    }
  }
  void expectMainButtons(bool visible) {
    for (const ButtonId button : kAllButtons) {
      const bool main = button >= ButtonId::Buttons_main_01;
      EXPECT_EQ(form().window().buttonVisible(button), visible || !main)
          << static_cast<int>(button);
    }
  }
};

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
    EXPECT_EQ(start.alarms().pending(), 0);
  }
}

TEST_F(Form1Reminders, monthlyNotesWithAdvanceDaysComeOutAtStartOnTheRightDates) {
  note("Rent.tx3", "20|6|2|Pay it");
  for (int day = 1; day <= 30; ++day) {
    clock.time.day = day;
    Form1 start(ports());
    start.Form_Load();
    const bool due = day >= 8 && day <= 20 && day % 2 == 0;
    EXPECT_EQ(start.alarms().queue().text(), due ? L"Rent.tx3|" : L"") << day;
    EXPECT_EQ(start.alarms().onShow(), due) << day;
  }
}

TEST_F(Form1Reminders, monthlyNotesComeBeforeThoseOfThisMinute) {
  note("a.txt", "6|0|A");
  note("Rent.tx3", "21|||Pay it");
  note("Birthday.tx4", "21|10|||Cake");
  form().Form_Load();
  EXPECT_EQ(queued(), L"Rent.tx3|Birthday.tx4|a.txt|");
  expectReminder(L"Rent", L"Pay it");
}

TEST_F(Form1Reminders, aStartAtSecondZeroOfANotesMinuteQueuesItTwice) {
  note("a.txt", "7|30|A");
  setTime(7, 30, 0);
  form().Form_Load();
  expectReminder(L"a", L"A");
  EXPECT_EQ(queued(), L"a.txt|");
  minuteCheckAt(7, 30, 1);
  EXPECT_EQ(queued(), L"a.txt|a.txt|");
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
  EXPECT_EQ(form().alarms().pending(), 1);
  settle();
  click(ButtonId::Buttons_Close);
  expectReminder(L"b", L"B");
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
  EXPECT_EQ(form().alarms().pendingCountDisplay(), L"0");
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
  EXPECT_EQ(form().alarms().pending(), 1);
  click(ButtonId::Buttons_Close);
  expectReminder(L"Gym", L"Run");
  settle();
  EXPECT_TRUE(view.visible);
}

// The ways to dismiss one.

class Form1TwoReminders : public Form1Reminders {
 protected:
  void SetUp() override {
    note("A.txt", "||first of the list");
    note("Gym.txt", "7|30|Run");
    note("Pills.tx1", "7|30|Two of them");
    store.values[L"Sys/Fast_delete_msg"] = L"False";
    form().Form_Load();
    minuteCheckAt(7, 30);
    settle();
    expectReminder(L"Gym", L"Run");
  }
};

TEST_F(Form1TwoReminders, theCloseButtonBringsTheNextAndThenTheCurrentNoteBack) {
  click(ButtonId::Buttons_Close);
  expectReminder(L"Pills", L"Two of them");
  settle();
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(sounds.played, (Played{L"ring.wav", L"ring.wav"}));
  click(ButtonId::Buttons_Close);
  expectBrowsing(L"A");
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(Form1TwoReminders, fastDeleteDeletesTheReminderAndBringsTheNext) {
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(writer.removed, std::vector<std::string>{"Gym.txt"});
  expectReminder(L"Pills", L"Two of them");
  settle();
  EXPECT_TRUE(view.visible);
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(writer.removed, (std::vector<std::string>{"Gym.txt", "Pills.tx1"}));
  expectBrowsing(L"A");
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(Form1TwoReminders, aDoubleClickOnTheTrayIconBringsTheNextAndThenTheCurrentNoteBack) {
  doubleClickTray();
  expectReminder(L"Pills", L"Two of them");
  settle();
  EXPECT_TRUE(view.visible);
  doubleClickTray();
  expectBrowsing(L"A");
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(Form1TwoReminders, aRollDoesNotBringTheButtonsBack) {
  for (int roll = 0; roll < 2; ++roll) {
    click(ButtonId::Buttons_Down);
    settle();
  }
  expectReminder(L"Gym", L"Run");
}

TEST_F(Form1TwoReminders, aNewSkinKeepsTheReminderAsItIs) {
  const std::ptrdiff_t before = timesBroughtOut();
  form().Load_skin_to_form(SkinChange::WhileRunning);
  expectReminder(L"Gym", L"Run");
  EXPECT_EQ(timesBroughtOut(), before);
  EXPECT_EQ(form().alarms().pending(), 1);
}

TEST_F(Form1TwoReminders, theFirstNoteThatTheEditorLeavesBehindScrollsItsOwnTitle) {
  form().showFirstNote();
  EXPECT_EQ(text(FieldId::Text1), L"A");
  tick(TimerId::scrool);
  EXPECT_FALSE(titleStripReads(L" REMINDER"));
  EXPECT_TRUE(form().alarms().onShow());
  click(ButtonId::Buttons_Close);
  expectReminder(L"Pills", L"Two of them");
}

TEST_F(Form1TwoReminders, theRemindersOfLaterMinutesComeAfterThem) {
  note("Later.txt", "7|45|x");
  setTime(7, 31, 30);
  form().Update_All_Al();
  minuteCheckAt(7, 45);
  expectReminder(L"Gym", L"Run");
  click(ButtonId::Buttons_Close);
  settle();
  click(ButtonId::Buttons_Close);
  expectReminder(L"Later", L"x");
}

TEST_F(Form1Reminders, aDoubleClickOnTheTrayIconBringsAWaitingReminderOut) {
  note("A.txt", "||first of the list");
  note("Gym.tx1", "7|30|Run");
  form().Form_Load();
  openWindow();
  minuteCheckAt(7, 30);
  doubleClickTray();
  expectReminder(L"Gym", L"Run");
}

// Saving.

TEST_F(Form1Reminders, aSaveInTheMinuteOfANoteShowsItAtOnceAndTheTimerQueuesItAgain) {
  note("a.txt", "||A");
  form().Form_Load();
  openWindow();
  setTime(7, 30, 0);
  view.setFieldText(FieldId::Text3, L"7:30");
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("a.txt"), "7|30|A");
  expectReminder(L"a", L"A");
  EXPECT_EQ(queued(), L"a.txt|");
  minuteCheckAt(7, 30, 1);
  EXPECT_EQ(queued(), L"a.txt|a.txt|");
}

TEST_F(Form1Reminders, aSavedNoteRingsAtItsTime) {
  note("a.txt", "||A");
  form().Form_Load();
  openWindow();
  view.setFieldText(FieldId::Text3, L"7:5");
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(form().alarms().timeTable().text(), L"7:5-a.txt|");
  expectBrowsing(L"a");
  minuteCheckAt(7, 5);
  EXPECT_EQ(queued(), L"a.txt|");
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
  EXPECT_EQ(form().alarms().reminderName(), L"Gym.txt");
  expectFields(Editing::Locked);
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
