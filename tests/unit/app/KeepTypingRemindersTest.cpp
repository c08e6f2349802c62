// Reminders and questions in the way of a note that is left, for who wants it saved.

#include "KeepTypingFixture.h"

namespace kalvora {
namespace {

class KeepTypingReminders : public KeepTypingFixture {
 protected:
  void SetUp() override {
    note("Gym.tx2", kRingsAtSeven);
    start();
  }
  /// The reminder of the note on show comes due; while the window is out it waits.
  void gymIsDue() { minuteCheckAt(7, 5); }
  void turn() { click(ButtonId::Buttons_main_05); }
  void save() { click(ButtonId::Buttons_main_02); }
  void startNew() { click(ButtonId::Buttons_main_01); }

  static constexpr std::string_view kRingsAtSeven = "07|5|1|1|1|1|1|1|1|Mat";
  static constexpr std::string_view kTyped = "07|5|1|1|1|1|1|1|1|Mat and towel";
  const std::vector<std::string> kAtFirst = {"Before.txt", "Gym.tx2", "Zoo.txt"};
};

TEST_F(KeepTypingReminders, theFastBinDeletesWhatIsTypedThoughAReminderWaits) {
  typeText(L"Mat and towel");
  minuteCheckAt(9, 40);
  click(ButtonId::Buttons_Delete);
  settle();
  expectReminder(L"Zoo", L"one behind");
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Zoo.txt"}));
  EXPECT_EQ(draftCount(), 1U);
  form().Koniec_Kalvora();
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Zoo.txt"}));
}

TEST_F(KeepTypingReminders, aWaitingReminderFollowsTheNameThatHidingTheWindowGives) {
  gymIsDue();
  typeTitle(L"Sport");
  click(ButtonId::Buttons_Close);
  settle();
  expectReminder(L"Sport", L"Mat");
}

TEST_F(KeepTypingReminders, whatIsTypedWhileTheWindowSlidesOutIsSavedAndRings) {
  click(ButtonId::Buttons_Close);
  ASSERT_TRUE(view.runs(TimerId::Timer1));
  typeText(L"Mat and towel");
  typeTime(L"6:45");
  settle();
  ASSERT_FALSE(view.visible);
  EXPECT_EQ(contentOf("Gym.tx2"), "6|45|1|1|1|1|1|1|1|Mat and towel");
  minuteCheckAt(6, 45);
  settle();
  expectReminder(L"Gym", L"Mat and towel");
}

TEST_F(KeepTypingReminders, aHiddenNoteThatIsSavedLateGetsItsNameBeforeItsReminder) {
  click(ButtonId::Buttons_Close);
  typeTitle(L"Sport");
  writer.refusesToWrite = true;
  settle();
  ASSERT_EQ(contentOf("Gym.tx2"), kRingsAtSeven);
  writer.refusesToWrite = false;
  gymIsDue();
  settle();
  expectReminder(L"Sport", L"Mat");
}

TEST_F(KeepTypingReminders, whatTheUserLeavesUnsavedIsNotSavedLater) {
  note("Yoga.tx2", "|||||||||breath");
  typeTitle(L"Yoga");
  for (const bool ends : {false, true}) {
    others.mayLeave = false;
    form().Koniec_Kalvora();
    ASSERT_FALSE(view.unloaded);
    ends ? form().endWithSession() : form().saveTyped();
    EXPECT_EQ(contentOf("Yoga (2).tx2"), std::nullopt);
    EXPECT_EQ(contentOf("Gym.tx2"), kRingsAtSeven);
    EXPECT_EQ(draftCount(), 1U);
  }
  EXPECT_EQ(view.questions.size(), 1U);
}

TEST_F(KeepTypingReminders, afterThatMoreTypingIsAskedAboutAgain) {
  note("Yoga.tx2", "|||||||||breath");
  typeTitle(L"Yoga");
  others.mayLeave = false;
  form().Koniec_Kalvora();
  typeText(L"more");
  form().Koniec_Kalvora();
  EXPECT_EQ(view.questions.size(), 2U);
}

TEST_F(KeepTypingReminders, newLeavesNoTimeThatRings) {
  startNew();
  EXPECT_EQ(text(FieldId::Text3), L"");
  typeText(L"Bread");
  turn();
  EXPECT_EQ(contentOf("Bread.txt"), "||Bread");
}

TEST_F(KeepTypingReminders, aPageWithoutWordsIsNotSavedInAnyWay) {
  startNew();
  guard.run([this] { save(); });
  const std::vector<std::wstring> kTold = {
      L"There is nothing to save yet: give it a name or words."};
  EXPECT_EQ(reporter.messages, kTold);
  EXPECT_EQ(noteNames(), kAtFirst);
  for (const bool bySave : {true, false}) {
    startNew();
    typeTime(L"8:00");
    typeText(L" \r\n");
    guard.run([&] { bySave ? save() : turn(); });
    EXPECT_EQ(reporter.messages.size(), 2U) << "turning a page tells nothing";
    EXPECT_EQ(noteNames(), kAtFirst);
  }
  form().endWithSession();
  EXPECT_EQ(noteNames(), kAtFirst);
}

TEST_F(KeepTypingReminders, wordsBehindABarAreAskedAboutAndStayADraft) {
  typeText(L"Mat | towel");
  view.answer = Answer::Cancel;
  turn();
  EXPECT_EQ(text(FieldId::Text2), L"Mat | towel");
  EXPECT_EQ(contentOf("Gym.tx2"), kRingsAtSeven);
  view.answer = Answer::Ok;
  turn();
  ASSERT_EQ(view.questions.size(), 2U);
  EXPECT_TRUE(view.questions[1].text.starts_with(L"The text has characters that a note cannot"));
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|1|1|1|1|1|1|1|Mat ? towel");
  click(ButtonId::Buttons_main_04);
  EXPECT_EQ(text(FieldId::Text2), L"Mat ? towel");
  ASSERT_EQ(draftCount(), 1U);
  const std::vector<SafetyCopy> all = copies.newestFirst();
  EXPECT_TRUE(
      copies.read(*std::ranges::find_if(all, &SafetyCopy::isDraft)).ends_with("Mat | towel"));
}

TEST_F(KeepTypingReminders, wordsBehindABarAreADraftWhereNobodyIsThere) {
  typeText(L"Mat | towel");
  form().saveTyped();
  EXPECT_EQ(contentOf("Gym.tx2"), kRingsAtSeven);
  EXPECT_EQ(text(FieldId::Text2), L"Mat | towel");
  EXPECT_EQ(draftCount(), 1U);
}

TEST_F(KeepTypingReminders, withoutTheWishANoteThatIsWrittenWaitsForTheTimeTable) {
  note("Gym.tx2", kRingsAtSeven);
  store.values[L"Comfort/Keep_typing"] = L"False";
  Form1 other(ports());
  other.Form_Load();
  const std::ptrdiff_t before = timesBroughtOut();
  note("Gym.tx2", "6|45|1|1|1|1|1|1|1|Mat");
  other.noteWritten(L"Gym.tx2");
  setTime(6, 45, 1);
  other.timerTick(TimerId::Spr1m);
  EXPECT_EQ(timesBroughtOut(), before);
}

class KeepTypingQuestions : public KeepTypingReminders {
 protected:
  KeepTypingQuestions() { store.values[L"Comfort/Ring_while_out"] = L"True"; }
  /// A reminder comes while the next question is open.
  void ringDuringQuestion(int hour, int minute) {
    view.onAsk = [this, hour, minute] {
      view.onAsk = nullptr;
      minuteCheckAt(hour, minute);
    };
  }
};

TEST_F(KeepTypingQuestions, aReminderOfTheSameNoteDuringTheQuestionIsNotPassedOver) {
  typeText(L"Mat and towel");
  writer.refusesToWrite = true;
  ringDuringQuestion(7, 5);
  turn();
  expectReminder(L"Gym", L"Mat");
  writer.refusesToWrite = false;
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text2), L"Mat and towel");
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), kTyped);
}

