// Whatever becomes of the program, the clock and the notes' names: what was put off comes back as
// soon as somebody looks, and exactly once.

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <iterator>
#include <map>
#include <memory>
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

/// A user with some notes that rang once and are put off again and again.
class PuttingOff {
 public:
  explicit PuttingOff(bool allTicks) {
    for (const ComfortTick& tick : comfortTicks()) comfort_.*tick.member = allTicks;
    for (const wchar_t* name : {L"a.tx1", L"b.txt", L"c.tx1"}) folder_.notes[name] = "12|0|x";
    host_.during = [this](const std::wstring& call) {
      if (call == L"come out") host_.isShown = true;
      if (call == L"browse") host_.isShown = false;
    };
    start();
    now_ += minutes(1);
    tick(now_);
    checked_ = now_;
    for (const auto& [name, bytes] : folder_.notes) comesAt_[name] = now_;
    for (auto& [name, bytes] : folder_.notes) bytes = "||x";
    program_->Update_All_Al();
    look();
  }

  void pass(int count) {
    for (int i = 0; i < count; ++i) {
      now_ += minutes(1);
      check();
    }
  }
  void sleep(int count) {
    now_ += minutes(count);
    setClock(17);
    program_->clockChanged();
    look();
  }
  void killAndStart(int count) {
    now_ += minutes(count);
    start();
    look();
  }
  void setBack(int count) {
    now_ -= minutes(count);
    check();
  }
  void putOff(int count) {
    const std::optional<unsigned> reminder = program_->reminderToPutOff();
    if (!reminder) return;
    RC_ASSERT(program_->putOff(*reminder, now_ + minutes(count)));
    comesAt_[onShow_] = now_ + minutes(count);
    goOn();
  }
  void done() {
    if (!program_->showsReminder()) return;
    comesAt_.erase(onShow_);
    goOn();
  }
  void rename(int which) {
    const int count = static_cast<int>(folder_.notes.size());
    const std::wstring from = std::next(folder_.notes.begin(), which % count)->first;
    const std::wstring to = L"x" + from;
    folder_.notes[to] = folder_.notes[from];
    program_->noteRenamed(from, to);
    folder_.notes.erase(from);
    if (comesAt_.contains(from)) comesAt_[to] = comesAt_[from];
    comesAt_.erase(from);
    if (onShow_ == from) onShow_ = to;
  }
  /// Puts away all that is to come.
  void seeAll() {
    now_ += minutes(10'000);
    check();
    while (program_->showsReminder()) done();
    RC_ASSERT(comesAt_.empty());
    RC_ASSERT(program_->snoozed().empty());
    killAndStart(1);
    pass(2);
    RC_ASSERT(!program_->hasReminders());
  }

 private:
  void setClock(int second) {
    clock_.time = timeOf(now_);
    clock_.time.second = second;
  }
  /// A minute of the same number in its hour as the one that was checked before is not checked: a
  /// program that goes on looks at the one before it.
  void check() {
    if ((now_ - checked_).count() % 60 == 0) tick(now_ - minutes(1));
    tick(now_);
    checked_ = now_;
    look();
  }
  void tick(LocalMinute moment) {
    clock_.time = timeOf(moment);
    clock_.time.second = 1;
    program_->Spr1m();
  }
  void start() {
    setClock(30);
    host_.isShown = false;
    onShow_.clear();
    program_ = std::make_unique<AlarmCheck>(
        AlarmPorts{folder_, codePage_, clock_, "notes", comfort_, store_}, host_);
    program_->updateAtStart(folder_.listed());
    if (program_->pending() > 0) program_->Sprawdz_jeden_alarm();
  }
  void goOn() {
    onShow_.clear();
    host_.shownNotes.clear();
    program_->Sprawdz_jeden_alarm();
    look();
  }
  /// One that came out now is one that was to come; where none is on show, none is to come yet.
  void look() {
    if (!program_->showsReminder()) {
      onShow_.clear();
      for (const auto& [name, moment] : comesAt_) RC_ASSERT(moment > now_);
    } else if (!host_.shownNotes.empty()) {
      onShow_ = host_.shownNotes.back();
      RC_ASSERT(comesAt_.contains(onShow_));
      RC_ASSERT(comesAt_[onShow_] <= now_);
    }
    host_.shownNotes.clear();
  }

  FakeNoteFolder folder_;
  Windows1252 codePage_;
  FakeClock clock_;
  Comfort comfort_;
  MemorySettingsStore store_;
  FakeAlarmHost host_;
  LocalMinute now_{std::chrono::local_days(std::chrono::year(2026) / 2 / 27) +
                   std::chrono::hours(11) + minutes(59)};
  LocalMinute checked_{};
  std::map<std::wstring, LocalMinute> comesAt_;  // by name
  std::wstring onShow_;
  std::unique_ptr<AlarmCheck> program_;
};

void live(PuttingOff& user, int step, int count) {
  switch (step) {
    case 0:
      return user.pass(count % 100);
    case 1:
      return user.sleep(count);
    case 2:
      return user.killAndStart(count % 500);
    case 3:
      return user.setBack(count % 200);
    case 4:
      return user.rename(count);
    case 5:
      return user.done();
    default:
      return user.putOff(1 + count % 300);
  }
}

RC_GTEST_PROP(SnoozeProperty, everythingPutOffComesBackOnce, (bool allTicks)) {
  PuttingOff user(allTicks);
  // All three ring at once, and only those that were put off outlive the program.
  for (int length = 5; length < 20; length += 5) user.putOff(length);
  const auto steps = *rc::gen::container<std::vector<std::pair<int, int>>>(
      rc::gen::pair(rc::gen::inRange(0, 10), rc::gen::inRange(1, 2000)));
  for (const auto& [step, count] : steps) live(user, step, count);
  user.seeAll();
}

}  // namespace
}  // namespace kalvora
