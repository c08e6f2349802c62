#include "win32/platform/WindowsFileSystem.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <optional>
#include <thread>

#include "base/Errors.h"
#include "fakes/TempFolder.h"
#include "platform/HeldHandles.h"
#include "posix/StandardFileSystem.h"
#include "win32/platform/DiskFile.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

class WindowsFiles : public testing::Test {
 protected:
  std::filesystem::path write(const std::filesystem::path& name, std::string_view bytes = "x") {
    return folder_.write(name, bytes);
  }
  Names names(std::wstring_view pattern = L"*") const {
    return files_.files(folder_.path(), pattern);
  }

  TempFolder folder_;
  WindowsFileSystem files_;
};

UniqueFile openForWriting(const std::filesystem::path& file, DWORD share) {
  return UniqueFile(
      CreateFileW(file.c_str(), GENERIC_WRITE, share, nullptr, OPEN_EXISTING, 0, nullptr));
}

void setWritten(const std::filesystem::path& file, const SYSTEMTIME& universal) {
  FILETIME time{};
  ASSERT_TRUE(SystemTimeToFileTime(&universal, &time));
  const UniqueFile handle = openForWriting(file, FILE_SHARE_READ);
  ASSERT_TRUE(SetFileTime(handle.get(), nullptr, nullptr, &time));
}

TEST_F(WindowsFiles, areListedByNameWithoutRegardToCase) {
  for (const wchar_t* name : {L"b.txt", L"C.txt", L"a.txt", L"B1.txt", L"_.txt", L"10.txt",
                              L"9.txt", L"\u00C4.txt", L"\u00E0.txt"}) {
    write(name);
  }
  EXPECT_EQ(names(), (Names{L"10.txt", L"9.txt", L"a.txt", L"b.txt", L"B1.txt", L"C.txt", L"_.txt",
                            L"\u00E0.txt", L"\u00C4.txt"}));
}

TEST_F(WindowsFiles, standInListsThemInTheSameOrder) {
  for (const wchar_t* name : {L"b.txt", L"C.txt", L"a b.txt", L"a.txt", L"a_b.txt", L"aB.tx1",
                              L"\u017B.txt", L"\u017Ca.txt", L"\u0416.txt"}) {
    write(name);
  }
  EXPECT_EQ(names(), StandardFileSystem().files(folder_.path(), L"*"));
  EXPECT_EQ(names(L"*.TXT"), StandardFileSystem().files(folder_.path(), L"*.TXT"));
}

TEST_F(WindowsFiles, patternKnowsNoShortNames) {
  write(L"a.tx1");
  write(L"b.TX1");
  write(L"c.tx12");
  write(L"d.tx2");
  write(L"etx1");
  EXPECT_EQ(names(L"*.tx1"), (Names{L"a.tx1", L"b.TX1"}));
}

