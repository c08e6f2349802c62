#include "posix/StandardFileSystem.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>

#include "base/Errors.h"
#include "fakes/TempFolder.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

class StandardFiles : public testing::Test {
 protected:
  TempFolder folder_;
  StandardFileSystem files_;
};

TEST_F(StandardFiles, areListedInTheOrderOfNames) {
  for (const char* name : {"b.txt", "C.txt", "a.TXT", "a b.txt", "x.tx1", ".hidden.txt"}) {
    folder_.write(name, "");
  }
  folder_.write("folder.txt/inner.txt", "");
  EXPECT_EQ(files_.files(folder_.path(), L"*.txt"),
            (Names{L"a b.txt", L"a.TXT", L"b.txt", L"C.txt"}));
  EXPECT_EQ(files_.files(folder_.path(), L"*").size(), 5U);
  EXPECT_EQ(files_.files(folder_.path(), L"none"), Names{});
}

TEST_F(StandardFiles, foldersAreAListOfTheirOwn) {
  folder_.write("b/x", "");
  folder_.write("A/x", "");
  folder_.write(".hidden/x", "");
  folder_.write("file", "");
  EXPECT_EQ(files_.folders(folder_.path()), (Names{L"A", L"b"}));
}

TEST_F(StandardFiles, missingFolderIsAnEmptyOne) {
  const auto file = folder_.write("file", "");
  for (const auto& folder : {folder_.path() / "none", file, std::filesystem::path()}) {
    EXPECT_EQ(files_.files(folder, L"*"), Names{});
    EXPECT_EQ(files_.folders(folder), Names{});
  }
}

TEST_F(StandardFiles, sizeIsKnownOfFilesOnly) {
  EXPECT_EQ(files_.size(folder_.write("a", "12345")), 5U);
  EXPECT_EQ(files_.size(folder_.write("b", "")), 0U);
  EXPECT_EQ(files_.size(folder_.path() / "none"), std::nullopt);
  EXPECT_EQ(files_.size(folder_.path()), std::nullopt);
}

TEST_F(StandardFiles, readGivesTheFirstBytes) {
  const std::string bytes("a\0\r\n\x1A|z", 7);
  const auto file = folder_.write("a", bytes);
  EXPECT_EQ(files_.read(file, 100), bytes);
  EXPECT_EQ(files_.read(file, static_cast<std::size_t>(-1)), bytes);
  EXPECT_EQ(files_.read(file, 7), bytes);
  EXPECT_EQ(files_.read(file, 2), bytes.substr(0, 2));
  EXPECT_EQ(files_.read(file, 0), "");
  EXPECT_EQ(files_.read(folder_.write("empty", ""), 10), "");
}

TEST_F(StandardFiles, readerOfAFolderReadsItsFiles) {
  folder_.write("a b.txt", "12345");
  const auto reader = files_.readerOf(folder_.path());
  EXPECT_EQ(reader->read(L"a b.txt", 100), "12345");
  EXPECT_EQ(reader->read(L"a b.txt", 2), "12");
  folder_.write("later.txt", "x");
  EXPECT_EQ(reader->read(L"later.txt", 2), "x");
  EXPECT_THROW(reader->read(L"none", 1), FileError);
  EXPECT_THROW(files_.readerOf(folder_.path() / "none")->read(L"a b.txt", 1), FileError);
}

TEST_F(StandardFiles, whatCannotBeReadIsAFileError) {
  EXPECT_THROW(files_.read(folder_.path() / "none", 1), FileError);
  EXPECT_THROW(files_.read(folder_.path(), 1), FileError);
  EXPECT_THROW(files_.lastWritten(folder_.path() / "none"), FileError);
}

TEST_F(StandardFiles, lastWrittenIsLocalTime) {
  const auto file = folder_.write("a", "");
  const std::time_t moment = 1'800'000'000;
  const auto age =
      std::chrono::system_clock::now() - std::chrono::system_clock::from_time_t(moment);
  std::filesystem::last_write_time(
      file, std::filesystem::file_time_type::clock::now() -
                std::chrono::duration_cast<std::filesystem::file_time_type::duration>(age) +
                std::chrono::milliseconds(500));
  const std::tm expected = *std::localtime(&moment);
  EXPECT_EQ(files_.lastWritten(file),
            (LocalTime{expected.tm_year + 1900, expected.tm_mon + 1, expected.tm_mday,
                       expected.tm_wday, expected.tm_hour, expected.tm_min, expected.tm_sec}));
}

#ifdef __unix__
TEST_F(StandardFiles, nameOfBytesThatAreNoTextIsLeftOut) {
  folder_.write("a.txt", "");
  folder_.write("\xFF\xFE.txt", "");
  EXPECT_EQ(files_.files(folder_.path(), L"*"), Names{L"a.txt"});
}
#endif

TEST(StandardFileSystem, onlyAFolderCanBeListed) {
  const TempFolder folder;
  folder.write("file", "");
  const StandardFileSystem files;
  EXPECT_TRUE(files.list(folder.path(), L"*").whole());
  EXPECT_FALSE(files.list(folder.path() / "file", L"*").whole());
  EXPECT_FALSE(files.list(folder.path() / "missing", L"*").whole());
}

}  // namespace
}  // namespace kalvora
