#include <gtest/gtest.h>

#include <algorithm>

#include <vector>

#include "alarms/AlarmCheck.h"
#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

using Calls = std::vector<std::wstring>;

/// How reminders are shown and dismissed.
class ReminderDisplay : public AlarmWorld {
 protected:
  Calls shownCalls(const std::wstring& name) const {
    return {L"come out", L"load " + name, L"title [ REMINDER] over " + name, L"lock"};
  }
  const Calls handedBack = {L"unlock", L"browse"};
};

TEST_F(ReminderDisplay, aDailyNoteAt730ComesOutAt073001) {
  folder.notes[L"Gym.tx1"] = "7|30|x";
  alarms.Update_All_Al();
  tickAt(7, 29, 59);
  tickAt(7, 30, 0);
  EXPECT_TRUE(host.takeCalls().empty());
  tickAt(7, 30, 1);
  EXPECT_EQ(host.takeCalls(), shownCalls(L"Gym.tx1"));
  EXPECT_TRUE(host.locked);
  EXPECT_EQ(alarms.pending(), 0);
  EXPECT_TRUE(alarms.hasReminders());
}

TEST_F(ReminderDisplay, twoNotesOfOneMinuteComeOneAfterTheOtherInTableOrder) {
  folder.notes[L"a.tx2"] = "7|30|1|1|1|1|1|1|1|";
  folder.notes[L"b.tx1"] = "7|30|";
  folder.notes[L"c.txt"] = "7|30|";
  alarms.Update_All_Al();
  tickAt(7, 30, 1);
  EXPECT_EQ(host.takeCalls(), shownCalls(L"c.txt"));
  EXPECT_EQ(alarms.pending(), 2);
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.takeCalls(), shownCalls(L"b.tx1"));
  EXPECT_EQ(alarms.pending(), 1);
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.takeCalls(), shownCalls(L"a.tx2"));
  EXPECT_TRUE(alarms.hasReminders());
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.takeCalls(), handedBack);
  EXPECT_FALSE(host.locked);
  EXPECT_FALSE(alarms.hasReminders());
}

TEST_F(ReminderDisplay, withNothingPendingTheWindowIsInNormalBrowsing) {
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.takeCalls(), handedBack);
  EXPECT_FALSE(alarms.hasReminders());
  EXPECT_EQ(alarms.pending(), 0);
}

TEST_F(ReminderDisplay, startingWithNothingDueRaisesNoReminder) {
  folder.notes[L"Gym.tx1"] = "7|30|x";
  alarms.Update_All_Al_komp();
  alarms.Update_All_Al();
  alarms.Sprawdzaj_alarmy();
  alarms.Sprawdz_jeden_alarm();
  EXPECT_FALSE(alarms.hasReminders());
}

TEST_F(ReminderDisplay, startingWithOneNoteDueRaisesIt) {
  folder.notes[L"Rent.tx3"] = "2|||x";
  alarms.Update_All_Al_komp();
  alarms.Update_All_Al();
  alarms.Sprawdzaj_alarmy();
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.takeCalls(), shownCalls(L"Rent.tx3"));
  EXPECT_TRUE(alarms.hasReminders());
}

TEST_F(ReminderDisplay, aNoteDeletedBeforeItIsShownIsHandedOverAsItIs) {
  folder.notes[L"Gym.tx1"] = "7|30|x";
  folder.notes[L"Run.tx1"] = "7|30|x";
  alarms.Update_All_Al();
  folder.notes.clear();
  tickAt(7, 30, 1);
  EXPECT_EQ(host.takeCalls(), shownCalls(L"Gym.tx1"));
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.takeCalls(), shownCalls(L"Run.tx1"));
}

TEST_F(ReminderDisplay, aFolderThatDisappearsKeepsWhatIsQueued) {
  folder.notes[L"Gym.tx1"] = "6|0|x";
  alarms.Update_All_Al();
  folder.notes.clear();
  alarms.Update_All_Al();
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.takeCalls(), shownCalls(L"Gym.tx1"));
  EXPECT_EQ(rang(), Names{L"Gym.tx1"}) << "the second update found nothing";
}

// Host calls that let other events in before they return.

