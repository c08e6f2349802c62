#include <gtest/gtest.h>

#include "notes/SafetyCopies.h"
#include "unit/notes/SafetyCopiesFixture.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

using SafetyCopiesRoom = SafetyCopiesFixture;

// How much is kept.

TEST_F(SafetyCopiesRoom, theOldestOfMoreThan200CopiesGoes) {
  for (int i = 0; i < 205; ++i) {
    clock_.time.minute = i / 60;
    clock_.time.second = i % 60;
    giveAndRemove("Gym.tx1", std::to_string(i));
  }
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 200U);
  EXPECT_EQ(copies_.read(copies.front()), "204");
  EXPECT_EQ(copies_.read(copies.back()), "5");
}

TEST_F(SafetyCopiesRoom, theOldestOfMoreThan8MegabytesGoes) {
  std::string threeMegabytes;
  for (int i = 0; i < 4; ++i) {
    clock_.time.second = i;
    if (i < 3) threeMegabytes.assign(3U << 20U, static_cast<char>('a' + i));
    giveAndRemove(i < 3 ? "Large.txt" : "Large too.txt", threeMegabytes);
  }
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 2U);
  EXPECT_EQ(copies[1].when.second, 2);
  EXPECT_EQ(copies_.read(copies[1]), threeMegabytes);
}

TEST_F(SafetyCopiesRoom, eightMegabytesToTheByteAreKept) {
  giveAndRemove("Large.txt", std::string(8U << 20U, 'x'));
  EXPECT_EQ(copies_.newestFirst().size(), 1U);
  for (const char c : {'x', 'y'}) {
    ++clock_.time.minute;
    giveAndRemove("Half.txt", std::string(4U << 20U, c));
  }
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 2U);
  EXPECT_EQ(copies[1].name, L"Half");
}

TEST_F(SafetyCopiesRoom, whatWouldTakeAllTheRoomStaysUntilTheNextLargeOneAndPushesNoneOut) {
  const std::string huge((8U << 20U) + 1, 'x');
  giveAndRemove("Gym.tx1", "kept");
  ++clock_.time.second;
  giveAndRemove("Huge.txt", huge);
  auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 2U);
  EXPECT_EQ(copies[0].name, L"Huge");
  EXPECT_EQ(copies_.read(copies[0]), huge);
  ++clock_.time.second;
  giveAndRemove("Swim.tx1", "kept");
  EXPECT_EQ(copies_.newestFirst().size(), 3U);
  ++clock_.time.second;
  giveAndRemove("Large.txt", std::string(1U << 20U, 'x'));
  copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 3U);
  EXPECT_EQ(copies[0].name, L"Large");
  EXPECT_EQ(copies[1].name, L"Swim");
  EXPECT_EQ(copies[2].name, L"Gym");
}

TEST_F(SafetyCopiesRoom, whatWouldTakeAllTheRoomIsNeitherCopiedToAnotherDiskNorRemoved) {
  disk_.isOtherDisk = true;
  give("Huge.txt", std::string((8U << 20U) + 1, 'x'));
  EXPECT_THROW(remove("Huge.txt"), FileError);
  EXPECT_EQ(noteNames(), Names{L"Huge.txt"});
  save("Huge.txt", "new");
  EXPECT_TRUE(copies_.newestFirst().empty());
}

TEST_F(SafetyCopiesRoom, theNewCopyStaysThoughTheClockWasSetBack) {
  for (int i = 0; i < 200; ++i) giveAndRemove("Gym.tx1", std::to_string(i));
  clock_.time.year = 2020;
  giveAndRemove("Swim.tx1", "the newest");
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 200U);
  EXPECT_EQ(copies.back().name, L"Swim");
}

TEST_F(SafetyCopiesRoom, afterTheClockWasSetBackTheNextCopyDoesNotTakeTheOneBefore) {
  for (int i = 0; i < 200; ++i) giveAndRemove("Gym.tx1", std::to_string(i));
  clock_.time.year = 2020;
  giveAndRemove("Swim.tx1", "before");
  ++clock_.time.minute;
  giveAndRemove("Run.tx1", "after");
  const auto copies = copies_.dearestFirst();
  ASSERT_EQ(copies.size(), 200U);
  EXPECT_EQ(copies[0].name, L"Run");
  EXPECT_EQ(copies[1].name, L"Swim");
}

