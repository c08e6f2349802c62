#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "alarms/AlarmNoteReader.h"
#include "alarms/DayReminders.h"
#include "alarms/TimeTable.h"
#include "fakes/FakeNoteFolder.h"

namespace kalvora {
namespace {

const std::vector<std::wstring> kNames = {L"a.txt", L"B.txt", L"b.tx1", L"c.tx2", L"D.TX2",
                                          L"e.tx3", L"f.tx4", L"G.TXT", L"h.tx5"};

/// What notes hold: sound ones, and such as are faulty, refused or cut off. Some are of one length.
std::string someContent() {
  return *rc::gen::element<std::string>(
      "7|30|x", "8|30|x", "7|31|1|0|1|0|1|0|1|x", "7|31|0|1|0|1|0|1|0|x", "2026|3|2|7|31|x",
      "2026|2|31|7|31|x", "7|30|no|1|1|1|1|1|1|", "||", "", "7", "7|2|3|1|x", "8|2|3|1|x",
      "7|2|no|1|x", "7|no|3|1|x", "7:5|3-0|x", "12|0|" + std::string(32767, 'x'));
}

/// A folder as one is told of it who may remember, and the same one to who must read all.
class TwoFolders {
 public:
  void write(const std::wstring& name, const std::string& bytes) {
    const bool young = *rc::gen::arbitrary<bool>();
    for (FakeNoteFolder* folder : {&told_, &untold_}) folder->notes[name] = bytes;
    // In the step of a clock that a young file was written in, it can be written again.
    if (young) {
      told_.written.erase(name);
    } else {
      told_.written[name] = ++clock_;
    }
  }
  void remove(const std::wstring& name) {
    for (FakeNoteFolder* folder : {&told_, &untold_}) folder->notes.erase(name);
  }
  /// What is remembered of a note does not need the note: one that is locked was written lately.
  void lock(const std::wstring& name) {
    for (FakeNoteFolder* folder : {&told_, &untold_}) folder->locked = name;
    told_.written.erase(name);
  }
  void settle() {
    for (const auto& [name, bytes] : told_.notes) {
      if (name != told_.locked) told_.written.try_emplace(name, ++clock_);
    }
  }

  FakeNoteFolder& told() { return told_; }
  FakeNoteFolder& untold() { return untold_; }

 private:
  FakeNoteFolder told_;
  FakeNoteFolder untold_;
  std::int64_t clock_ = 1;
};

/// A table that is built anew from time to time, as the program does it.
class LivingTable {
 public:
  void rebuild(const FakeNoteFolder& folder, int weekday) {
    using namespace std::chrono;
    // Every second day has its date: a user can choose to have notes for one date, or not to.
    const auto date = 2026y / March / (1 + weekday);
    table_.turnTo({weekday, weekday % 2 == 0 ? std::nullopt : std::optional(date)});
    AlarmNoteReader notes(folder, codePage_, "notes", folder.listed(), kNoteKinds);
    table_.rebuild(notes);
    faults = notes.takeFaults();
    unread = notes.takeUnread();
  }
  const std::wstring& text() const { return table_.text(); }

  std::vector<FaultyNote> faults;
  std::vector<std::wstring> unread;

 private:
  const Windows1252 codePage_{};
  TimeTable table_;
};

/// What is due on days, as the program asks it: sometimes the folder was listed since.
class LivingDays {
 public:
  void look(const FakeNoteFolder& folder, int day) {
    AlarmNoteReader notes(folder, codePage_, "notes", folder.listed(), kNoteKinds);
    AlarmQueue queue;
    days_.queueDueOn(day, 3, notes, queue);
    due.clear();
    while (queue.pending() > 0) due.push_back(queue.takeNext());
    faults = notes.takeFaults();
    unread = notes.takeUnread();
  }
  void listed(const FakeNoteFolder& folder) { days_.moveTo(folder.listed()); }

  std::vector<std::wstring> due;
  std::vector<FaultyNote> faults;
  std::vector<std::wstring> unread;

 private:
  const Windows1252 codePage_{};
  DayReminders days_;
};

void change(TwoFolders& folders) {
  const std::wstring name = *rc::gen::elementOf(kNames);
  switch (*rc::gen::inRange(0, 6)) {
    case 0:
    case 1:
    case 2:
      folders.write(name, someContent());
      break;
    case 3:
      folders.remove(name);
      break;
    case 4:
      folders.lock(*rc::gen::arbitrary<bool>() ? name : std::wstring());
      break;
    default:
      folders.settle();
  }
}

RC_GTEST_PROP(RememberedNotes, theTableIsThatOfOneThatReadsEveryNote, ()) {
  TwoFolders folders;
  LivingTable remembering;
  LivingTable readingAll;
  int weekday = 0;
  for (int rebuilds = *rc::gen::inRange(1, 12); rebuilds > 0; --rebuilds) {
    for (int changes = *rc::gen::inRange(0, 5); changes > 0; --changes) change(folders);
    if (*rc::gen::inRange(0, 5) == 0) weekday = *rc::gen::inRange(0, 7);
    remembering.rebuild(folders.told(), weekday);
    readingAll.rebuild(folders.untold(), weekday);
    RC_ASSERT(remembering.text() == readingAll.text());
    RC_ASSERT(remembering.faults == readingAll.faults);
    RC_ASSERT(remembering.unread == readingAll.unread);
  }
}

RC_GTEST_PROP(RememberedNotes, whatIsDueOnADayIsWhatOneFindsWhoReadsEveryNote, ()) {
  TwoFolders folders;
  LivingDays remembering;
  LivingDays readingAll;
  for (int looks = *rc::gen::inRange(1, 12); looks > 0; --looks) {
    for (int changes = *rc::gen::inRange(0, 5); changes > 0; --changes) change(folders);
    if (*rc::gen::arbitrary<bool>()) remembering.listed(folders.told());
    for (int changes = *rc::gen::inRange(0, 3); changes > 0; --changes) change(folders);
    const int day = *rc::gen::inRange(5, 9);
    remembering.look(folders.told(), day);
    readingAll.look(folders.untold(), day);
    RC_ASSERT(remembering.due == readingAll.due);
    RC_ASSERT(remembering.faults == readingAll.faults);
    RC_ASSERT(remembering.unread == readingAll.unread);
  }
}

}  // namespace
}  // namespace kalvora
