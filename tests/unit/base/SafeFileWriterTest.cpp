#include "base/SafeFileWriter.h"

#include <chrono>
#include <set>

#include "fakes/FaultyFileOperations.h"
#include "fakes/FileWriterContract.h"
#include "posix/StandardFileOperations.h"
#include "posix/StandardFileSystem.h"

namespace kalvora {
namespace {

/// A writer whose disk can be made to fail.
class FaultyWriter : public SafeFileWriter {
 public:
  FaultyWriter() : SafeFileWriter(operations, 7) {}

 private:
  StandardFileOperations disk_;

 public:
  FaultyFileOperations operations{disk_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(FaultyWriter, FileWriterContract, FaultyWriter);

using SafeWriting = FileWriterContract<FaultyWriter>;

TEST_F(SafeWriting, aFailureOfAnyStepIsToldAndTheOldFileStays) {
  const auto file = folder_.write("a.txt", "old");
  // Making the temporary file, writing, flushing and closing it, and putting it into its place.
  constexpr int kSteps = 5;
  for (int step = 1; step <= kSteps; ++step) {
    writer_.operations.arm(Fault::Fail, step);
    EXPECT_EQ(failureOf([&] { writer_.writeSafely(file, "something new"); }),
              L"This file cannot be written: " + file.wstring())
        << step;
    EXPECT_TRUE(writer_.operations.wasReached());
    EXPECT_EQ(contentOf(file), "old") << step;
    EXPECT_TRUE(temporaries().empty()) << step;
  }
  writer_.operations.arm(Fault::Fail, kSteps + 1);
  writer_.writeSafely(file, "something new");
  EXPECT_FALSE(writer_.operations.wasReached()) << "there is one more step to try";
  EXPECT_EQ(contentOf(file), "something new");
}

TEST_F(SafeWriting, aWriteThatEndsShortGoesOn) {
  const auto file = folder_.write("a.txt", "old");
  writer_.operations.arm(Fault::Shorten, 1);
  writer_.writeSafely(file, "something new");
  EXPECT_TRUE(writer_.operations.wasReached());
  EXPECT_EQ(contentOf(file), "something new");
}

TEST_F(SafeWriting, aFullDiskIsToldAsOneAtWhateverStepItShows) {
  const auto file = folder_.write("a.txt", "old");
  writer_.operations.failure = FileResult::DiskFull;
  constexpr int kSteps = 4;  // of making, writing, flushing and closing the temporary file
  for (int step = 1; step <= kSteps; ++step) {
    writer_.operations.arm(Fault::Fail, step);
    EXPECT_THROW(writer_.writeSafely(file, "something new"), DiskFullError) << step;
    EXPECT_EQ(contentOf(file), "old") << step;
    EXPECT_TRUE(temporaries().empty()) << step;
  }
}

TEST_F(SafeWriting, aDiskThatTakesNothingMoreIsFull) {
  const auto file = folder_.write("a.txt", "old");
  writer_.operations.arm(Fault::Shorten, 1);
  EXPECT_EQ(failureOf([&] { writer_.writeSafely(file, "n"); }),
            L"There is no room on the disk for this file: " + file.wstring());
  EXPECT_EQ(contentOf(file), "old");
  writer_.operations.arm(Fault::Shorten, 1);
  EXPECT_THROW(writer_.writeSafely(file, "n"), DiskFullError);
}

TEST_F(SafeWriting, aFailedRemovalAndAFailedFolderAreTold) {
  const auto file = folder_.write("a.txt", "old");
  writer_.operations.arm(Fault::Fail, 1);
  EXPECT_NE(failureOf([&] { writer_.remove(file); }), L"");
  EXPECT_EQ(contentOf(file), "old");
  writer_.operations.arm(Fault::Fail, 1);
  EXPECT_NE(failureOf([&] { writer_.createFolder(folder_.path() / "backup"); }), L"");
}

TEST_F(SafeWriting, leftoversGoOnceTheyAreAMinuteOldAndNothingElseDoes) {
  using std::chrono::seconds;
  const auto write = [this](const char* name, seconds age) {
    const auto file = folder_.write(name, "half a no");
    std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() - age);
  };
  write("~kalvora-1-1.tmp", seconds(70));
  write("~kalvora-3-1.tmp", seconds(100000));
  write("~kalvora-100-1.tmp", seconds(70));
  write("~kalvora-4-1.tmp", seconds(-100));  // the clock was set back
  write("~kalvora-2-1.tmp", seconds(30));    // maybe another copy is at it
  write("~mine.tmp", seconds(70));
  write("a.txt", seconds(70));
  writer_.removeLeftovers(StandardFileSystem(), folder_.path());
  std::set<std::filesystem::path> left;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
    left.insert(entry.path().filename());
  }
  EXPECT_EQ(left, (std::set<std::filesystem::path>{"a.txt", "~kalvora-2-1.tmp", "~mine.tmp"}));
}

TEST_F(SafeWriting, aTemporaryFileStandsBesideItsFileAndIsNoNoteSkinOrIcon) {
  const std::filesystem::path place =
      writer_.temporaryPlace(std::filesystem::path("notes") / "a.txt", 3);
  EXPECT_EQ(place, std::filesystem::path("notes") / "~kalvora-7-3.tmp");
  for (const wchar_t* pattern : {L"*.txt", L"*.tx?", L"*.ico", L"*.bmp", L"*.ini", L"*.wav"}) {
    EXPECT_FALSE(matchesPattern(place.filename().wstring(), pattern));
  }
}

TEST_F(SafeWriting, anotherCopysTemporaryFileStaysHoweverLongItStandsStill) {
  const SafeFileWriter another(writer_.operations, 8);
  const auto file = folder_.path() / "a.txt";
  const auto others = folder_.write(another.temporaryPlace(file, 1).filename(), "half a no");
  std::filesystem::last_write_time(
      others, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  writer_.writeSafely(file, "new");
  EXPECT_EQ(contentOf(others), "half a no");
}

TEST_F(SafeWriting, aFolderThatIsNotThereHasNoLeftovers) {
  writer_.removeLeftovers(StandardFileSystem(), folder_.path() / "backup");
  EXPECT_FALSE(std::filesystem::exists(folder_.path() / "backup"));
}

}  // namespace
}  // namespace kalvora
