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

TEST_F(SafetyCopiesTest, eachChangeOfANoteIsCounted) {
  save("Gym.tx1", "7|30|mat");
  EXPECT_EQ(writer_.changes(), 1U);
  writer_.move(notes_ / "Gym.tx1", notes_ / "Swim.tx1");
  EXPECT_EQ(writer_.changes(), 2U);
  remove("Swim.tx1");
  EXPECT_EQ(writer_.changes(), 3U);
  writer_.writeSafely(folder_.path() / "elsewhere.txt", "");
  EXPECT_EQ(writer_.changes(), 3U);
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
  SafetyCopies copies(backup_, files, disk_, clock_, [] { return knownKinds({}); });
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
}  // namespace
}  // namespace kalvora
