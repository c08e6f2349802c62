// With all ticks of comfort, whatever becomes of the computer, the program and the clock: nothing
// that came due is never seen, and nothing is seen twice.

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "alarms/AlarmCheck.h"
#include "fakes/FakeAlarmHost.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/MemorySettingsStore.h"
#include "options/ComfortTable.h"

namespace kalvora {
namespace {

using std::chrono::minutes;

/// A note, and when it is due, stated plainly: minutes of the day, and days by what stands there.
struct PlainlyDue {
  std::wstring name;
  std::string bytes;
  int hour;
  int minute;
  int weekday;  // -1 for any, as below
  int dayOfMonth;
  int month;

  bool at(const LocalTime& time) const {
    const auto fits = [](int wanted, int is) { return wanted < 0 || wanted == is; };
    return time.hour == hour && time.minute == minute && fits(weekday, time.weekday) &&
           fits(dayOfMonth, time.day) && fits(month, time.month);
  }
};

std::vector<PlainlyDue> someNotes() {
  return {{L"Gym.tx1", "7|30|x", 7, 30, -1, -1, -1},
          {L"Tea.txt", "16|0|x", 16, 0, -1, -1, -1},
          {L"Late.txt", "23|59|x", 23, 59, -1, -1, -1},
          {L"Early.tx1", "0|0|x", 0, 0, -1, -1, -1},
          {L"Choir.tx2", "19|5|0|0|1|0|0|0|0|x", 19, 5, 2, -1, -1},
          {L"Market.tx2", "7|30|0|0|0|0|0|0|1|x", 7, 30, 6, -1, -1},
          {L"Rent.tx3", "1|||x", 0, 0, -1, 1, -1},
          {L"Water.tx3", "4|||x", 0, 0, -1, 4, -1},
          {L"Mary.tx4", "2|2|||x", 0, 0, -1, 2, 3}};
}

/// What the user is to see, kept note by note and minute by minute.
class Expected {
 public:
  explicit Expected(LocalMinute start) : looked_(start - minutes(1)) {}

  /// Somebody looks: whatever came due up to now is to be seen, once.
  void look(LocalMinute now) {
    if (now < looked_) looked_ = now - minutes(1);
    while (looked_ < now) {
      looked_ += minutes(1);
      const LocalTime time = timeOf(looked_);
      for (const PlainlyDue& note : notes_) {
        if (note.at(time) && handled_.emplace(note.name, looked_).second) ++unseen_[note.name];
      }
    }
  }
  /// The notes that came due, with how often; what was missed together is seen once.
  std::map<std::wstring, int> takeUnseen() { return std::exchange(unseen_, {}); }

 private:
  const std::vector<PlainlyDue> notes_ = someNotes();
  LocalMinute looked_;
  std::set<std::pair<std::wstring, LocalMinute>> handled_;
  std::map<std::wstring, int> unseen_;
};

class Life {
 public:
  Life() {
    for (const ComfortTick& tick : comfortTicks()) comfort_.*tick.member = true;
    for (const PlainlyDue& note : someNotes()) folder_.notes[note.name] = note.bytes;
    host_.during = [this](const std::wstring& call) {
      if (call == L"come out") host_.isShown = true;
      if (call == L"browse") host_.isShown = isOut_;
    };
    start();
  }

  void run(int count) {
    for (int i = 0; i < count; ++i) {
      now_ += minutes(1);
      check();
    }
  }
  void sleep(int count) {
    now_ += minutes(count);
    setClock(17);
    program_->clockChanged();
    expected_.look(now_);
  }
  void killAndStart(int count) {
    now_ += minutes(count);
    start();
  }
  /// By a day at most, and never to before the first start.
  void setBack(int count) {
    furthest_ = std::max(furthest_, now_);
    now_ = std::max({now_ - minutes(count), furthest_ - std::chrono::hours(25), kStart});
    check();
  }
  /// The user brings the window out, or puts it away.
  void windowIsOut(bool out) {
    isOut_ = out;
    if (!program_->showsReminder()) host_.isShown = out;
  }

  void seeAll() {
    std::map<std::wstring, int> seen;
    for (const std::wstring& name : host_.putAwayAll(*program_)) ++seen[name];
    const std::map<std::wstring, int> due = expected_.takeUnseen();
    for (const auto& [name, times] : due) RC_ASSERT(seen.contains(name) && seen[name] <= times);
    RC_ASSERT(seen.size() == due.size());
  }

 private:
  static constexpr LocalMinute kStart{std::chrono::local_days(std::chrono::year(2026) / 2 / 26) +
                                      std::chrono::hours(12)};

  void setClock(int second) {
    clock_.time = timeOf(now_);
    clock_.time.second = second;
  }
  void check() {
    setClock(1);
    program_->Spr1m();
    expected_.look(now_);
  }
  void start() {
    setClock(30);
    // What was on show is not put away.
    host_.shownNotes.clear();
    isOut_ = false;
    host_.isShown = false;
    program_ = std::make_unique<AlarmCheck>(
        AlarmPorts{folder_, codePage_, clock_, "notes", comfort_, store_}, host_);
    program_->updateAtStart(folder_.listed());
    expected_.look(now_);
  }

  FakeNoteFolder folder_;
  Windows1252 codePage_;
  FakeClock clock_;
  Comfort comfort_;
  MemorySettingsStore store_;
  FakeAlarmHost host_;
  LocalMinute now_ = kStart;
  LocalMinute furthest_ = kStart;
  Expected expected_{kStart};
  bool isOut_ = false;
  std::unique_ptr<AlarmCheck> program_;
};

RC_GTEST_PROP(CatchUpProperty, everythingDueIsSeenAndNothingTwice, ()) {
  Life life;
  const auto steps = *rc::gen::container<std::vector<std::pair<int, int>>>(
      rc::gen::pair(rc::gen::inRange(0, 7), rc::gen::inRange(1, 3000)));
  for (const auto& [step, count] : steps) {
    switch (step) {
      case 0:
        life.run(count % 300);
        break;
      case 1:
        life.sleep(count);
        break;
      case 2:
        life.killAndStart(count);
        break;
      case 3:
        life.killAndStart(count % 3);
        break;
      case 4:
        life.setBack(count % 1500);
        break;
      case 5:
        life.windowIsOut(count % 2 == 0);
        break;
      default:
        life.seeAll();
    }
  }
  life.seeAll();
}

}  // namespace
}  // namespace kalvora