TEST_F(SafetyCopiesRoom, whereTheClockIsSetBackByADayTheNewestStay) {
  for (int i = 0; i < 200; ++i) {
    clock_.time.day = i < 199 ? 7 : 8;
    giveAndRemove("Gym.tx1", std::to_string(i));
  }
  clock_.time.day = 7;
  ++clock_.time.minute;
  giveAndRemove("Swim.tx1", "of another time zone");
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 200U);
  EXPECT_EQ(copies_.read(copies.front()), "199");
}

TEST_F(SafetyCopiesRoom, filesOfTheUsersOwnStayWhateverTheirNumber) {
  for (int i = 0; i < 210; ++i) folder_.write(backup_ / std::to_string(i), "mine");
  giveAndRemove("Gym.tx1", "old");
  EXPECT_EQ(copyNames().size(), 211U);
}

// Never in the way.

TEST_F(SafetyCopiesRoom, withoutRoomForACopyANoteIsSavedAllTheSame) {
  disk_.refuses = true;
  give("Gym.tx1", "old");
  save("Gym.tx1", "new");
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "new");
}

TEST_F(SafetyCopiesRoom, draftsMakeRoomForTheCopyOfANote) {
  copies_.leaveDraft(copies_.keepDraft({NoteKind::Fast, L"typed", std::string(30, 'x'), true}, {}));
  give("Gym.tx1", "a text of 21 letters.");
  disk_.room = 4;
  save("Gym.tx1", "x");
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_EQ(copies_.read(copies[0]), "a text of 21 letters.");
}

TEST_F(SafetyCopiesRoom, aNoteOfWhichNoCopyCanBeKeptIsNotRemoved) {
  disk_.refuses = true;
  disk_.isOtherDisk = true;
  give("Gym.tx1", "old");
  try {
    remove("Gym.tx1");
    ADD_FAILURE() << "the note would be lost";
  } catch (const FileError& error) {
    EXPECT_EQ(error.message(), L"This file cannot be deleted, because no copy of it can be kept: " +
                                   (notes_ / "Gym.tx1").wstring());
  }
  EXPECT_EQ(noteNames(), Names{L"Gym.tx1"});
}

TEST_F(SafetyCopiesRoom, whereTheFolderCannotBeMadeNotesAreSavedAndNoneIsRemoved) {
  folder_.write("backup", "a file of that name");
  give("Gym.tx1", "old");
  save("Gym.tx1", "new");
  EXPECT_THROW(remove("Gym.tx1"), FileError);
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "new");
  EXPECT_EQ(contentOf(backup_), "a file of that name");
}

TEST_F(SafetyCopiesRoom, lockedCopiesAreNotTriedOneByOneAtASave) {
  for (int i = 0; i < 200; ++i) giveAndRemove("Gym.tx1", std::to_string(i));
  disk_.locks = true;
  disk_.removals = 0;
  for (const char* bytes : {"a", "b", "c"}) giveAndRemove("Gym.tx1", bytes);
  // Of the one, two and three copies too many at most two.
  EXPECT_EQ(disk_.removals, 1 + 2 + 2);
  EXPECT_EQ(copyNames().size(), 203U);
  disk_.locks = false;
  giveAndRemove("Gym.tx1", "newest");
  EXPECT_EQ(copyNames().size(), 200U);
}

TEST_F(SafetyCopiesRoom, copiesThatAreLockedForGoodLetNoOthersGatherBehindThem) {
  for (int i = 0; i < 5; ++i) giveAndRemove("Old.tx1", std::to_string(i));
  for (const std::wstring& name : copyNames()) disk_.locked.insert(name);
  clock_.time.year = 2028;
  for (int i = 0; i < 230; ++i) {
    clock_.time.minute = i / 60;
    clock_.time.second = i % 60;
    giveAndRemove("Gym.tx1", std::to_string(i));
  }
  const auto copies = copies_.newestFirst();
  EXPECT_LE(copies.size(), 200U + 5U);
  EXPECT_EQ(copies_.read(copies.front()), "229");
}

TEST_F(SafetyCopiesRoom, theWorkThatFailsIsStillTold) {
  folder_.write(notes_ / "folder.txt" / "inside", "kept");
  EXPECT_THROW(save("folder.txt", "new"), FileError);
  EXPECT_THROW(remove("folder.txt"), FileError);
}
}  // namespace
}  // namespace kalvora