TEST_F(KeepTypingQuestions, oneDuringTheQuestionAboutLettersIsNotPassedOverEither) {
  typeTitle(L"Sport");
  typeText(L"Mat \x4E2D");
  ringDuringQuestion(7, 5);
  turn();
  expectReminder(L"Sport", L"Mat");
  EXPECT_EQ(contentOf("Sport.tx2"), "07|5|1|1|1|1|1|1|1|Mat ?");
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text1), L"Sport");
  typeText(L"Mat and towel");
  turn();
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Sport.tx2", "Zoo.txt"}));
  EXPECT_EQ(contentOf("Sport.tx2"), kTyped);
}

TEST_F(KeepTypingQuestions, oneOfAnotherNoteIsNotEither) {
  typeTitle(L"Sport");
  typeText(L"Mat \x4E2D");
  ringDuringQuestion(9, 40);
  turn();
  expectReminder(L"Zoo", L"one behind");
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text1), L"Sport");
  EXPECT_EQ(text(FieldId::Text2), L"Mat ?");
  form().Koniec_Kalvora();
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Sport.tx2", "Zoo.txt"}));
}

TEST_F(KeepTypingQuestions, aSaveThatFailsBehindAReminderLosesNothing) {
  typeText(L"Mat \x4E2D");
  view.onAsk = [this] {
    view.onAsk = nullptr;
    minuteCheckAt(7, 5);
    writer.refusesToWrite = true;
  };
  turn();
  expectReminder(L"Gym", L"Mat");
  EXPECT_EQ(view.questions.size(), 1U);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text2), L"Mat \x4E2D");
}

}  // namespace
}  // namespace kalvora
