#include "notes/SafetyCopies.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "unit/notes/SafetyCopiesFixture.h"

namespace kalvora {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::wstring>;

using SafetyCopiesTest = SafetyCopiesFixture;

// What is copied.

TEST_F(SafetyCopiesTest, aRemovedNoteIsKeptUnderItsNameAndTheMoment) {
  giveAndRemove("Gym.tx1", std::string_view("7|30|a\r\nb\0\xFF", 11));
  EXPECT_EQ(noteNames(), Names{});
  EXPECT_EQ(copyNames(), Names{L"Gym 2027-03-08 06-29-05.tx1"});
  EXPECT_EQ(contentOf(backup_ / "Gym 2027-03-08 06-29-05.tx1"),
            std::string("7|30|a\r\nb\0\xFF", 11));
}

TEST_F(SafetyCopiesTest, aNoteWrittenAnewKeepsItsOldContent) {
  give("Gym.tx1", "old");
  save("Gym.tx1", "new");
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "new");
  EXPECT_EQ(contentOf(backup_ / "Gym 2027-03-08 06-29-05.tx1"), "old");
}

TEST_F(SafetyCopiesTest, aNewNoteAndOneSavedUnchangedNeedNoCopy) {
  save("Gym.tx1", "new");
  save("Gym.tx1", "new");
  remove("never there.tx1");
  EXPECT_FALSE(fs::exists(backup_));
}

TEST_F(SafetyCopiesTest, whetherThereWasANoteToRemoveIsHandedOn) {
  give("Gym.tx1", "old");
  EXPECT_EQ(writer_.remove(notes_ / "Gym.tx1"), Removal::Removed);
  EXPECT_EQ(writer_.remove(notes_ / "Gym.tx1"), Removal::WasMissing);
}

TEST_F(SafetyCopiesTest, aRemovedFileThatIsNoNoteIsTheUsersOwnFromThenOn) {
  giveAndRemove("list.html", "old");
  EXPECT_EQ(copyNames(), Names{L"list 2027-03-08 06-29-05.html"});
  EXPECT_TRUE(copies_.newestFirst().empty());
}

TEST_F(SafetyCopiesTest, aRemovedNoteIsMovedWhichTakesNoRoom) {
  give("Gym.tx1", "old");
  disk_.room = 0;
  remove("Gym.tx1");
  EXPECT_EQ(noteNames(), Names{});
  EXPECT_EQ(contentOf(backup_ / "Gym 2027-03-08 06-29-05.tx1"), "old");
}

TEST_F(SafetyCopiesTest, toAnotherDiskARemovedNoteIsCopied) {
  disk_.isOtherDisk = true;
  giveAndRemove("Gym.tx1", "old");
  EXPECT_EQ(noteNames(), Names{});
  EXPECT_EQ(contentOf(backup_ / "Gym 2027-03-08 06-29-05.tx1"), "old");
}

TEST_F(SafetyCopiesTest, aCopyEqualToTheNewestOneOfThatNoteIsNone) {
  disk_.isOtherDisk = true;
  disk_.locked.insert("Gym.tx1");
  give("Gym.tx1", "old");
  for (int i = 0; i < 3; ++i) {
    EXPECT_THROW(remove("Gym.tx1"), FileError);
    copies_.keepBeforeWriting(notes_ / "Gym.tx1", "new");
    ++clock_.time.second;
  }
  // It is that of the last save, so that it does not go as an old one.
  EXPECT_EQ(copyNames(), Names{L"Gym 2027-03-08 06-29-07.tx1"});
  // Of another note, of another kind, and after another content it is one.
  for (const char* name : {"Gym.tx2", "Swim.tx1"}) giveAndRemove(name, "old");
  for (const char* bytes : {"other", "old"}) {
    ++clock_.time.second;
    give("Gym.tx1", bytes);
    copies_.keepBeforeWriting(notes_ / "Gym.tx1", "new");
  }
  EXPECT_EQ(copyNames().size(), 5U);
}

TEST_F(SafetyCopiesTest, aRemovedNoteTakesThePlaceOfTheCopyThatEqualsIt) {
  giveAndRemove("Gym.tx1", "other");
  giveAndRemove("Gym.tx1", "old");
  ++clock_.time.minute;
  giveAndRemove("GYM.tx1", "old");
  EXPECT_EQ(copyNames(), (Names{L"Gym 2027-03-08 06-29-05.tx1", L"GYM 2027-03-08 06-30-05.tx1"}));
}