class ReminderReentry : public ReminderDisplay {
 protected:
  void SetUp() override {
    folder.notes[L"a.txt"] = "7|30|";
    folder.notes[L"b.txt"] = "7|30|";
    alarms.Update_All_Al();
  }
  /// Runs an action once, while the named call runs.
  void onceDuring(const std::wstring& call, std::function<void()> action) {
    host.during = [this, call, action = std::move(action)](const std::wstring& running) {
      if (running != call) return;
      const std::function<void()> run = action;
      host.during = nullptr;
      run();
    };
  }
};

TEST_F(ReminderReentry, theNextTickOfTheSameSecondChecksNothingAgain) {
  onceDuring(L"load a.txt", [this] { tickAt(7, 30, 1); });
  tickAt(7, 30, 1);
  EXPECT_EQ(host.onShow, L"a.txt");
  EXPECT_EQ(rang(), (Names{L"a.txt", L"b.txt"}));
}

TEST_F(ReminderReentry, aReminderDismissedWhileItLoadsLeavesTheNextOnShow) {
  onceDuring(L"load a.txt", [this] { alarms.Sprawdz_jeden_alarm(); });
  tickAt(7, 30, 1);
  EXPECT_EQ(host.calls.back(), L"lock");
  EXPECT_EQ(host.onShow, L"b.txt");
  EXPECT_EQ(std::ranges::count(host.calls, L"title [ REMINDER] over a.txt"), 0);
  EXPECT_EQ(std::ranges::count(host.calls, L"title [ REMINDER] over b.txt"), 1);
  EXPECT_TRUE(host.locked);
}

TEST_F(ReminderReentry, theLastReminderDismissedWhileItLoadsLeavesTheWindowInBrowsing) {
  tickAt(7, 30, 1);
  onceDuring(L"load b.txt", [this] { alarms.Sprawdz_jeden_alarm(); });
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.calls.back(), L"browse");
  EXPECT_FALSE(host.locked);
  EXPECT_FALSE(alarms.hasReminders());
}

TEST_F(ReminderReentry, remindersDismissedWhileTheWindowComesUpAreNotTakenTwice) {
  onceDuring(L"come out", [this] {
    alarms.Sprawdz_jeden_alarm();
    alarms.Sprawdz_jeden_alarm();
    alarms.Sprawdz_jeden_alarm();
  });
  tickAt(7, 30, 1);
  EXPECT_EQ(alarms.pending(), 0);
  EXPECT_EQ(host.calls.back(), L"browse");
  EXPECT_EQ(rang(), (Names{L"a.txt", L"b.txt"}));
}

TEST_F(ReminderReentry, theTimeTableIsReadyAndCheckedBeforeTheUserIsToldOfAFault) {
  folder.notes[L"c.txt"] = std::string(32768, 'x');
  setTime(7, 30, 30);
  std::int16_t pendingThen = 0;
  onceDuring(L"Error! The file is too large to open!", [&] { pendingThen = alarms.pending(); });
  alarms.Update_All_Al();
  EXPECT_EQ(pendingThen, 2);
}

TEST_F(ReminderReentry, aRebuildWhileAFaultIsToldIsKept) {
  folder.notes[L"c.txt"] = std::string(32768, 'x');
  onceDuring(L"Error! The file is too large to open!", [this] {
    folder.notes = {{L"d.txt", "9|0|"}};
    alarms.Update_All_Al();
  });
  alarms.Update_All_Al();
  EXPECT_EQ(rangAt(7, 30), Names{});
  EXPECT_EQ(rangAt(9, 0), Names{L"d.txt"});
}

TEST_F(ReminderReentry, aFailureWhileANoteLoadsLosesThatReminderAlone) {
  onceDuring(L"load a.txt", [] { throw Failure(L"broken"); });
  EXPECT_THROW(tickAt(7, 30, 1), Failure);
  tickAt(7, 30, 1);
  EXPECT_TRUE(alarms.hasReminders());
  host.takeCalls();
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.takeCalls(), shownCalls(L"b.txt"));
  EXPECT_EQ(rang(), (Names{L"a.txt", L"b.txt"}));
}

}  // namespace
}  // namespace kalvora
