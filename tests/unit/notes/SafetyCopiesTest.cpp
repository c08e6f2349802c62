#include "notes/SafetyCopies.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

#include "base/Errors.h"
#include "base/StandardFileSystem.h"
#include "base/StandardFileWriter.h"
#include "fakes/FakeClock.h"
#include "fakes/TempFolder.h"
#include "notes/KeepingFileWriter.h"

namespace kalvora {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::wstring>;

/// A disk that refuses to touch the folder of the copies, where that is wanted.
class MoodyWriter : public FileWriter {
 public:
  void writeSafely(const fs::path& file, std::string_view bytes) override {
    if (refuses && isInBackup(file)) throw FileError(L"full: ", file);
    if (bytes.size() > room) throw DiskFullError(file);
    const std::size_t old = sizeOf(file);
    disk_.writeSafely(file, bytes);
    room += old - bytes.size();
  }
  Removal remove(const fs::path& file) override {
    ++removals;
    if (isInBackup(file) && (locks || locked.contains(file.filename()))) {
      throw FileError(L"locked: ", file);
    }
    room += sizeOf(file);
    return disk_.remove(file);
  }
  void createFolder(const fs::path& folder) override { disk_.createFolder(folder); }

  bool refuses = false;
  bool locks = false;
  std::set<fs::path> locked;  // names of copies
  int removals = 0;
  /// Bytes that the disk still takes. The old file goes only when the new one is complete.
  std::size_t room = 1U << 30U;

 private:
  static std::size_t sizeOf(const fs::path& file) {
    return fs::is_regular_file(file) ? static_cast<std::size_t>(fs::file_size(file)) : 0;
  }
  static bool isInBackup(const fs::path& file) { return file.parent_path().filename() == "backup"; }
  StandardFileWriter disk_;
};

class SafetyCopiesTest : public testing::Test {
 protected:
  SafetyCopiesTest() { fs::create_directory(notes_); }

  void give(const fs::path& name, std::string_view bytes) { folder_.write(notes_ / name, bytes); }
  void save(const fs::path& name, std::string_view bytes) {
    writer_.writeSafely(notes_ / name, bytes);
  }
  void remove(const fs::path& name) { writer_.remove(notes_ / name); }
  /// A note that was there and is gone.
  void giveAndRemove(const fs::path& name, std::string_view bytes) {
    give(name, bytes);
    remove(name);
  }
  static std::string contentOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  Names copyNames() const { return files_.files(backup_, L"*"); }
  Names noteNames() const { return files_.files(notes_, L"*"); }

  TempFolder folder_;
  fs::path notes_ = folder_.path() / "notes";
  fs::path backup_ = folder_.path() / "backup";
  StandardFileSystem files_;
  MoodyWriter disk_;
  FakeClock clock_{{.year = 2027, .month = 3, .day = 8, .hour = 6, .minute = 29, .second = 5}};
  SafetyCopies copies_{backup_, files_, disk_, clock_};
  KeepingFileWriter writer_{notes_, disk_, copies_};
};

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

TEST_F(SafetyCopiesTest, whatIsNoNoteOrStandsElsewhereIsNotCopied) {
  giveAndRemove("list.doc", "old");
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
  EXPECT_EQ(copies_.newestFirst()[0].name, longest.substr(0, 220));
  EXPECT_EQ(copies_.read(copies_.newestFirst()[0]), "old");
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
                           "~kalvora-1.tmp", "Gym 2027-03-08 06-29-0x.tx1",
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
  const std::string threeMegabytes(3U << 20U, 'x');
  for (int i = 0; i < 4; ++i) {
    clock_.time.second = i;
    giveAndRemove("Large.txt", threeMegabytes);
  }
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 2U);
  EXPECT_EQ(copies[1].when.second, 2);
  EXPECT_EQ(copies_.read(copies[1]), threeMegabytes);
}

