// What is put off comes back, once, at its moment or as soon after it as anybody looks.

#include <algorithm>

#include "SnoozeFixture.h"

namespace kalvora {
namespace {

TEST_F(Snoozing, bringsTheNoteBackAtItsMomentAndOnce) {
  putGymOff(at(2, 7, 40));
  EXPECT_FALSE(program->hasReminders());
  EXPECT_EQ(comesAt(2, 7, 39), Names{});
  EXPECT_EQ(comesAt(2, 7, 40), Names{L"Gym.tx1"});
  EXPECT_EQ(comesAt(2, 7, 41), Names{});
  EXPECT_EQ(comesAt(3, 7, 40), Names{});
  EXPECT_EQ(comesAt(4, 7, 30), Names{L"Gym.tx1"}) << "its own moments as ever";
}

TEST_F(Snoozing, comesAsAnyReminderDoes) {
  putGymOff(at(2, 7, 40));
  host.takeCalls();
  checkAt(2, 7, 40);
  EXPECT_EQ(host.takeCalls(),
            (Names{L"come out", L"load Gym.tx1", L"title [ REMINDER] over Gym.tx1", L"lock"}));
}

TEST_F(Snoozing, isStoredAtOnceAndUntilItWasPutAway) {
  EXPECT_EQ(stored(), L"(never)");
  putGymOff(at(2, 7, 40));
  EXPECT_EQ(stored(), L"2026-03-02 07:40|Gym.tx1|");
  checkAt(2, 7, 40);
  EXPECT_EQ(host.onShow, L"Gym.tx1");
  EXPECT_EQ(stored(), L"2026-03-02 07:40|Gym.tx1|");
  program->Sprawdz_jeden_alarm();
  EXPECT_EQ(stored(), L"");
}

TEST_F(Snoozing, storesNothingForWhoPutsNothingOff) {
  startAt(2, 7, 29);
  EXPECT_EQ(comesAt(2, 7, 30), Names{L"Gym.tx1"});
  program->noteRenamed(L"Gym.tx1", L"Run.tx1");
  program->noteDeleted(L"Run.tx1");
  program->clockChanged();
  EXPECT_TRUE(store.values.empty());
}

TEST_F(Snoozing, isAllThatCanBeAskedFor) {
  putGymOff(at(2, 9, 0));
  EXPECT_EQ(program->snoozed(), (std::vector<DueNote>{{at(2, 9, 0), L"Gym.tx1"}}));
  EXPECT_TRUE(program->notSeen().empty());
}

TEST_F(Snoozing, isToldAsPutOffUntilItCameBackAndThenAsNotSeen) {
  putGymOff(at(2, 7, 40));
  folder.notes[L"Tea.tx1"] = "7|40|x";
  setClock(at(2, 7, 35), 30);
  program->Update_All_Al();
  setClock(at(2, 7, 40), 0);
  EXPECT_EQ(program->snoozed(), (std::vector<DueNote>{{at(2, 7, 40), L"Gym.tx1"}}));
  checkAt(2, 7, 40);
  EXPECT_EQ(host.onShow, L"Gym.tx1");
  EXPECT_TRUE(program->snoozed().empty()) << "it is on show";
  EXPECT_EQ(program->notSeen(), (std::vector<DueNote>{{at(2, 7, 40), L"Tea.tx1"}}));

  const std::optional<unsigned> reminder = program->reminderToPutOff();
  ASSERT_TRUE(reminder && program->putOff(*reminder, at(2, 7, 41)));
  EXPECT_EQ(program->snoozed(), (std::vector<DueNote>{{at(2, 7, 41), L"Gym.tx1"}}));
  program->Sprawdz_jeden_alarm();
  host.isShown = true;
  checkAt(2, 7, 41);
  EXPECT_EQ(host.onShow, L"Tea.tx1");
  EXPECT_TRUE(program->snoozed().empty());
  EXPECT_EQ(program->notSeen(), (std::vector<DueNote>{{at(2, 7, 41), L"Gym.tx1"}}));
}

TEST_F(Snoozing, survivesAnEndAtEachStep) {
  putGymOff(at(2, 7, 40));
  startAt(2, 7, 35);
  EXPECT_EQ(comes(), Names{});
  // Killed while it waits behind another one.
  folder.notes[L"Tea.txt"] = "7|39|x";
  startAt(2, 7, 38);
  checkAt(2, 7, 39);
  host.isShown = true;
  checkAt(2, 7, 40);
  EXPECT_EQ(host.onShow, L"Tea.txt");
  EXPECT_EQ(program->pending(), 1);
  // Killed while it is on show.
  startAt(2, 7, 42);
  EXPECT_EQ(host.onShow, L"Gym.tx1");
  startAt(2, 7, 50);
  EXPECT_EQ(comes(), Names{L"Gym.tx1"});
  startAt(2, 8, 0);
  EXPECT_EQ(comes(), Names{});
}

TEST_F(Snoozing, thatComesLateComesAtTheStartOfTheProgram) {
  putGymOff(at(2, 7, 40));
  startAt(9, 5, 0);
  EXPECT_EQ(comes(), Names{L"Gym.tx1"});
}

TEST_F(Snoozing, thatComesLateComesWhenTheComputerWakes) {
  putGymOff(at(2, 7, 40));
  setClock(at(2, 9, 0), 17);
  program->clockChanged();
  EXPECT_EQ(host.onShow, L"Gym.tx1");
  EXPECT_EQ(comes(), Names{L"Gym.tx1"});
  program->clockChanged();
  EXPECT_EQ(comes(), Names{});
}

TEST_F(Snoozing, whenTheComputerWakesWaitsForAWindowThatIsOut) {
  putGymOff(at(2, 7, 40));
  host.isShown = true;
  setClock(at(2, 9, 0), 17);
  program->clockChanged();
  EXPECT_EQ(host.onShow, L"");
  EXPECT_EQ(program->pending(), 1);
}

TEST_F(Snoozing, comesInFrontOfWhatIsDueInTheSameMinuteByMoments) {
  folder.notes[L"Tea.txt"] = "8|0|x";
  folder.notes[L"A.txt"] = "7|31|x";
  startAt(2, 7, 29);
  checkAt(2, 7, 30);
  putOff(at(2, 8, 0));
  checkAt(2, 7, 31);
  putOff(at(2, 7, 59));
  host.shownNotes.clear();
  EXPECT_EQ(comesAt(2, 8, 0), (Names{L"A.txt", L"Gym.tx1", L"Tea.txt"}));
}

TEST_F(Snoozing, comesBehindWhatWaitedBefore) {
  folder.notes[L"Tea.txt"] = "7|39|x";
  putGymOff(at(2, 7, 40));
  host.isShown = true;
  checkAt(2, 7, 39);
  checkAt(2, 7, 40);
  EXPECT_EQ(comes(), (Names{L"Tea.txt", L"Gym.tx1"}));
}

TEST_F(Snoozing, againGoesOnFromThere) {
  putGymOff(at(2, 7, 40));
  checkAt(2, 7, 40);
  putOff(at(2, 7, 50));
  EXPECT_EQ(stored(), L"2026-03-02 07:50|Gym.tx1|");
  host.shownNotes.clear();
  EXPECT_EQ(comesAt(2, 7, 49), Names{});
  EXPECT_EQ(comesAt(2, 7, 50), Names{L"Gym.tx1"});
  EXPECT_EQ(stored(), L"");
}

TEST_F(Snoozing, toTwoMomentsComesTwiceAndToOneOnce) {
  folder.notes[L"GYM.txt"] = "7|31|x";
  putGymOff(at(2, 9, 0));
  checkAt(3, 7, 29);
  putOff(at(4, 9, 0));
  checkAt(3, 7, 30);
  putOff(at(4, 9, 0));
  EXPECT_EQ(stored(), L"2026-03-04 09:00|Gym.tx1|");
  checkAt(3, 7, 31);
  putOff(at(4, 9, 1));
  host.shownNotes.clear();
  startAt(4, 8, 0);
  EXPECT_EQ(comesAt(4, 9, 1), (Names{L"Gym.tx1", L"GYM.txt"}));
}

TEST_F(Snoozing, toTheSameMomentOnAClockThatWentBackKeepsIt) {
  putGymOff(at(2, 7, 40));
  checkAt(2, 7, 40);
  setClock(at(2, 7, 0), 20);
  putOff(at(2, 7, 40));
  EXPECT_EQ(stored(), L"2026-03-02 07:40|Gym.tx1|");
  host.shownNotes.clear();
  EXPECT_EQ(comesAt(2, 7, 39), Names{});
  EXPECT_EQ(comesAt(2, 7, 40), Names{L"Gym.tx1"});
  EXPECT_EQ(stored(), L"");
}

TEST_F(Snoozing, waitsForItsMomentOnAClockThatWentBack) {
  putGymOff(at(2, 7, 40));
  host.isShown = true;
  checkAt(2, 7, 40);
  EXPECT_EQ(program->pending(), 1);
  host.isShown = false;
  EXPECT_EQ(comesAt(2, 6, 50), Names{});
  EXPECT_EQ(comesAt(2, 7, 41), Names{L"Gym.tx1"});
}

TEST_F(Snoozing, waitsWhileTheWindowIsOut) {
  putGymOff(at(2, 7, 40));
  host.isShown = true;
  checkAt(2, 7, 40);
  checkAt(2, 7, 41);
  EXPECT_EQ(host.onShow, L"");
  EXPECT_EQ(program->pending(), 1);
  EXPECT_EQ(comes(), Names{L"Gym.tx1"});
}

// Who must not be put off.

TEST_F(Snoozing, needsAReminderThatIsSeen) {
  startAt(2, 7, 29);
  EXPECT_FALSE(program->reminderToPutOff());
  EXPECT_FALSE(program->putOff(0, at(2, 8, 0)));
  checkAt(2, 7, 30);
  host.sliding = true;
  EXPECT_FALSE(program->reminderToPutOff());
  host.sliding = false;
  EXPECT_TRUE(program->reminderToPutOff());
  program->showAgainLater();
  EXPECT_FALSE(program->reminderToPutOff()) << "another note is over it";
  EXPECT_EQ(stored(), L"(never)");
}

TEST_F(Snoozing, isNothingForAReminderThatWasPutAwayMeanwhile) {
  folder.notes[L"Run.tx1"] = "7|30|x";
  startAt(2, 7, 29);
  checkAt(2, 7, 30);
  const std::optional<unsigned> first = program->reminderToPutOff();
  ASSERT_TRUE(first);
  program->Sprawdz_jeden_alarm();
  EXPECT_EQ(host.onShow, L"Run.tx1");
  EXPECT_FALSE(program->putOff(*first, at(2, 8, 0)));
  program->Sprawdz_jeden_alarm();
  EXPECT_FALSE(program->putOff(*first, at(2, 8, 0)));
  EXPECT_EQ(stored(), L"(never)");
}

TEST_F(Snoozing, thatAnotherNoteCoversComesOnceMore) {
  putGymOff(at(2, 7, 40));
  checkAt(2, 7, 40);
  host.shownNotes.clear();
  program->showAgainLater();
  program->showAgainLater();
  EXPECT_EQ(program->pending(), 1);
  program->Sprawdz_jeden_alarm();
  EXPECT_EQ(host.onShow, L"Gym.tx1");
  EXPECT_NE(stored(), L"");
  EXPECT_EQ(comes(), Names{L"Gym.tx1"});
  EXPECT_EQ(stored(), L"");
}

}  // namespace
}  // namespace kalvora
