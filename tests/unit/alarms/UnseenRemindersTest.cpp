// A reminder that nobody can have seen yet is not lost to what comes after it.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

class UnseenReminders : public AlarmWorld {};

TEST_F(UnseenReminders, aReminderThatJustSlidesInIsNotReplacedByTheNextMinutes) {
  folder.notes = {{L"a.tx1", "7|30|"}, {L"b.tx1", "7|31|"}};
  alarms.Update_All_Al();
  tickAt(7, 30, 1);
  EXPECT_EQ(host.onShow, L"a.tx1");
  host.sliding = true;
  tickAt(7, 31, 1);
  EXPECT_EQ(host.onShow, L"a.tx1");
  EXPECT_EQ(alarms.pending(), 1);
  host.sliding = false;
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.onShow, L"b.tx1");
}

TEST_F(UnseenReminders, whatWaitsIsToldOnceEachAndNotWhatIsOnShow) {
  folder.notes = {{L"a.tx1", "7|30|"}, {L"b.tx1", "7|30|"}, {L"c.tx1", "7|31|"}};
  alarms.Update_All_Al();
  EXPECT_TRUE(alarms.notSeen().empty());
  tickAt(7, 30, 1);
  host.sliding = true;
  tickAt(7, 31, 1);
  const auto at = [this](int minute) {
    LocalTime time = clock.time;
    time.minute = minute;
    return minuteOf(time);
  };
  EXPECT_EQ(host.onShow, L"a.tx1");
  EXPECT_EQ(alarms.notSeen(), (std::vector<DueNote>{{at(30), L"b.tx1"}, {at(31), L"c.tx1"}}));
}

TEST_F(UnseenReminders, aWindowThatSlidesInWithoutAReminderLetsOneCome) {
  folder.notes = {{L"a.tx1", "7|30|"}};
  alarms.Update_All_Al();
  host.sliding = true;
  tickAt(7, 30, 1);
  EXPECT_EQ(host.onShow, L"a.tx1");
}

TEST_F(UnseenReminders, noReminderWaitsForTheMessageOfItsOwnCheck) {
  folder.notes = {{L"a.tx1", "0|0|"}};
  alarms.Update_All_Al();
  folder.notes[L"big.txt"] = std::string(32768, 'x');
  clock.time.weekday = kTuesday;
  tickAt(0, 0, 1);
  const std::vector<std::wstring> calls = host.takeCalls();
  ASSERT_FALSE(calls.empty());
  EXPECT_EQ(calls.front(), L"come out");
  EXPECT_EQ(calls.back(), L"Error! The file is too large to open!");
}

TEST_F(UnseenReminders, aReminderThatAnotherNoteCameOverComesAgainOnce) {
  folder.notes = {{L"a.tx1", "7|30|"}, {L"b.tx1", "7|30|"}};
  alarms.Update_All_Al();
  alarms.showAgainLater();
  EXPECT_EQ(alarms.pending(), 0) << "none is on show";
  tickAt(7, 30, 1);
  alarms.showAgainLater();
  alarms.showAgainLater();
  EXPECT_EQ(rang(), (Names{L"a.tx1", L"b.tx1", L"a.tx1"}));
}

TEST_F(UnseenReminders, oneThatWaitsAnywayDoesNotComeTwice) {
  folder.notes = {{L"a.tx1", "7|30|"}, {L"b.tx1", "7|31|"}};
  alarms.Update_All_Al();
  tickAt(7, 30, 1);
  alarms.Update_All_Al();
  alarms.showAgainLater();
  EXPECT_EQ(alarms.pending(), 1) << "the check has queued it already";
  alarms.Sprawdz_jeden_alarm();
  folder.away = true;
  alarms.showAgainLater();
  EXPECT_EQ(alarms.pending(), 1) << "its title still says what was due";
}

}  // namespace
}  // namespace kalvora