TEST_F(SafetyCopiesTest, eightMegabytesToTheByteAreKept) {
  giveAndRemove("Large.txt", std::string(8U << 20U, 'x'));
  EXPECT_EQ(copies_.newestFirst().size(), 1U);
  for (int i = 0; i < 2; ++i) {
    ++clock_.time.minute;
    giveAndRemove("Half.txt", std::string(4U << 20U, 'x'));
  }
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 2U);
  EXPECT_EQ(copies[1].name, L"Half");
}

TEST_F(SafetyCopiesTest, whatWouldTakeAllTheRoomIsNotCopied) {
  giveAndRemove("Gym.tx1", "kept");
  giveAndRemove("Huge.txt", std::string((8U << 20U) + 1, 'x'));
  ASSERT_EQ(copies_.newestFirst().size(), 1U);
  EXPECT_EQ(copies_.newestFirst()[0].name, L"Gym");
}

TEST_F(SafetyCopiesTest, theNewCopyStaysThoughTheClockWasSetBack) {
  for (int i = 0; i < 200; ++i) giveAndRemove("Gym.tx1", "later");
  clock_.time.year = 2020;
  giveAndRemove("Swim.tx1", "the newest");
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 200U);
  EXPECT_EQ(copies.back().name, L"Swim");
}

TEST_F(SafetyCopiesTest, filesOfTheUsersOwnStayWhateverTheirNumber) {
  for (int i = 0; i < 210; ++i) folder_.write(backup_ / std::to_string(i), "mine");
  giveAndRemove("Gym.tx1", "old");
  EXPECT_EQ(copyNames().size(), 211U);
}

// Never in the way.

TEST_F(SafetyCopiesTest, withoutRoomForACopyTheWorkIsDoneAllTheSame) {
  disk_.refuses = true;
  give("Gym.tx1", "old");
  save("Gym.tx1", "new");
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "new");
  remove("Gym.tx1");
  EXPECT_EQ(noteNames(), Names{});
}

TEST_F(SafetyCopiesTest, whereTheFolderCannotBeMadeTheWorkIsDoneAllTheSame) {
  folder_.write("backup", "a file of that name");
  give("Gym.tx1", "old");
  save("Gym.tx1", "new");
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "new");
  EXPECT_EQ(contentOf(backup_), "a file of that name");
}

TEST_F(SafetyCopiesTest, lockedCopiesAreNotTriedOneByOneAtASave) {
  for (int i = 0; i < 200; ++i) giveAndRemove("Gym.tx1", "old");
  disk_.locks = true;
  disk_.removals = 0;
  giveAndRemove("Gym.tx1", "newest");
  giveAndRemove("Gym.tx1", "newest");
  giveAndRemove("Gym.tx1", "newest");
  // The notes themselves, and of the one, two and three copies too many at most two.
  EXPECT_EQ(disk_.removals, 3 + 1 + 2 + 2);
  EXPECT_EQ(copyNames().size(), 203U);
  disk_.locks = false;
  giveAndRemove("Gym.tx1", "newest");
  EXPECT_EQ(copyNames().size(), 200U);
}

TEST_F(SafetyCopiesTest, copiesThatAreLockedForGoodLetNoOthersGatherBehindThem) {
  for (int i = 0; i < 5; ++i) giveAndRemove("Old.tx1", "old");
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

TEST_F(SafetyCopiesTest, theLastRoomOnTheDiskIsForTheNoteAndNotForItsCopy) {
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

TEST_F(SafetyCopiesTest, aNoteThatTheDiskHasNoRoomForIsToldAndStays) {
  give("Gym.tx1", "old");
  disk_.room = 5;
  EXPECT_THROW(save("Gym.tx1", "a new text"), DiskFullError);
  EXPECT_EQ(contentOf(notes_ / "Gym.tx1"), "old");
}

TEST_F(SafetyCopiesTest, theWorkThatFailsIsStillTold) {
  folder_.write(notes_ / "folder.txt" / "inside", "kept");
  EXPECT_THROW(save("folder.txt", "new"), FileError);
  EXPECT_THROW(remove("folder.txt"), FileError);
}

}  // namespace
}  // namespace kalvora