TEST_F(SafetyCopiesTest, whatStandsElsewhereIsNotCopied) {
  const fs::path outside = folder_.write("Gym.tx1", "old");
  writer_.writeSafely(outside, "new");
  writer_.remove(outside);
  EXPECT_FALSE(fs::exists(backup_));
}

TEST_F(SafetyCopiesTest, copiesOfOneSecondAreNumbered) {
  for (const char* bytes : {"1", "2", "3"}) giveAndRemove("Gym.tx1", bytes);
  EXPECT_EQ(contentOf(backup_ / "Gym 2027-03-08 06-29-05.tx1"), "1");
  EXPECT_EQ(contentOf(backup_ / "Gym 2027-03-08 06-29-05 (2).tx1"), "2");
  EXPECT_EQ(contentOf(backup_ / "Gym 2027-03-08 06-29-05 (3).tx1"), "3");
}

TEST_F(SafetyCopiesTest, aNoteWithALongNameIsCopiedUnderItsBeginning) {
  const std::wstring longest(251, L'n');
  giveAndRemove(longest + L".txt", "old");
  ASSERT_EQ(copies_.newestFirst().size(), 1U);
  const std::wstring name = copies_.newestFirst()[0].name;
  EXPECT_TRUE(longest.starts_with(name));
  EXPECT_GT(name.size(), 100U);
  // A Windows path has 259 characters at most.
  const std::wstring path = (backup_ / copies_.newestFirst()[0].fileName).wstring();
  EXPECT_LE(path.size(), 259U);
  EXPECT_EQ(copies_.read(copies_.newestFirst()[0]), "old");
}

/// Another program replaces a note right after its size was asked for.
class ChangingFiles : public StandardFileSystem {
 public:
  std::optional<std::uintmax_t> size(const fs::path& file) const override {
    const auto old = StandardFileSystem::size(file);
    if (old && file.parent_path().filename() == "notes")
      StandardFileWriter().writeSafely(file, newBytes);
    return old;
  }
  std::string newBytes;
};

TEST_F(SafetyCopiesTest, aNoteThatIsReplacedMeanwhileIsCopiedWholeOrNotAtAll) {
  ChangingFiles files;
  SafetyCopies copies(backup_, files, disk_, clock_);
  give("Gym.tx1", "old");
  files.newBytes = "longer than before";
  copies.keepBeforeRemoving(notes_ / "Gym.tx1");
  EXPECT_EQ(contentOf(backup_ / "Gym 2027-03-08 06-29-05.tx1"), "longer than before");
  files.newBytes = std::string(SafetyCopies::kMostBytes + 1, 'x');
  EXPECT_THROW(copies.keepBeforeRemoving(notes_ / "Gym.tx1"), FileError);
  EXPECT_EQ(copyNames(), Names{L"Gym 2027-03-08 06-29-05.tx1"});
}

// What is listed.

TEST_F(SafetyCopiesTest, theNewestCopyComesFirst) {
  clock_.time.second = 58;
  giveAndRemove("a.txt", "3");
  giveAndRemove("a.txt", "4");
  clock_.time.year = 2026;
  clock_.time.month = 12;
  giveAndRemove("b.tx2", "2");
  clock_.time.day = 1;
  giveAndRemove("c.tx3", "1");
  const auto copies = copies_.newestFirst();
  std::string order;
  for (const SafetyCopy& copy : copies) order += copies_.read(copy);
  EXPECT_EQ(order, "4321");
  EXPECT_EQ(copies[2].name, L"b");
  EXPECT_EQ(copies[2].kind, NoteKind::Weekly);
  EXPECT_EQ(
      copies[2].when,
      (LocalTime{.year = 2026, .month = 12, .day = 8, .hour = 6, .minute = 29, .second = 58}));
}

TEST_F(SafetyCopiesTest, everyNameComesBackAsItWas) {
  for (const wchar_t* name :
       {L"", L" ", L"a (2)", L"a 2026-01-01 00-00-00", L"b 2026-01-01 00-00-00 (7)"}) {
    giveAndRemove(std::wstring(name) + L".txt", "x");
    const auto copies = copies_.newestFirst();
    EXPECT_TRUE(std::ranges::any_of(copies, [&](const auto& copy) { return copy.name == name; }))
        << fs::path(name);
  }
  EXPECT_EQ(copies_.newestFirst().size(), 5U);
}

