// What is put off while notes, folders, kinds and settings come and go.

#include <algorithm>

#include "SnoozeFixture.h"

namespace kalvora {
namespace {

using Snoozed = Snoozing;

TEST_F(Snoozed, ofANoteThatIsGoneIsDroppedQuietly) {
  putGymOff(at(2, 7, 40));
  folder.notes = {{L"Other.txt", "||x"}};
  host.takeCalls();
  checkAt(2, 7, 40);
  checkAt(2, 7, 41);
  EXPECT_EQ(host.takeCalls(), Names{});
  EXPECT_EQ(stored(), L"");
}

TEST_F(Snoozed, ofANoteThatIsGoneForAMomentComesWithIt) {
  putGymOff(at(2, 7, 40));
  std::map<std::wstring, std::string> notes = {{L"Other.txt", "||x"}};
  std::swap(folder.notes, notes);
  EXPECT_EQ(comesAt(2, 7, 40), Names{});
  // More than once in that minute.
  program->clockChanged();
  EXPECT_EQ(stored(), L"2026-03-02 07:40|Gym.tx1|");
  std::swap(folder.notes, notes);
  EXPECT_EQ(comesAt(2, 7, 41), Names{L"Gym.tx1"});
}

TEST_F(Snoozed, againAfterItCouldNotBePutAwayComesAtTheLaterMomentOnly) {
  startAt(2, 7, 29);
  checkAt(2, 7, 30);
  for (const int minute : {40, 45}) {
    const std::optional<unsigned> reminder = program->reminderToPutOff();
    ASSERT_TRUE(reminder);
    ASSERT_TRUE(program->putOff(*reminder, at(2, 7, minute)));
    EXPECT_EQ(stored(), L"2026-03-02 07:" + std::to_wstring(minute) + L"|Gym.tx1|");
  }
}

TEST_F(Snoozed, stayWithBothNotesWhereOneCouldNotBeRenamed) {
  folder.notes[L"Run.tx1"] = "||x";
  store.values[std::wstring(kStored)] = L"2026-03-02 07:41|Run.tx1|";
  putGymOff(at(2, 7, 40));
  program->noteCopied(L"Gym.tx1", L"Run.tx1");
  EXPECT_EQ(stored(),
            L"2026-03-02 07:40|Gym.tx1|2026-03-02 07:40|Run.tx1|2026-03-02 07:41|Run.tx1|");
}

TEST_F(Snoozed, ofANoteThatGoesWhileItWaitsIsDroppedQuietly) {
  folder.notes[L"Tea.txt"] = "7|39|x";
  putGymOff(at(2, 7, 40));
  checkAt(2, 7, 39);
  host.isShown = true;
  checkAt(2, 7, 40);
  EXPECT_EQ(program->pending(), 1);
  folder.notes.erase(L"Gym.tx1");
  EXPECT_EQ(comes(), Names{L"Tea.txt"});
  host.isShown = false;
  checkAt(2, 7, 41);
  EXPECT_EQ(stored(), L"");
}

TEST_F(Snoozed, waitsForAFolderThatIsAwayOrEmpty) {
  putGymOff(at(2, 7, 40));
  folder.away = true;
  EXPECT_EQ(comesAt(2, 7, 40), Names{});
  folder.away = false;
  std::map<std::wstring, std::string> notes;
  std::swap(folder.notes, notes);
  EXPECT_EQ(comesAt(2, 7, 41), Names{});
  EXPECT_EQ(comesAt(2, 7, 42), Names{});
  std::swap(folder.notes, notes);
  EXPECT_EQ(comesAt(2, 7, 43), Names{L"Gym.tx1"});
}

TEST_F(Snoozed, ofAKindThatIsUnknownWaitsForTheKind) {
  comfort.Once_notes = true;
  folder.notes[L"Dentist.tx5"] = "2026|3|2|7|31|x";
  startAt(2, 7, 30);
  comes();
  checkAt(2, 7, 31);
  putOff(at(2, 7, 40));
  comfort.Once_notes = false;
  host.shownNotes.clear();
  EXPECT_EQ(comesAt(2, 7, 40), Names{});
  EXPECT_EQ(stored(), L"2026-03-02 07:40|Dentist.tx5|");
  comfort.Once_notes = true;
  EXPECT_EQ(comesAt(2, 7, 41), Names{L"Dentist.tx5"});
}

TEST_F(Snoozed, followsItsNoteToANewNameInAnyLetters) {
  putGymOff(at(2, 7, 40));
  folder.notes = {{L"Run.txt", "||x"}};
  program->noteRenamed(L"GYM.tx1", L"Run.txt");
  EXPECT_EQ(stored(), L"2026-03-02 07:40|Run.txt|");
  startAt(2, 7, 40);
  EXPECT_EQ(comes(), Names{L"Run.txt"});
}

TEST_F(Snoozed, thatWaitsFollowsItsNoteToo) {
  putGymOff(at(2, 7, 40));
  host.isShown = true;
  checkAt(2, 7, 40);
  folder.notes = {{L"Run.txt", "||x"}};
  program->noteRenamed(L"Gym.tx1", L"Run.txt");
  EXPECT_EQ(program->pending(), 1);
  EXPECT_EQ(comes(), Names{L"Run.txt"});
  EXPECT_EQ(stored(), L"");
}

TEST_F(Snoozed, onShowFollowsItsNoteAndIsPutAwayUnderTheNewName) {
  putGymOff(at(2, 7, 40));
  checkAt(2, 7, 40);
  folder.notes = {{L"Run.txt", "||x"}};
  program->noteRenamed(L"Gym.tx1", L"Run.txt");
  EXPECT_EQ(program->pending(), 0);
  EXPECT_EQ(stored(), L"2026-03-02 07:40|Run.txt|");
  program->Sprawdz_jeden_alarm();
  EXPECT_EQ(stored(), L"");
}

TEST_F(Snoozed, aReminderThatWasRenamedWhileItIsOnShowIsPutOffUnderItsNewName) {
  startAt(2, 7, 29);
  checkAt(2, 7, 30);
  folder.notes = {{L"Run.txt", "||x"}};
  program->noteRenamed(L"Gym.tx1", L"Run.txt");
  putOff(at(2, 7, 40));
  host.shownNotes.clear();
  EXPECT_EQ(comesAt(2, 7, 40), Names{L"Run.txt"});
}

TEST_F(Snoozed, goesWithItsNote) {
  putGymOff(at(2, 7, 40));
  program->noteDeleted(L"gym.TX1");
  EXPECT_EQ(stored(), L"");
  EXPECT_EQ(comesAt(2, 7, 40), Names{});
}

TEST_F(Snoozed, thatWaitsGoesWithItsNote) {
  putGymOff(at(2, 7, 40));
  host.isShown = true;
  checkAt(2, 7, 40);
  program->noteDeleted(L"Gym.tx1");
  EXPECT_EQ(program->pending(), 0);
}

TEST_F(Snoozed, ofANoteThatIsDeletedWhileTheWindowComesOutHandsItBack) {
  putGymOff(at(2, 7, 40));
  host.during = [this](const std::wstring& call) {
    if (call == L"come out") program->noteDeleted(L"Gym.tx1");
  };
  host.takeCalls();
  checkAt(2, 7, 40);
  EXPECT_EQ(host.takeCalls(), (Names{L"come out", L"unlock", L"browse"}));
  EXPECT_FALSE(program->hasReminders());
}

// The store.

TEST_F(Snoozed, thatCannotBeStoredHoldsForThisRunAndIsToldOnce) {
  store.refuses = true;
  putGymOff(at(2, 7, 40));
  host.takeCalls();
  program->tellFaults();
  const Names told = host.takeCalls();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_TRUE(told.front().starts_with(L"Error! What you put off cannot be remembered."))
      << std::string(told.front().begin(), told.front().end());
  checkAt(2, 7, 40);
  putOff(at(2, 7, 50));
  host.takeCalls();
  program->tellFaults();
  EXPECT_EQ(host.takeCalls(), Names{});
  host.shownNotes.clear();
  EXPECT_EQ(comesAt(2, 7, 50), Names{L"Gym.tx1"});
  EXPECT_EQ(comesAt(2, 7, 51), Names{});
}

TEST_F(Snoozed, isStoredByTheNextChangeThatCanBe) {
  store.refuses = true;
  putGymOff(at(2, 7, 40));
  store.refuses = false;
  checkAt(3, 7, 29);
  putOff(at(3, 8, 0));
  EXPECT_EQ(stored(), L"2026-03-03 08:00|Gym.tx1|");
}

TEST_F(Snoozed, whereverTheProgramIsKilledComesBack) {
  for (const Fault fault : {Fault::KillBefore, Fault::KillAfter}) {
    bool reached = true;
    for (int save = 1; reached; ++save) {
      store.values.clear();
      store.revive();
      putGymOff(at(2, 7, 40));
      store.arm(fault, save);
      checkAt(2, 7, 40);
      putOff(at(2, 7, 50));
      reached = store.wasReached();
      store.revive();
      startAt(2, 8, 0);
      EXPECT_EQ(comes(), Names{L"Gym.tx1"}) << save;
    }
  }
}

TEST_F(Snoozed, whatOneCopyOfTheProgramPutsOffAnotherOneDoesNotForget) {
  folder.notes[L"Tea.txt"] = "7|31|x";
  putGymOff(at(2, 9, 0));
  // The other copy.
  FakeAlarmHost otherHost;
  AlarmCheck other(ports(), otherHost);
  other.updateAtStart(folder.listed());
  other.Sprawdz_jeden_alarm();
  checkAt(2, 7, 31);
  putOff(at(2, 9, 1));
  other.noteRenamed(L"Gym.tx1", L"Run.txt");
  EXPECT_EQ(stored(), L"2026-03-02 09:00|Run.txt|2026-03-02 09:01|Tea.txt|");
  EXPECT_EQ(program->snoozed().front().fileName, L"Run.txt");
}

TEST_F(Snoozed, isNotForgottenWhereTheStoreIsTakenAway) {
  putGymOff(at(2, 7, 40));
  store.values.clear();
  EXPECT_EQ(comesAt(2, 7, 40), Names{L"Gym.tx1"});
}

TEST_F(Snoozed, ofWhichNothingSensibleIsStoredIsIgnored) {
  for (const std::wstring_view text :
       {L"|", L"||||", L"2026-03-02 07:31", L"2026-13-40 07:31|Gym.tx1|", L"7:31|Gym.tx1|",
        L"2026-03-02 07:31||", L"2026-03-02 07:31|..\\Gym.tx1|", L"2026-03-02 07:31|*.tx1|",
        L"2026-03-02 07:31|\u0001|", L"2026-03-02 07:31|Gym|", L"9999-12-31 23:59|Gym.tx1|"}) {
    store.values[std::wstring(kStored)] = text;
    startAt(2, 7, 45);
    EXPECT_EQ(comes(), Names{}) << std::string(text.begin(), text.end());
    EXPECT_EQ(comesAt(2, 7, 46), Names{});
  }
}

TEST_F(Snoozed, ofWhichOnlySomeCanBeReadComesAsFarAsItCan) {
  store.values[std::wstring(kStored)] = L"soon|Gym.tx1|2026-03-02 07:31|Gym.tx1|";
  startAt(2, 7, 45);
  EXPECT_EQ(comes(), Names{L"Gym.tx1"});
}

TEST_F(Snoozed, fiveThousandTimesAllCome) {
  std::wstring text;
  for (int i = 0; i < 5000; ++i) {
    const std::wstring name = L"Note " + std::to_wstring(i) + L".txt";
    folder.notes[name] = "||x";
    text += L"2026-03-02 07:31|" + name + L"|";
  }
  store.values[std::wstring(kStored)] = text;
  startAt(2, 7, 31);
  EXPECT_EQ(program->pending(), 4999);
  EXPECT_EQ(host.onShow.substr(0, 5), L"Note ");
  EXPECT_EQ(program->notSeen().size(), 4999U);
  EXPECT_TRUE(program->snoozed().empty()) << "all came back";
}

// With Catch_up.

TEST_F(Snoozed, andCaughtUpOnComesOnce) {
  comfort.Catch_up = true;
  putGymOff(at(2, 7, 40));
  startAt(2, 7, 35);
  EXPECT_EQ(comes(), Names{});
  checkAt(2, 7, 40);
  EXPECT_EQ(host.onShow, L"Gym.tx1");
  // Killed while it is on show.
  startAt(2, 7, 50);
  EXPECT_EQ(comes(), Names{L"Gym.tx1"});
  startAt(2, 7, 55);
  EXPECT_EQ(comes(), Names{});
}

TEST_F(Snoozed, onceByOneWhoCatchesUpAndIsKilledBeforeItIsPutAwayComesOnce) {
  comfort.Catch_up = true;
  startAt(2, 7, 29);
  checkAt(2, 7, 30);
  const std::optional<unsigned> reminder = program->reminderToPutOff();
  ASSERT_TRUE(reminder);
  ASSERT_TRUE(program->putOff(*reminder, at(2, 7, 40)));
  startAt(2, 7, 35);
  EXPECT_EQ(comes(), Names{});
  EXPECT_EQ(comesAt(2, 7, 40), Names{L"Gym.tx1"});
}

}  // namespace
}  // namespace kalvora
