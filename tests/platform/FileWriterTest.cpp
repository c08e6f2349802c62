#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <string>
#include <thread>
#include <utility>

#include "fakes/FileWriterContract.h"
#include "platform/HeldHandles.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/platform/WindowsFileWriter.h"

namespace kalvora {

INSTANTIATE_TYPED_TEST_SUITE_P(WindowsFileWriter, FileWriterContract, WindowsFileWriter);

namespace {

using WindowsFileWriterFaults = FileWriterContract<WindowsFileWriter>;

UniqueFile heldAlone(const std::filesystem::path& file) {
  return UniqueFile(CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
}

/// Held by a program that lets others read, write and remove it.
UniqueFile sharedByAll(const std::filesystem::path& file) {
  const DWORD all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return UniqueFile(
      CreateFileW(file.c_str(), GENERIC_READ, all, nullptr, OPEN_EXISTING, 0, nullptr));
}

/// Lets go of a file after a moment.
class LetGoSoon {
 public:
  explicit LetGoSoon(UniqueFile file) : file_(std::move(file)) {
    EXPECT_TRUE(file_);
    release_ = std::jthread([this] {
      Sleep(40);
      file_.reset();
    });
  }

  void wait() { release_.join(); }

 private:
  UniqueFile file_;
  std::jthread release_;
};

TEST_F(WindowsFileWriterFaults, temporaryFilesCarryTheNumberOfThisProcess) {
  // What a killed program of the same number left is in the way, and old enough to go.
  const auto mine =
      folder_.write(L"~kalvora-" + std::to_wstring(GetCurrentProcessId()) + L"-1.tmp", "left");
  const auto anothers = folder_.write("~kalvora-1-1.tmp", "another's");
  for (const auto& file : {mine, anothers}) {
    std::filesystem::last_write_time(
        file, std::filesystem::file_time_type::clock::now() - std::chrono::minutes(2));
  }
  writer_.writeSafely(folder_.path() / "a.txt", "new");
  EXPECT_FALSE(std::filesystem::exists(mine));
  EXPECT_TRUE(std::filesystem::exists(anothers));
}

TEST_F(WindowsFileWriterFaults, aFolderAndANameOutsideEveryCodePageWork) {
  const auto folder = folder_.path() / L"\u0141\u00F3d\u017A \u65E5\u672C";
  std::filesystem::create_directory(folder);
  const auto file = folder / L"\u00E9\u0416.txt";
  writer_.writeSafely(file, "new");
  EXPECT_EQ(contentOf(file), "new");
  EXPECT_EQ(writer_.remove(file), Removal::Removed);
}

TEST_F(WindowsFileWriterFaults, aFileThatAnotherProgramHoldsStaysAsItWas) {
  const auto file = folder_.write("a.txt", "old");
  UniqueFile holder = heldAlone(file);
  ASSERT_TRUE(holder);
  EXPECT_EQ(failureOf([&] { writer_.writeSafely(file, "new"); }),
            L"This file cannot be written: " + file.wstring());
  EXPECT_EQ(failureOf([&] { writer_.remove(file); }),
            L"This file cannot be deleted: " + file.wstring());
  holder.reset();
  EXPECT_EQ(contentOf(file), "old");
  EXPECT_TRUE(temporaries().empty());
}

TEST_F(WindowsFileWriterFaults, aFileThatIsHeldForAMomentIsWrittenAfterIt) {
  const auto file = folder_.write("a.txt", "old");
  LetGoSoon holder(heldAlone(file));
  EXPECT_EQ(failureOf([&] { writer_.writeSafely(file, "new"); }), L"");
  holder.wait();
  EXPECT_EQ(contentOf(file), "new");
}

TEST_F(WindowsFileWriterFaults, aReadOnlyFileStaysAsItWas) {
  const auto file = folder_.write("a.txt", "old");
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_NE(failureOf([&] { writer_.writeSafely(file, "new"); }), L"");
  EXPECT_NE(failureOf([&] { writer_.remove(file); }), L"");
  EXPECT_NE(failureOf([&] { writer_.move(file, folder_.path() / "b.txt"); }), L"");
  EXPECT_NE(failureOf([&] { writer_.move(file, folder_.path() / "A.txt"); }), L"");
  EXPECT_EQ(contentOf(file), "old");
  EXPECT_TRUE(temporaries().empty());
  SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFileWriterFaults, aFileThatStaysUntilAnotherProgramClosesItDoesNotCountAsRemoved) {
  const auto file = folder_.write("a.txt", "old");
  const UniqueFile holder = sharedByAll(file);
  ASSERT_TRUE(holder);
  const std::wstring failure = failureOf([&] { writer_.remove(file); });
  // Some systems take the name away at once, others only when the file is closed.
  if (GetFileAttributesW(file.c_str()) == INVALID_FILE_ATTRIBUTES) {
    EXPECT_EQ(failure, L"");
  } else {
    EXPECT_EQ(failure, L"This file cannot be deleted: " + file.wstring());
  }
}

TEST_F(WindowsFileWriterFaults, aFileThatStaysForAMomentIsRemovedAfterIt) {
  const auto file = folder_.write("a.txt", "old");
  LetGoSoon holder(sharedByAll(file));
  EXPECT_EQ(writer_.remove(file), Removal::Removed);
  holder.wait();
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(WindowsFileWriterFaults, writingAndFailingLeaveNoHandleOpen) {
  const auto file = folder_.path() / "a.txt";
  const auto writeAndFail = [&] {
    writer_.writeSafely(file, "new");
    EXPECT_NE(failureOf([&] { writer_.writeSafely(folder_.path() / "none" / "a", "new"); }), L"");
  };
  writeAndFail();
  const HeldHandles before;
  for (int i = 0; i < 20; ++i) writeAndFail();
  EXPECT_FALSE(before.grew());
}

}  // namespace
}  // namespace kalvora