TEST_F(SafetyCopiesTest, otherFilesOfTheFolderAreNotListed) {
  for (const char* name : {"Gym.tx1", "Gym 2027-03-08 06-29-05.doc", "Gym 2027-03-08 06:29.tx1",
                           "~kalvora-1-1.tmp", "Gym 2027-03-08 06-29-0x.tx1",
                           "2027-03-08 06-29-05.tx1", "Gym 2027-03-08 06-29-05 (x).tx1"}) {
    folder_.write(backup_ / name, "x");
  }
  EXPECT_TRUE(copies_.newestFirst().empty());
}

// How much is kept.

TEST_F(SafetyCopiesTest, theOldestOfMoreThan200CopiesGoes) {
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

TEST_F(SafetyCopiesTest, theOldestOfMoreThan8MegabytesGoes) {
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

TEST_F(SafetyCopiesTest, eightMegabytesToTheByteAreKept) {
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

TEST_F(SafetyCopiesTest, whatWouldTakeAllTheRoomStaysUntilTheNextLargeOneAndPushesNoneOut) {
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

TEST_F(SafetyCopiesTest, whatWouldTakeAllTheRoomIsNeitherCopiedToAnotherDiskNorRemoved) {
  disk_.isOtherDisk = true;
  give("Huge.txt", std::string((8U << 20U) + 1, 'x'));
  EXPECT_THROW(remove("Huge.txt"), FileError);
  EXPECT_EQ(noteNames(), Names{L"Huge.txt"});
  save("Huge.txt", "new");
  EXPECT_TRUE(copies_.newestFirst().empty());
}

TEST_F(SafetyCopiesTest, theNewCopyStaysThoughTheClockWasSetBack) {
  for (int i = 0; i < 200; ++i) giveAndRemove("Gym.tx1", std::to_string(i));
  clock_.time.year = 2020;
  giveAndRemove("Swim.tx1", "the newest");
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 200U);
  EXPECT_EQ(copies.back().name, L"Swim");
}

TEST_F(SafetyCopiesTest, afterTheClockWasSetBackTheNextCopyDoesNotTakeTheOneBefore) {
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

TEST_F(SafetyCopiesTest, whereTheClockIsSetBackByADayTheNewestStay) {
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

TEST_F(SafetyCopiesTest, filesOfTheUsersOwnStayWhateverTheirNumber) {
  for (int i = 0; i < 210; ++i) folder_.write(backup_ / std::to_string(i), "mine");
  giveAndRemove("Gym.tx1", "old");
  EXPECT_EQ(copyNames().size(), 211U);
}

// Never in the way.

TEST_F(SafetyCopiesTest, withoutRoomForACopyANoteIsSavedAllTheSame) {
  disk_.refuses = true;
  give("Gym.tx1", "old");
  save("Gym.tx1", "new");
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "new");
}

TEST_F(SafetyCopiesTest, draftsMakeRoomForTheCopyOfANote) {
  copies_.leaveDraft(copies_.keepDraft({NoteKind::Fast, L"typed", std::string(30, 'x'), true}, {}));
  give("Gym.tx1", "a text of 21 letters.");
  disk_.room = 4;
  save("Gym.tx1", "x");
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_EQ(copies_.read(copies[0]), "a text of 21 letters.");
}

TEST_F(SafetyCopiesTest, aNoteOfWhichNoCopyCanBeKeptIsNotRemoved) {
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

TEST_F(SafetyCopiesTest, whereTheFolderCannotBeMadeNotesAreSavedAndNoneIsRemoved) {
  folder_.write("backup", "a file of that name");
  give("Gym.tx1", "old");
  save("Gym.tx1", "new");
  EXPECT_THROW(remove("Gym.tx1"), FileError);
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "new");
  EXPECT_EQ(contentOf(backup_), "a file of that name");
}

TEST_F(SafetyCopiesTest, lockedCopiesAreNotTriedOneByOneAtASave) {
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

TEST_F(SafetyCopiesTest, copiesThatAreLockedForGoodLetNoOthersGatherBehindThem) {
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

TEST_F(SafetyCopiesTest, theWorkThatFailsIsStillTold) {
  folder_.write(notes_ / "folder.txt" / "inside", "kept");
  EXPECT_THROW(save("folder.txt", "new"), FileError);
  EXPECT_THROW(remove("folder.txt"), FileError);
}

}  // namespace
}  // namespace kalvora