TEST_F(WindowsFiles, hiddenAndSystemFilesAreLeftOut) {
  SetFileAttributesW(write(L"hidden.txt").c_str(), FILE_ATTRIBUTE_HIDDEN);
  SetFileAttributesW(write(L"system.txt").c_str(), FILE_ATTRIBUTE_SYSTEM);
  SetFileAttributesW(write(L"readonly.txt").c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(names(), Names{L"readonly.txt"});
  EXPECT_FALSE(files_.fileExists(folder_.path(), L"hidden.txt"));
  EXPECT_TRUE(files_.fileExists(folder_.path(), L"ReadOnly.TXT"));
  SetFileAttributesW((folder_.path() / L"readonly.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFiles, aNameThatIsAskedForAloneExistsWhereTheListingHasIt) {
  write(L"Gym.txt");
  write(L"Zo\u00EB.tx1");
  write(L"a name that is much longer than the short ones.txt");
  write(L"sub/inner.txt");
  SetFileAttributesW(write(L"hidden.txt").c_str(), FILE_ATTRIBUTE_HIDDEN);
  SetFileAttributesW(write(L"system.txt").c_str(), FILE_ATTRIBUTE_SYSTEM);
  int found = 0;
  for (const wchar_t* name : {L"Gym.txt",
                              L"gYM.TXT",
                              L"Gym.tx",
                              L"Gym.txt.",
                              L"Gym.txt ",
                              L"Gym",
                              L"*.txt",
                              L"Gy?.txt",
                              L"zO\u00CB.tx1",
                              L"ANAMET~1.TXT",
                              L"sub",
                              L"sub/inner.txt",
                              L"sub\\inner.txt",
                              L"hidden.txt",
                              L"system.txt",
                              L"",
                              L".",
                              L"..",
                              L"aux.txt",
                              L"con",
                              L"Gym.txt:stream",
                              L"missing.txt",
                              L"A NAME that is much longer than the short ones.txt"}) {
    const bool exists = files_.fileExists(folder_.path(), name);
    EXPECT_EQ(exists, files_.FileSystem::fileExists(folder_.path(), name)) << name;
    found += exists ? 1 : 0;
  }
  EXPECT_EQ(found, 4);
  EXPECT_FALSE(files_.fileExists(folder_.path() / L"none", L"Gym.txt"));
  EXPECT_FALSE(files_.fileExists({}, L"Gym.txt"));
}

TEST_F(WindowsFiles, theListingTellsWhichWereNotWrittenSince) {
  const std::filesystem::path old = write(L"old.txt", "12345");
  const std::filesystem::path young = write(L"young.txt", "12345");
  setWritten(old, {2020, 2, 0, 3, 4, 0, 0, 0});
  const FolderListing before = files_.list(folder_.path(), L"*");
  const FolderListing after = files_.list(folder_.path(), L"*");
  ASSERT_EQ(before.names(), (Names{L"old.txt", L"young.txt"}));
  EXPECT_EQ(before[0].stamp.bytes, 5U);
  EXPECT_TRUE(isUnchanged(before[0].stamp, after[0].stamp));
  EXPECT_FALSE(isUnchanged(before[1].stamp, after[1].stamp)) << "written just now";
  setWritten(old, {2020, 2, 0, 3, 5, 0, 0, 0});
  EXPECT_FALSE(isUnchanged(before[0].stamp, files_.list(folder_.path(), L"*")[0].stamp));
}

TEST_F(WindowsFiles, foldersAreAListOfTheirOwn) {
  write(L"a.txt");
  write(L"Second/a.txt");
  write(L"first/a.txt");
  write(L"gone/a.txt");
  SetFileAttributesW((folder_.path() / L"gone").c_str(), FILE_ATTRIBUTE_HIDDEN);
  EXPECT_EQ(names(), Names{L"a.txt"});
  EXPECT_EQ(files_.folders(folder_.path()), (Names{L"first", L"Second"}));
}

TEST_F(WindowsFiles, missingFolderIsAnEmptyOne) {
  for (const auto& folder : {folder_.path() / L"none", std::filesystem::path(), write(L"file.txt"),
                             std::filesystem::path(L"?:\\<>")}) {
    EXPECT_EQ(files_.files(folder, L"*"), Names{});
    EXPECT_EQ(files_.folders(folder), Names{});
  }
}

TEST_F(WindowsFiles, onlyAFolderCanBeListed) {
  write(L"file");
  EXPECT_TRUE(files_.list(folder_.path(), L"*").whole());
  EXPECT_TRUE(files_.list(folder_.path(), L"none*.tmp").whole()) << "nothing matches";
  for (const wchar_t* name : {L"file", L"missing"}) {
    EXPECT_FALSE(files_.list(folder_.path() / name, L"*").whole());
  }
  EXPECT_FALSE(files_.list({}, L"*").whole());
}

TEST_F(WindowsFiles, folderWithATrailingSeparatorAndAnyNameIsListed) {
  write(L"\u4E2D\u0416/a.txt");
  const std::wstring path = (folder_.path() / L"\u4E2D\u0416").native() + L"\\";
  EXPECT_EQ(files_.files(path, L"*"), Names{L"a.txt"});
}

TEST_F(WindowsFiles, sizeIsKnownOfFilesOnly) {
  EXPECT_EQ(files_.size(write(L"a.txt", "12345")), 5U);
  EXPECT_EQ(files_.size(write(L"b.txt", "")), 0U);
  EXPECT_EQ(files_.size(folder_.path() / L"none"), std::nullopt);
  EXPECT_EQ(files_.size(folder_.path()), std::nullopt);
}

TEST_F(WindowsFiles, sizeBeyond32BitsIsKnown) {
  const auto file = write(L"sparse.bin", "");
  {
    const UniqueFile handle = openForWriting(file, 0);
    LARGE_INTEGER end{};
    end.QuadPart = 5'000'000'000;
    ASSERT_TRUE(SetFilePointerEx(handle.get(), end, nullptr, FILE_BEGIN));
    ASSERT_TRUE(SetEndOfFile(handle.get()));
  }
  EXPECT_EQ(files_.size(file), 5'000'000'000U);
}

TEST_F(WindowsFiles, readGivesTheFirstBytes) {
  const std::string bytes = std::string("a\0\r\n\x1A|", 6) + std::string(200'000, 'x');
  const auto file = write(L"a.txt", bytes);
  EXPECT_EQ(files_.read(file, 1'000'000), bytes);
  EXPECT_EQ(files_.read(file, static_cast<std::size_t>(-1)), bytes);
  EXPECT_EQ(files_.read(file, bytes.size()), bytes);
  EXPECT_EQ(files_.read(file, 100'000), bytes.substr(0, 100'000));
  EXPECT_EQ(files_.read(file, 0), "");
  EXPECT_EQ(files_.read(write(L"empty.txt", ""), 10), "");
}

TEST_F(WindowsFiles, whatCannotBeReadIsAFileError) {
  EXPECT_THROW(files_.read(folder_.path() / L"none", 1), FileError);
  EXPECT_THROW(files_.read(folder_.path(), 1), FileError);
  EXPECT_THROW(files_.lastWritten(folder_.path() / L"none"), FileError);
  const auto file = write(L"locked.txt");
  const UniqueFile lock = openForWriting(file, 0);
  EXPECT_THROW(files_.read(file, 1), FileError);
}

TEST_F(WindowsFiles, fileThatAnotherProgramWritesCanBeRead) {
  const auto file = write(L"a.txt", "abc");
  const UniqueFile writer = openForWriting(file, FILE_SHARE_READ);
  ASSERT_TRUE(writer);
  EXPECT_EQ(files_.read(file, 10), "abc");
}

TEST_F(WindowsFiles, noHandleStaysOpen) {
  const auto file = write(L"a.txt");
  const auto lookAtAll = [&] {
    files_.read(file, 10);
    names();
    files_.folders(folder_.path());
  };
  lookAtAll();
  const HeldHandles before;
  for (int i = 0; i < 50; ++i) lookAtAll();
  EXPECT_FALSE(before.grew());
  EXPECT_TRUE(DeleteFileW(file.c_str()));
}

/// The tests are run in a zone that is an hour ahead of universal time in winter and two in summer.
TEST_F(WindowsFiles, lastWrittenIsTheLocalTimeOfItsOwnHalfYear) {
  TIME_ZONE_INFORMATION zone{};
  GetTimeZoneInformation(&zone);
  ASSERT_EQ(zone.Bias, -60) << "run these tests with the time zone of their CMakeLists.txt";
  ASSERT_EQ(zone.DaylightBias, -60);
  const auto file = write(L"a.txt");
  setWritten(file, {2026, 1, 0, 15, 23, 30, 45, 999});
  EXPECT_EQ(files_.lastWritten(file), (LocalTime{2026, 1, 16, 5, 0, 30, 45}));
  setWritten(file, {2026, 7, 0, 15, 22, 30, 45, 0});
  EXPECT_EQ(files_.lastWritten(file), (LocalTime{2026, 7, 16, 4, 0, 30, 45}));
}

TEST_F(WindowsFiles, lastWrittenOfANewFileIsNow) {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  const LocalTime written = files_.lastWritten(write(L"a.txt"));
  SYSTEMTIME later{};
  GetLocalTime(&later);
  // When the hour passed meanwhile there is nothing to compare.
  if (later.wHour != now.wHour) return;
  EXPECT_EQ(written.day, now.wDay);
  EXPECT_EQ(written.hour, now.wHour);
}

/// Waits for a client under a name of its own, and answers it with one byte.
class OneBytePipe {
 public:
  explicit OneBytePipe(const std::filesystem::path& name)
      : name_(name), answer_([this] {
          ConnectNamedPipe(pipe_.get(), nullptr);
          DWORD written = 0;
          WriteFile(pipe_.get(), "x", 1, &written, nullptr);
        }) {}
  /// Comes as a client where there was none.
  ~OneBytePipe() {
    UniqueFile(CreateFileW(name_.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  }
  OneBytePipe(const OneBytePipe&) = delete;
  OneBytePipe& operator=(const OneBytePipe&) = delete;

 private:
  const std::filesystem::path name_;
  const UniqueFile pipe_{
      CreateNamedPipeW(name_.c_str(), PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE, 1, 1, 0, 0, nullptr)};
  const std::jthread answer_;  // ends before the pipe
};

TEST_F(WindowsFiles, onADiskAreAllThatIsRead) {
  const std::filesystem::path pipe =
      L"\\\\.\\pipe\\kalvora-" + std::to_wstring(GetCurrentProcessId());
  {
    const OneBytePipe answers(pipe);
    EXPECT_TRUE(leadsToDevice(pipe));
  }
  {
    const OneBytePipe answers(pipe);
    EXPECT_THROW(files_.read(pipe, 1), FileError);
  }
  for (const wchar_t* name : {L"nul", L"nul.txt", L"aux.tx2", L"com1.txt"}) {
    EXPECT_TRUE(leadsToDevice(folder_.path() / name));
    EXPECT_THROW(files_.read(folder_.path() / name, 1), FileError);
  }
  EXPECT_FALSE(leadsToDevice(write("a.txt")));
  EXPECT_FALSE(leadsToDevice(folder_.path() / "missing.txt"));
}

TEST_F(WindowsFiles, thatAreReadCanBeWrittenRenamedAndDeletedMeanwhile) {
  const std::filesystem::path file = write("a.txt");
  const UniqueFile reading = openDiskFile(file);
  ASSERT_TRUE(reading);
  EXPECT_TRUE(openForWriting(file, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE));
  EXPECT_TRUE(MoveFileW(file.c_str(), (folder_.path() / "b.txt").c_str()));
  EXPECT_TRUE(DeleteFileW((folder_.path() / "b.txt").c_str()));
}

}  // namespace
}  // namespace kalvora
