#include "WhatComesFixture.h"

namespace kalvora {
namespace {

using namespace std::chrono;

TEST_F(WhatComesTest, showsAWeekAtFirst) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}, {L"Rent.tx3", "24|||x"}};
  form_.Form_Load();
  EXPECT_EQ(view_.span, ComingSpan::Week);
  ASSERT_EQ(view_.rows, 8U);
  EXPECT_EQ(textOf(0), L"2026-11-23|18:30|Gym|Daily|");
  EXPECT_EQ(textOf(1), L"2026-11-24||Rent|Monthly|");
  EXPECT_EQ(view_.notice, L"");
}

TEST_F(WhatComesTest, hoursAreWrittenAsTheUserChose) {
  host_.format = HourFormat::Hours12;
  folder_.notes = {{L"Gym.tx1", "18|05|x"}};
  form_.Form_Load();
  EXPECT_EQ(textOf(0), L"2026-11-23|6:05 PM|Gym|Daily|");
}

TEST_F(WhatComesTest, statesAreNamed) {
  host_.marks = {.snoozed = {{kMondayOfNow + hours(8) + minutes(10), L"Gym.tx1"}},
                 .missed = {{kMondayOfNow - hours(20), L"Rent.tx3"}}};
  form_.Form_Load();
  ASSERT_EQ(view_.rows, 2U);
  EXPECT_EQ(textOf(0), L"2026-11-22||Rent|Monthly|missed");
  EXPECT_EQ(textOf(1), L"2026-11-23|8:10|Gym|Daily|snoozed");
}

TEST_F(WhatComesTest, anotherSpanHasOtherRowsAndKeepsTheSelectedOne) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}};
  host_.marks.missed = {{kMondayOfNow - hours(20), L"Rent.tx3"}};
  form_.Form_Load();
  view_.selected = 1;
  form_.chooseSpan(ComingSpan::Today);
  EXPECT_EQ(view_.rows, 2U);
  EXPECT_EQ(selectedText(), L"2026-11-23|18:30|Gym|Daily|");
  form_.chooseSpan(ComingSpan::Year);
  EXPECT_EQ(view_.rows, 366U);
}

TEST_F(WhatComesTest, theListStaysWhereItIsScrolledToWhileTimePasses) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}};
  form_.Form_Load();
  view_.selected = 0;
  setMinute(23, 8, 1);
  form_.tick();
  EXPECT_EQ(view_.selected, 0U);
  EXPECT_EQ(view_.scrolledTo, std::nullopt);
}

TEST_F(WhatComesTest, aRowOpensItsNote) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}, {L"Rent.tx3", "24|||x"}};
  form_.Form_Load();
  form_.openRow(1);
  EXPECT_EQ(host_.opened, std::vector<std::wstring>{L"Rent.tx3"});
  form_.openRow(view_.rows);
  EXPECT_EQ(host_.opened.size(), 1U);
}

TEST_F(WhatComesTest, manyNotesAreReadWhileTheWindowIsOpen) {
  manyNotes();
  form_.Form_Load();
  EXPECT_EQ(view_.rows, 0U);
  EXPECT_EQ(view_.notice, L"Reading notes\x2026 400 of 1000");
  EXPECT_LT(view_.interval, 50);
  form_.tick();
  EXPECT_EQ(view_.timesShown, 0) << "no list is shown before it is whole";
  form_.activated();
  form_.tick();
  EXPECT_EQ(view_.rows, 7000U);
  EXPECT_EQ(view_.notice, L"");
  EXPECT_EQ(view_.interval, 1000);
  EXPECT_EQ(folder_.listings, 1);
}

TEST_F(WhatComesTest, theOldListStandsWhileNotesAreReadAgain) {
  manyNotes();
  form_.Form_Load();
  while (view_.interval < 1000) form_.tick();
  folder_.notes.erase(L"999.tx1");
  view_.selected = 2;
  const std::wstring selected = selectedText();
  form_.activated();
  EXPECT_EQ(view_.rows, 7000U);
  EXPECT_EQ(selectedText(), selected);
  while (view_.interval < 1000) form_.tick();
  EXPECT_EQ(view_.rows, 6993U);
  EXPECT_EQ(selectedText(), selected);
}

TEST_F(WhatComesTest, whatTheProgramChangesIsSeenAtTheNextLook) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}};
  form_.Form_Load();
  folder_.notes[L"Rent.tx3"] = "24|||x";
  form_.tick();
  EXPECT_EQ(folder_.listings, 1) << "nobody said that anything changed";
  ++host_.changes;
  form_.tick();
  EXPECT_EQ(view_.rows, 8U);
  form_.tick();
  EXPECT_EQ(folder_.listings, 2);
}

TEST_F(WhatComesTest, whatTheUserChoosesInTheOptionsIsSeenAtTheNextLook) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}, {L"Trip.tx5", "2026|11|24|6|0|x"}};
  host_.kinds = NoteKinds(kNoteKinds).first(5);
  form_.Form_Load();
  EXPECT_EQ(view_.rows, 7U);
  host_.kinds = kNoteKinds;
  form_.tick();
  EXPECT_EQ(view_.rows, 8U);
  const int shown = view_.timesShown;
  host_.format = HourFormat::Hours12;
  form_.tick();
  EXPECT_EQ(view_.timesShown, shown + 1);
  form_.tick();
  EXPECT_EQ(view_.timesShown, shown + 1);
}

