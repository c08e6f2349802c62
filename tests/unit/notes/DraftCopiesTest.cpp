// Drafts among the safety copies: their names, their order, and the room that they take.

#include <gtest/gtest.h>

#include <algorithm>

#include "unit/notes/SafetyCopiesFixture.h"

namespace kalvora {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::wstring>;

class DraftCopies : public SafetyCopiesFixture {
 protected:
  static Draft draft(const std::wstring& name, std::string bytes, NoteKind kind = NoteKind::Fast) {
    return {kind, name, std::move(bytes), true};
  }
  fs::path keep(const std::wstring& name, const std::string& bytes,
                const std::optional<fs::path>& former = {}) {
    fs::path place = copies_.keepDraft(draft(name, bytes), former);
    copies_.leaveDraft(place);
    return place;
  }
  /// Names of files in the order of the list.
  Names listed() const {
    Names names;
    for (const SafetyCopy& copy : copies_.newestFirst()) names.push_back(copy.fileName);
    return names;
  }
  std::size_t draftsLeft() const {
    const auto all = copies_.newestFirst();
    return static_cast<std::size_t>(std::ranges::count_if(all, &SafetyCopy::isDraft));
  }
  void nextMinute() {
    if (++clock_.time.minute < 60) return;
    clock_.time.minute = 0;
    ++clock_.time.hour;
  }
};

TEST_F(DraftCopies, aDraftIsNamedSoAfterTheMoment) {
  keep(L"Gym", "1");
  keep(L"Gym", "2");
  EXPECT_EQ(copyNames(), (Names{L"Gym 2027-03-08 06-29-05 draft (2).txt",
                                L"Gym 2027-03-08 06-29-05 draft.txt"}));
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 2U);
  EXPECT_TRUE(copies[0].isDraft);
  EXPECT_EQ(copies[0].name, L"Gym");
  EXPECT_EQ(copies[0].number, 2);
  EXPECT_EQ(copies_.read(copies[0]), "2");
}

TEST_F(DraftCopies, aNoteThatIsNamedLikeADraftHasCopiesThatAreNone) {
  giveAndRemove("Gym 2026-01-01 00-00-00 draft.txt", "x");
  giveAndRemove("my draft.txt", "y");
  for (const SafetyCopy& copy : copies_.newestFirst()) EXPECT_FALSE(copy.isDraft) << copy.number;
  EXPECT_EQ(copies_.newestFirst().size(), 2U);
}

TEST_F(DraftCopies, aDraftTakesThePlaceOfTheFormerOneOfItsNote) {
  const fs::path first = keep(L"Gym", "1");
  nextMinute();
  EXPECT_EQ(keep(L"Gym", "12", first), first);
  EXPECT_EQ(contentOf(first), "12");
  const fs::path renamed = keep(L"Swim", "123", first);
  EXPECT_EQ(copyNames(), Names{L"Swim 2027-03-08 06-30-05 draft.txt"});
  EXPECT_EQ(contentOf(renamed), "123");
}

TEST_F(DraftCopies, whereADraftCannotBeMadeTheFormerOneStays) {
  const fs::path first = keep(L"Gym", "1");
  disk_.refuses = true;
  EXPECT_THROW(keep(L"Swim", "2", first), FileError);
  EXPECT_EQ(contentOf(first), "1");
}

TEST_F(DraftCopies, aDraftThatWouldFillAllTheRoomIsNotMade) {
  EXPECT_THROW(keep(L"Gym", std::string(SafetyCopies::kMostBytes + 1, 'x')), FileError);
}

TEST_F(DraftCopies, theNewestDraftOfANoteIsFound) {
  keep(L"Gym", "1");
  nextMinute();
  const fs::path newest = keep(L"Gym", "2");
  keep(L"Swim", "3");
  giveAndRemove("Gym.txt", "4");
  EXPECT_EQ(copies_.newestLeftDraftOf(draft(L"Gym", "")), newest);
  EXPECT_EQ(copies_.newestLeftDraftOf(draft(L"Gym", "", NoteKind::Daily)), std::nullopt);
}

