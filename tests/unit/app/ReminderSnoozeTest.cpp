// Snooze and Done, as the main window offers them.

#include "ReminderFixture.h"

namespace kalvora {
namespace {

class SnoozedReminder : public Form1Reminders {
 protected:
  static constexpr std::size_t kTomorrow = 3;
  static constexpr std::size_t kOnDate = 4;

  SnoozedReminder() {
    note("Gym.tx1", "7|30|Run");
    note("Run.tx1", "7|31|x");
    form().Form_Load();
    minuteCheckAt(7, 30);
    settle();
  }
  std::wstring stored() const {
    const auto found = store.values.find(L"Snooze/Put_off");
    return found == store.values.end() ? L"(never)" : found->second;
  }
  /// Another start of the program, in which the note rings.
  void ringIn(Form1& program) {
    setTime(7, 29, 30);
    program.Form_Load();
    setTime(7, 30, 1);
    program.timerTick(TimerId::Spr1m);
    settle(program);
  }
  void choose(std::size_t item) {
    view.menuChoice = item;
    form().act(MainCommand::SnoozeMenu);
    settle();
  }
};

TEST_F(SnoozedReminder, goesAndComesBackAfterTenMinutes) {
  expectReminder(L"Gym", L"Run");
  form().act(MainCommand::Snooze);
  settle();
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(stored(), L"2026-11-21 07:40|Gym.tx1|");
  minuteCheckAt(7, 39);
  EXPECT_FALSE(view.visible);
  minuteCheckAt(7, 40);
  settle();
  expectReminder(L"Gym", L"Run");
  form().act(MainCommand::Done);
  settle();
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(stored(), L"");
  expectBrowsing(L"Gym");
}

TEST_F(SnoozedReminder, comesBackAfterTheMinutesOfTheSetting) {
  for (const auto& [minutes, moment] : {std::pair{L"1", L"07:31"},
                                        {L"25", L"07:55"},
                                        {L"1440", L"07:30"},
                                        {L"0", L"07:40"},
                                        {L"1441", L"07:40"},
                                        {L"-5", L"07:40"},
                                        {L"soon", L"07:40"},
                                        {L"", L"07:40"}}) {
    store.values[L"Snooze/Snooze_minutes"] = minutes;
    store.values.erase(L"Snooze/Put_off");
    Form1 program(ports());
    ringIn(program);
    program.act(MainCommand::Snooze);
    settle(program);
    EXPECT_EQ(stored().substr(11, 5), moment) << minutes;
  }
  EXPECT_TRUE(view.errors.empty());
}

TEST_F(SnoozedReminder, letsTheNextOneComeAsTheCloseButtonDoes) {
  minuteCheckAt(7, 31);
  form().act(MainCommand::Snooze);
  settle();
  expectReminder(L"Run", L"x");
  form().act(MainCommand::Done);
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(SnoozedReminder, isLeftAloneWhileItSlidesIn) {
  form().act(MainCommand::Done);
  settle();
  minuteCheckAt(7, 31);
  form().act(MainCommand::Snooze);
  form().act(MainCommand::Done);
  form().act(MainCommand::SnoozeMenu);
  EXPECT_EQ(view.menusOpened, 0);
  settle();
  expectReminder(L"Run", L"x");
  EXPECT_EQ(stored(), L"(never)");
}

TEST_F(SnoozedReminder, thatIsNoneMakesTheKeysDoNothing) {
  form().act(MainCommand::Done);
  settle();
  openWindow();
  view.calls.clear();
  form().act(MainCommand::Snooze);
  form().act(MainCommand::Done);
  form().act(MainCommand::SnoozeMenu);
  settle();
  EXPECT_EQ(view.menusOpened, 0);
  EXPECT_TRUE(view.calls.empty());
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(stored(), L"(never)");
}

TEST_F(SnoozedReminder, hasAMenuInTheMiddleOfTheWindow) {
  view.menuChoice = std::nullopt;
  form().act(MainCommand::SnoozeMenu);
  settle();
  EXPECT_EQ(view.menu,
            (std::vector<std::wstring>{L"In &5 minutes", L"In &15 minutes", L"In &60 minutes",
                                       L"&Tomorrow at this time", L"&On a date\u2026"}));
  EXPECT_EQ(view.menuPlace, (Point{30, 20}));
  expectReminder(L"Gym", L"Run");
  EXPECT_EQ(stored(), L"(never)");
}

TEST_F(SnoozedReminder, comesBackAtWhatTheMenuSays) {
  const std::vector<std::wstring> moments = {L"2026-11-21 07:35", L"2026-11-21 07:45",
                                             L"2026-11-21 08:30", L"2026-11-22 07:30"};
  for (std::size_t item = 0; item < moments.size(); ++item) {
    store.values.erase(L"Snooze/Put_off");
    Form1 program(ports());
    ringIn(program);
    view.menuChoice = item;
    program.act(MainCommand::SnoozeMenu);
    settle(program);
    EXPECT_EQ(stored(), moments[item] + L"|Gym.tx1|");
    EXPECT_FALSE(view.visible);
  }
}

TEST_F(SnoozedReminder, comesBackOnADateThatIsStillToCome) {
  const LocalMinute now = minuteOf(clock.now());
  view.onMoment = [now](const MomentQuestion& question) {
    EXPECT_EQ(question.proposed, now + std::chrono::days(1));
    EXPECT_EQ(question.hourFormat, HourFormat::Hours24);
    EXPECT_NE(question.refusal(now), L"");
    EXPECT_NE(question.refusal(now - std::chrono::days(1)), L"");
    EXPECT_EQ(question.refusal(now + std::chrono::minutes(1)), L"");
    return std::optional(now + std::chrono::days(800));
  };
  choose(kOnDate);
  EXPECT_EQ(stored(), L"2029-01-29 07:30|Gym.tx1|");
  EXPECT_FALSE(view.visible);
}

TEST_F(SnoozedReminder, staysWhereNoDateIsChosen) {
  view.onMoment = [](const MomentQuestion&) { return std::nullopt; };
  choose(kOnDate);
  expectReminder(L"Gym", L"Run");
  EXPECT_EQ(stored(), L"(never)");
}

TEST_F(SnoozedReminder, thatWasPutAwayBehindTheMenuIsNotPutOff) {
  minuteCheckAt(7, 31);
  view.onMenu = [this] {
    form().act(MainCommand::Done);
    settle();
  };
  choose(kTomorrow);
  expectReminder(L"Run", L"x");
  EXPECT_EQ(stored(), L"(never)");
}

TEST_F(SnoozedReminder, thatCannotBeRememberedIsToldAtOnce) {
  store.refuses = true;
  form().act(MainCommand::Snooze);
  ASSERT_EQ(view.errors.size(), 1U);
  EXPECT_TRUE(view.errors.front().text.starts_with(L"What you put off cannot be remembered."));
}

TEST_F(SnoozedReminder, leavesAWindowThatWasOutBefore) {
  form().act(MainCommand::Done);
  settle();
  store.values[L"Comfort/Ring_while_out"] = L"True";
  Form1 program(ports());
  setTime(7, 29, 30);
  program.Form_Load();
  program.Nastepny_Load_Formy();
  settle(program);
  setTime(7, 30, 1);
  program.timerTick(TimerId::Spr1m);
  EXPECT_TRUE(reminderOnShow());
  program.act(MainCommand::Snooze);
  settle(program);
  EXPECT_TRUE(view.visible);
  EXPECT_FALSE(reminderOnShow());
  EXPECT_EQ(stored(), L"2026-11-21 07:40|Gym.tx1|");
}

}  // namespace
}  // namespace kalvora