TEST_F(WhatComesTest, whatOthersChangeIsSeenWhenTheUserComesToTheWindow) {
  form_.Form_Load();
  folder_.notes[L"Rent.tx3"] = "24|||x";
  form_.activated();
  EXPECT_EQ(view_.rows, 1U);
}

TEST_F(WhatComesTest, aMinuteThatPassesTakesItsRowsAway) {
  folder_.notes = {{L"Gym.tx1", "8|00|x"}};
  form_.Form_Load();
  EXPECT_EQ(view_.rows, 7U);
  view_.selected = 1;
  const int shown = view_.timesShown;
  form_.tick();
  EXPECT_EQ(view_.timesShown, shown);
  setMinute(23, 8, 1);
  form_.tick();
  EXPECT_EQ(view_.rows, 6U);
  EXPECT_EQ(view_.selected, 0U);
  EXPECT_EQ(folder_.listings, 1) << "a minute alone reads nothing";
}

TEST_F(WhatComesTest, aReminderThatIsMissedMeanwhileIsSeen) {
  form_.Form_Load();
  host_.marks.missed = {{kMondayOfNow + hours(8), L"Gym.tx1"}};
  form_.tick();
  EXPECT_EQ(textOf(0), L"2026-11-23|8:00|Gym|Daily|missed");
}

TEST_F(WhatComesTest, anotherDayBeginsWithItsOwnRows) {
  folder_.notes = {{L"Gym.tx1", "8|00|x"}};
  form_.Form_Load();
  setMinute(24, 0, 0);
  form_.tick();
  EXPECT_EQ(view_.rows, 7U);
  EXPECT_EQ(textOf(0), L"2026-11-24|8:00|Gym|Daily|");
}

TEST_F(WhatComesTest, aFolderThatGoesAwayLeavesTheListAndIsTold) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}};
  form_.Form_Load();
  folder_.away = true;
  form_.activated();
  EXPECT_EQ(view_.rows, 7U);
  EXPECT_EQ(view_.notice, L"The folder of the notes cannot be read now. It is looked at again.");
  folder_.away = false;
  folder_.notes[L"Rent.tx3"] = "24|||x";
  form_.tick();
  EXPECT_EQ(view_.rows, 7U) << "not before the next minute";
  setMinute(23, 8, 1);
  form_.tick();
  EXPECT_EQ(view_.rows, 8U);
  EXPECT_EQ(view_.notice, L"");
}

TEST_F(WhatComesTest, aFolderThatIsAwayFromTheBeginningIsTold) {
  folder_.away = true;
  form_.Form_Load();
  EXPECT_EQ(view_.rows, 0U);
  EXPECT_EQ(view_.notice, L"The folder of the notes cannot be read now. It is looked at again.");
}

TEST_F(WhatComesTest, notesThatCannotBeReadAreTold) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}, {L"Bins.tx2", "7|0|x|0|0|0|0|0|0|x"}};
  form_.Form_Load();
  EXPECT_EQ(view_.notice,
            L"\x201C"
            L"Bins\x201D cannot be read and is left out.");
  folder_.notes[L"Away.tx5"] = "2026|2|31|7|0|x";
  form_.activated();
  EXPECT_EQ(view_.notice, L"2 notes cannot be read and are left out.");
}

TEST_F(WhatComesTest, nothingIsStoredByWhoChangesNothing) {
  form_.Form_Load();
  form_.unload();
  EXPECT_TRUE(settings_.values.empty());
  EXPECT_EQ(view_.unloads, 1);
}

TEST_F(WhatComesTest, spanAndSizeAreRememberedWhereTheyAreOthers) {
  form_.Form_Load();
  form_.chooseSpan(ComingSpan::Month);
  view_.place = {700, 400};
  form_.unload();
  EXPECT_EQ(settings_.values, (std::map<std::wstring, std::wstring>{
                                  {L"What comes/Span", L"2"}, {L"What comes/Width", L"700"}}));
  view_.place = {640, 400};
  form_.Form_Load();
  EXPECT_EQ(view_.span, ComingSpan::Month);
  EXPECT_EQ(view_.place, (Size{700, 400}));
  view_.place = {640, 400};
  form_.chooseSpan(ComingSpan::Week);
  form_.unload();
  EXPECT_EQ(settings_.values.at(L"What comes/Span"), L"1");
  EXPECT_EQ(settings_.values.at(L"What comes/Width"), L"640");
}

TEST_F(WhatComesTest, settingsThatCannotBeReadCountAsMissing) {
  settings_.values = {{L"What comes/Span", L"7"}, {L"What comes/Width", L"wide"}};
  form_.Form_Load();
  EXPECT_EQ(view_.span, ComingSpan::Week);
  EXPECT_EQ(view_.place, (Size{640, 400}));
}

TEST_F(WhatComesTest, aSizeThatCannotBeStoredKeepsNoWindowOpen) {
  form_.Form_Load();
  form_.chooseSpan(ComingSpan::Year);
  settings_.refuses = true;
  form_.unload();
  EXPECT_EQ(view_.unloads, 1);
}

TEST_F(WhatComesTest, aClosedWindowDoesNothing) {
  form_.Form_Load();
  form_.unload();
  const int listings = folder_.listings;
  form_.tick();
  form_.activated();
  form_.unload();
  EXPECT_EQ(folder_.listings, listings);
  EXPECT_EQ(view_.unloads, 1);
}

}  // namespace
}  // namespace kalvora