TEST_F(DraftCopies, noDraftCostsACopyAndNoCopyADraft) {
  for (std::size_t i = 0; i < SafetyCopies::kMostCopies + 1; ++i, nextMinute()) {
    giveAndRemove("c.txt", std::to_string(i));
  }
  keep(L"Gym", "1");
  nextMinute();
  keep(L"Large", std::string(SafetyCopies::kMostBytes - 1, 'x'));
  EXPECT_EQ(draftsLeft(), 2U);
  EXPECT_EQ(copyNames().size(), SafetyCopies::kMostCopies + 2);
  giveAndRemove("d.txt", "x");
  EXPECT_EQ(draftsLeft(), 2U);
  EXPECT_EQ(copyNames().size(), SafetyCopies::kMostCopies + 2);
}

TEST_F(DraftCopies, whatIsLargerThanAnyNotePushesNoOrdinaryOneOut) {
  for (int i = 0; i < 3; ++i, nextMinute()) {
    keep(L"Gym", std::to_string(i));
    keep(L"Large", std::string(SafetyCopies::kMostBytes - 1, static_cast<char>('a' + i)));
    giveAndRemove("c.txt", std::to_string(i));
    giveAndRemove("large.txt", std::string(SafetyCopies::kMostBytes, static_cast<char>('a' + i)));
  }
  EXPECT_EQ(copyNames(),
            (Names{L"c 2027-03-08 06-29-05.txt", L"c 2027-03-08 06-30-05.txt",
                   L"c 2027-03-08 06-31-05.txt", L"Gym 2027-03-08 06-29-05 draft.txt",
                   L"Gym 2027-03-08 06-30-05 draft.txt", L"Gym 2027-03-08 06-31-05 draft.txt",
                   L"Large 2027-03-08 06-31-05 draft.txt", L"large 2027-03-08 06-31-05.txt"}));
}

TEST_F(DraftCopies, theOldestOfMoreDraftsThanCopiesMayBeGoes) {
  for (std::size_t i = 0; i < SafetyCopies::kMostCopies + 1; ++i, nextMinute()) {
    keep(L"d" + std::to_wstring(i), "x");
  }
  EXPECT_EQ(draftsLeft(), SafetyCopies::kMostCopies);
  EXPECT_EQ(copies_.newestFirst().back().name, L"d1");
}

TEST_F(DraftCopies, oneThatIsStillTypedIsNeitherPushedOutNorFoundAsALeftOne) {
  const fs::path typed = copies_.keepDraft(draft(L"typed", "x"), {});
  EXPECT_EQ(copies_.newestLeftDraftOf(draft(L"typed", "")), std::nullopt);
  for (std::size_t i = 0; i < SafetyCopies::kMostCopies + 1; ++i, nextMinute()) {
    keep(L"d" + std::to_wstring(i), "x");
  }
  EXPECT_TRUE(fs::exists(typed));
  disk_.room = 0;
  save("new.txt", "x");
  EXPECT_TRUE(fs::exists(typed));
  EXPECT_EQ(draftsLeft(), SafetyCopies::kMostCopies);
}

TEST_F(DraftCopies, whereTheFormerOneIsLockedTheDraftGetsAFileOfItsOwn) {
  const fs::path first = keep(L"Gym", "1");
  disk_.locked.insert(first.filename());
  disk_.unwritable = first;
  const fs::path second = keep(L"Gym", "1 and 2", first);
  EXPECT_NE(second, first);
  EXPECT_EQ(contentOf(second), "1 and 2");
  EXPECT_EQ(contentOf(first), "1");
}

TEST_F(DraftCopies, aFullDiskGivesUpDraftsBeforeCopies) {
  keep(L"older", "x");
  nextMinute();
  keep(L"newer", "x");
  clock_.time.year = 2000;
  giveAndRemove("copy.txt", "x");
  clock_.time.year = 2027;
  disk_.room = 2;
  save("new.txt", "xxx");
  EXPECT_EQ(draftsLeft(), 1U);
  EXPECT_EQ(copyNames(),
            (Names{L"copy 2000-03-08 06-30-05.txt", L"newer 2027-03-08 06-30-05 draft.txt"}));
}

TEST_F(DraftCopies, moreDraftsThanShouldHaveMadeRoomAreNotRemoved) {
  for (int i = 0; i < 40; ++i) keep(L"Note " + std::to_wstring(i), "x");
  const Names before = copyNames();
  disk_.room = 0;
  disk_.removals = 0;
  EXPECT_THROW(keep(L"large", std::string(5000, 'x')), DiskFullError);
  EXPECT_EQ(disk_.removals, 17);
  EXPECT_EQ(copyNames(), before);
}

}  // namespace
}  // namespace kalvora
