#include "ReminderFixture.h"

namespace kalvora {
namespace {

using Played = std::vector<std::wstring>;

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

TEST_F(Form1TwoReminders, oneThatIsJustComingOutIsNotPutAway) {
  click(ButtonId::Buttons_Close);
  click(ButtonId::Buttons_Close);
  form().closeByKeyboard();
  click(ButtonId::Buttons_Delete);
  minuteCheckAt(7, 31);
  expectReminder(L"Pills", L"Two of them");
  EXPECT_TRUE(writer.removed.empty());
  settle();
  click(ButtonId::Buttons_Close);
  expectBrowsing(L"A");
}

/// The window stands again as soon as it comes.
class Form1TwoRemindersAtOnce : public Form1TwoReminders {
 protected:
  Form1TwoRemindersAtOnce() { store.values[L"Graph/Win1_Jump"] = L"0"; }
};

TEST_F(Form1TwoRemindersAtOnce, theSecondPressOfADoubleClickIsNotForTheOneThatCame) {
  for (const ButtonId button : {ButtonId::Buttons_Close, ButtonId::Buttons_Delete}) {
    click(button);
    settle();
    const std::wstring shown = text(FieldId::Text1);
    form().Form_MouseDownAgain(MouseButton::Left, middleOf(button));
    form().mouseUp(MouseButton::Left, middleOf(button));
    settle();
    EXPECT_EQ(text(FieldId::Text1), shown);
  }
  EXPECT_EQ(writer.removed, std::vector<std::string>{"Pills.tx1"});
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
  EXPECT_EQ(putAwayAll(), (Titles{L"Gym", L"Pills"}));
}

TEST_F(Form1TwoReminders, theFirstNoteThatTheEditorLeavesBehindScrollsItsOwnTitle) {
  form().showFirstNote();
  EXPECT_EQ(text(FieldId::Text1), L"A");
  tick(TimerId::scrool);
  EXPECT_FALSE(titleStripReads(L" REMINDER"));
  click(ButtonId::Buttons_Close);
  expectReminder(L"Pills", L"Two of them");
  settle();
  click(ButtonId::Buttons_Close);
  // The editor came over it, perhaps unseen.
  expectReminder(L"Gym", L"Run");
}

TEST_F(Form1TwoReminders, anAnswerToAnOlderQuestionPutsNoneAwayThatCameMeanwhile) {
  for (int i = 0; i < 2; ++i) {
    click(ButtonId::Buttons_Close);
    settle();
  }
  openWindow();
  expectBrowsing(L"A");
  note("Late.txt", "7|45|x");
  setTime(7, 31, 30);
  form().Update_All_Al();
  const auto lateOneComes = [this] {
    doubleClickTray();
    settle();
    minuteCheckAt(7, 45);
    settle();
  };
  view.setText(FieldId::Text2, L"\u65E5");
  view.onAsk = lateOneComes;
  click(ButtonId::Buttons_main_02);
  expectReminder(L"Late", L"x");
  view.onAsk = nullptr;
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(writer.removed, std::vector<std::string>{"Late.txt"});
  EXPECT_EQ(putAwayAll(), Titles{L"Late"}) << "the save in its minute queued it once more";
  expectBrowsing(L"A");
}

/// A message that the note behind the reminders brings, while the window goes and a reminder comes.
class ReminderBehindAMessage : public Form1Reminders {
 protected:
  ReminderBehindAMessage() {
    note("A.txt", std::string(32768, 'x'));
    note("Gym.tx1", "7|30|Run");
    note("Late.tx1", "7|45|x");
    note("Waste.txt", "||x");
  }
  void whileItIsTold(std::function<void()> events) {
    view.onError = [events = std::move(events), told = false]() mutable {
      if (!std::exchange(told, true)) events();
    };
  }
  void lateOneComes() {
    doubleClickTray();
    settle();
    EXPECT_FALSE(view.visible);
    minuteCheckAt(7, 45);
    settle();
  }
  void expectLateOne() {
    settle();
    EXPECT_FALSE(view.errors.empty());
    expectReminder(L"Late", L"x");
    click(ButtonId::Buttons_Close);
    settle();
    EXPECT_FALSE(view.visible) << "it was dismissed when it was seen, and not before";
  }
};

TEST_F(ReminderBehindAMessage, isNotPutAwayByTheCloseOfTheOneBefore) {
  form().Form_Load();
  minuteCheckAt(7, 30);
  settle();
  expectReminder(L"Gym", L"Run");
  view.errors.clear();
  whileItIsTold([this] { lateOneComes(); });
  click(ButtonId::Buttons_Close);
  expectLateOne();
}

TEST_F(ReminderBehindAMessage, isNotPutAwayByAFastDelete) {
  store.values[L"Sys/Fast_delete_msg"] = L"False";
  form().Form_Load();
  minuteCheckAt(7, 30);
  settle();
  view.errors.clear();
  whileItIsTold([this] { lateOneComes(); });
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(contentOf("Gym.tx1"), std::nullopt);
  expectLateOne();
}

TEST_F(ReminderBehindAMessage, isNotPutAwayByAFastDeleteOfANoteOnShow) {
  store.values[L"Sys/Fast_delete_msg"] = L"False";
  form().Form_Load();
  openWindow();
  click(ButtonId::Buttons_main_05);
  for (int i = 0; i < 2; ++i) click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text1), L"Waste");
  view.errors.clear();
  std::filesystem::remove(folder.path() / "notes/Gym.tx1");
  std::filesystem::remove(folder.path() / "notes/Late.tx1");
  whileItIsTold([this] { lateOneComes(); });
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(contentOf("Waste.txt"), std::nullopt);
  settle();
  expectReminder(L"Late", L"This note is gone.");
}

TEST_F(ReminderBehindAMessage, thatFellDueMeanwhileComesAfterAFastDelete) {
  store.values[L"Sys/Fast_delete_msg"] = L"False";
  form().Form_Load();
  openWindow();
  for (int i = 0; i < 3; ++i) click(ButtonId::Buttons_main_05);
  ASSERT_EQ(text(FieldId::Text1), L"Waste");
  std::filesystem::remove(folder.path() / "notes/Gym.tx1");
  std::filesystem::remove(folder.path() / "notes/Late.tx1");
  whileItIsTold([this] { minuteCheckAt(7, 45); });
  click(ButtonId::Buttons_Delete);
  settle();
  EXPECT_FALSE(view.visible) << "the window goes, and so is no longer in the way";
  minuteCheckAt(7, 46);
  settle();
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(text(FieldId::Text1), L"Late");
}

TEST_F(ReminderBehindAMessage, aWindowThatWentMeanwhileDoesNotComeBack) {
  form().Form_Load();
  minuteCheckAt(7, 30);
  settle();
  whileItIsTold([this] {
    doubleClickTray();
    settle();
  });
  click(ButtonId::Buttons_Close);
  EXPECT_FALSE(view.visible);
  EXPECT_FALSE(view.runs(TimerId::Timer1));
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

}  // namespace
}  // namespace kalvora
