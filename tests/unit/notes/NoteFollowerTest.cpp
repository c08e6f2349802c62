// Who follows the notes hears of each that is renamed or deleted, and of nothing else.

#include <gtest/gtest.h>

#include "notes/NoteSaving.h"
#include "unit/notes/SafetyCopiesFixture.h"

namespace kalvora {
namespace {

class FollowingNotes : public SafetyCopiesFixture {
 protected:
  using Heard = std::vector<std::wstring>;

  void saveAs(const std::filesystem::path& name, std::optional<std::filesystem::path> oldName) {
    if (oldName) oldName = notes_ / *oldName;
    saveNote(files_, writer_, notes_ / name, oldName, "new");
  }
};

TEST_F(FollowingNotes, tellsOfADeletion) {
  giveAndRemove("Gym.tx1", "old");
  EXPECT_EQ(follower_.heard, Heard{L"- Gym.tx1"});
}

TEST_F(FollowingNotes, tellsNothingOfANoteThatWasNotThere) {
  remove("Gym.tx1");
  EXPECT_EQ(follower_.heard, Heard{});
}

TEST_F(FollowingNotes, tellsNothingOfADeletionThatFails) {
  give("Gym.tx1", "old");
  disk_.isOtherDisk = true;
  disk_.locked = {"Gym.tx1"};
  EXPECT_THROW(remove("Gym.tx1"), FileError);
  EXPECT_EQ(follower_.heard, Heard{});
}

TEST_F(FollowingNotes, tellsNothingOfASaveUnderTheNameThatItHas) {
  give("Gym.tx1", "old");
  saveAs("Gym.tx1", "Gym.tx1");
  saveAs("Other.tx1", std::nullopt);
  EXPECT_EQ(follower_.heard, Heard{});
}

TEST_F(FollowingNotes, tellsOfANewNameAndNotOfADeletion) {
  give("Gym.tx1", "old");
  saveAs("Run.txt", "Gym.tx1");
  EXPECT_EQ(follower_.heard, (Heard{L"Gym.tx1 = Run.txt", L"Gym.tx1 > Run.txt"}));
}

TEST_F(FollowingNotes, tellsOfTheSameNameInOtherLetters) {
  give("gym.tx1", "old");
  saveAs("Gym.tx1", "gym.tx1");
  EXPECT_EQ(follower_.heard, Heard{L"gym.tx1 > Gym.tx1"});
}

TEST_F(FollowingNotes, leavesToBothWhatIsTheirsWhereTheOldOneCannotGo) {
  give("Gym.tx1", "old");
  disk_.isOtherDisk = true;
  disk_.locked = {"Gym.tx1"};
  EXPECT_THROW(saveAs("Run.tx1", "Gym.tx1"), FileError);
  EXPECT_EQ(follower_.heard, (Heard{L"Gym.tx1 = Run.tx1", L"- Run.tx1"}));
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "old");
}

TEST_F(FollowingNotes, tellsNothingOfFilesElsewhere) {
  folder_.write(folder_.path() / "a.txt", "x");
  folder_.write(folder_.path() / "b.txt", "x");
  writer_.remove(folder_.path() / "a.txt");
  writer_.removeRenamed(folder_.path() / "b.txt", notes_ / "c.txt");
  EXPECT_EQ(follower_.heard, Heard{});
}

}  // namespace
}  // namespace kalvora
