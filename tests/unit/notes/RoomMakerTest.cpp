#include "notes/RoomMaker.h"

#include <gtest/gtest.h>

#include "unit/notes/SafetyCopiesFixture.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

class RoomMakerTest : public SafetyCopiesFixture {
 protected:
  /// Copies of ten bytes each, a second apart.
  void giveCopies(std::initializer_list<const char*> names) {
    for (const char* name : names) {
      giveAndRemove(name, "ten bytes.");
      ++clock_.time.second;
    }
  }
  Names namesByAge() const {
    Names names;
    for (const SafetyCopy& copy : copies_.newestFirst()) names.insert(names.begin(), copy.name);
    return names;
  }
};

TEST_F(RoomMakerTest, theLastRoomOnTheDiskIsForTheNoteAndNotForItsCopy) {
  give("Gym.tx1", "an old text");
  disk_.room = 15;
  save("Gym.tx1", "a new text");
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "a new text");
  EXPECT_TRUE(copies_.newestFirst().empty());
  // With room for both there is a copy again.
  disk_.room = 30;
  save("Gym.tx1", "another text");
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "another text");
  EXPECT_EQ(copies_.newestFirst().size(), 1U);
}

TEST_F(RoomMakerTest, aNoteThatTheDiskHasNoRoomForIsToldAndStays) {
  give("Gym.tx1", "old");
  disk_.room = 5;
  EXPECT_THROW(save("Gym.tx1", "a new text"), DiskFullError);
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "old");
}

TEST_F(RoomMakerTest, theOldestCopiesMakeRoomWhereNoNewOneCouldBeMade) {
  give("Gym.tx1", "old");
  giveCopies({"a.txt", "b.txt", "c.txt", "d.txt"});
  disk_.room = 2;
  save("Gym.tx1", "a text of 21 letters.");
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "a text of 21 letters.");
  EXPECT_EQ(namesByAge(), (Names{L"c", L"d"})) << "no more of them go than must";
}

TEST_F(RoomMakerTest, copiesMakeRoomForANewNote) {
  giveCopies({"a.txt", "b.txt"});
  disk_.room = 0;
  save("New.txt", "a new note");
  EXPECT_EQ(contentOf(notes_ / "New.txt"), "a new note");
  EXPECT_EQ(namesByAge(), Names{L"b"});
}

TEST_F(RoomMakerTest, theCopyJustMadeGoesLastThoughTheClockWasSetBack) {
  give("Gym.tx1", "an old text");
  giveCopies({"a.txt", "b.txt"});
  clock_.time.year = 2020;
  disk_.room = 15;
  save("Gym.tx1", "a text of 21 letters.");
  EXPECT_EQ(namesByAge(), Names{L"Gym"});
  EXPECT_EQ(copies_.read(copies_.newestFirst()[0]), "an old text");
  disk_.room = 45;
  save("Gym.tx1", "a text of more than 30 letters.");
  EXPECT_EQ(namesByAge(), Names{L"Gym"}) << "the older one went, and the new one could stay";
  EXPECT_EQ(copies_.read(copies_.newestFirst()[0]), "a text of 21 letters.");
}

TEST_F(RoomMakerTest, whereNoneOfThemHelpsTheyComeBack) {
  give("Gym.tx1", "old");
  giveCopies({"a.txt", "b (2).tx2", "c.txt"});
  const Names before = copyNames();
  disk_.room = 5;
  disk_.removals = 0;
  EXPECT_THROW(save("Gym.tx1", std::string(100, 'x')), DiskFullError);
  EXPECT_EQ(disk_.removals, 4) << "three, and the one just made";
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "old");
  EXPECT_EQ(copyNames(), before);
  for (const std::wstring& name : before) EXPECT_EQ(contentOf(backup_ / name), "ten bytes.");
  EXPECT_EQ(disk_.room, 5U);
}

TEST_F(RoomMakerTest, theNewestComesBackFirstWhereOthersTookTheRoomMeanwhile) {
  giveCopies({"a.txt", "b.txt", "c.txt"});
  disk_.room = 5;
  disk_.removals = 0;
  disk_.whenFull = [this] {
    if (disk_.removals == 3 && disk_.room == 35) disk_.room = 15;
  };
  EXPECT_THROW(save("New.txt", std::string(100, 'x')), DiskFullError);
  EXPECT_EQ(namesByAge(), Names{L"c"});
}

TEST_F(RoomMakerTest, whereTheyCannotComeBackItIsTheDiskThatIsTold) {
  giveCopies({"a.txt"});
  disk_.room = 0;
  disk_.refuses = true;
  EXPECT_THROW(save("New.txt", std::string(100, 'x')), DiskFullError);
  EXPECT_EQ(copyNames(), Names{});
}

TEST_F(RoomMakerTest, aLockedCopyIsSteppedOver) {
  giveCopies({"a.txt", "b.txt", "c.txt"});
  disk_.locked.insert(copyNames()[0]);
  disk_.room = 0;
  save("New.txt", "a new note");
  EXPECT_EQ(contentOf(notes_ / "New.txt"), "a new note");
  EXPECT_EQ(namesByAge(), (Names{L"a", L"c"}));
}

TEST_F(RoomMakerTest, aFolderThatLetsNothingGoIsNotTriedForLong) {
  for (int i = 0; i < 20; ++i) giveCopies({(std::to_string(i) + ".txt").c_str()});
  disk_.locks = true;
  disk_.removals = 0;
  disk_.room = 0;
  EXPECT_THROW(save("New.txt", "a new note"), DiskFullError);
  EXPECT_EQ(disk_.removals, 8);
  EXPECT_EQ(copyNames().size(), 20U);
}

TEST_F(RoomMakerTest, onlyNotesAreWorthACopy) {
  giveCopies({"a.txt"});
  disk_.room = 0;
  EXPECT_THROW(writer_.writeSafely(folder_.path() / "list.txt", "a list"), DiskFullError);
  EXPECT_EQ(namesByAge(), Names{L"a"});
}

}  // namespace
}  // namespace kalvora
