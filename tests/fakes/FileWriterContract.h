#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Errors.h"
#include "base/SafeFileWriter.h"
#include "fakes/TempFolder.h"

namespace kalvora {

/// What every FileWriter must do, whatever it stands on.
template <typename Writer>
class FileWriterContract : public testing::Test {
 protected:
  std::optional<std::string> contentOf(const std::filesystem::path& file) const {
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), {});
  }

  /// The temporary files that stand in the folder.
  std::vector<std::filesystem::path> temporaries() const {
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
      if (entry.path().extension() == ".tmp") found.push_back(entry.path());
    }
    return found;
  }

  /// A file in the place of a temporary one of the writer.
  std::filesystem::path giveTemporary(int number, std::string_view bytes) {
    return folder_.write(writer_.temporaryPlace("a.txt", number), bytes);
  }

  /// The sentence of the failure that `work` ends with; empty where it does not fail.
  template <typename Work>
  std::wstring failureOf(const Work& work) const {
    try {
      work();
    } catch (const FileError& error) {
      return error.message();
    }
    return {};
  }

  TempFolder folder_;
  Writer writer_;
};

TYPED_TEST_SUITE_P(FileWriterContract);

TYPED_TEST_P(FileWriterContract, aNewFileHoldsTheBytes) {
  const std::string bytes("7|30|a\r\nb\0\xFF", 11);
  const auto file = this->folder_.path() / "Gym.txt";
  this->writer_.writeSafely(file, bytes);
  EXPECT_EQ(this->contentOf(file), bytes);
  EXPECT_TRUE(this->temporaries().empty());
}

TYPED_TEST_P(FileWriterContract, anOldFileIsReplacedWhole) {
  const auto file = this->folder_.write("a.txt", "a much longer old content");
  this->writer_.writeSafely(file, "new");
  EXPECT_EQ(this->contentOf(file), "new");
  this->writer_.writeSafely(file, "");
  EXPECT_EQ(this->contentOf(file), "");
  EXPECT_TRUE(this->temporaries().empty());
}

TYPED_TEST_P(FileWriterContract, aLargeContentIsWrittenWhole) {
  const std::string bytes(3U << 20U, 'x');
  const auto file = this->folder_.path() / "a.txt";
  this->writer_.writeSafely(file, bytes);
  EXPECT_EQ(this->contentOf(file), bytes);
}

TYPED_TEST_P(FileWriterContract, aMissingFolderIsNamedAndNotMade) {
  const auto file = this->folder_.path() / "notes" / "a.txt";
  EXPECT_EQ(this->failureOf([&] { this->writer_.writeSafely(file, "new"); }),
            L"This file cannot be written: " + file.wstring());
  EXPECT_FALSE(std::filesystem::exists(file.parent_path()));
}

TYPED_TEST_P(FileWriterContract, aFolderThatIsAFileFails) {
  const auto file = this->folder_.write("notes", "no folder") / "a.txt";
  EXPECT_NE(this->failureOf([&] { this->writer_.writeSafely(file, "new"); }), L"");
  EXPECT_EQ(this->contentOf(file.parent_path()), "no folder");
}

TYPED_TEST_P(FileWriterContract, aFolderOfTheFilesNameIsKeptAndNoTemporaryFileStays) {
  const auto file = this->folder_.write("a.txt/inside", "kept").parent_path();
  EXPECT_NE(this->failureOf([&] { this->writer_.writeSafely(file, "new"); }), L"");
  EXPECT_EQ(this->contentOf(file / "inside"), "kept");
  EXPECT_TRUE(this->temporaries().empty());
}

TYPED_TEST_P(FileWriterContract, aTemporaryFileInUseIsLeftAloneAndAnotherNameIsTaken) {
  const auto others = this->giveTemporary(1, "another program's");
  const auto file = this->folder_.path() / "a.txt";
  this->writer_.writeSafely(file, "new");
  EXPECT_EQ(this->contentOf(file), "new");
  EXPECT_EQ(this->contentOf(others), "another program's");
  EXPECT_EQ(this->temporaries().size(), 1U);
}

TYPED_TEST_P(FileWriterContract, whatAKilledProgramLeftIsRemoved) {
  const auto leftover = this->giveTemporary(1, "half a no");
  std::filesystem::last_write_time(
      leftover, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  const auto file = this->folder_.path() / "a.txt";
  this->writer_.writeSafely(file, "new");
  EXPECT_EQ(this->contentOf(file), "new");
  EXPECT_TRUE(this->temporaries().empty());
}

TYPED_TEST_P(FileWriterContract, whatAKilledProgramLeftBehindAnothersFileIsRemovedToo) {
  const auto others = this->giveTemporary(1, "another program's");
  const auto leftover = this->giveTemporary(2, "half a no");
  std::filesystem::last_write_time(
      leftover, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  this->writer_.writeSafely(this->folder_.path() / "a.txt", "new");
  EXPECT_EQ(this->temporaries(), std::vector{others});
}

TYPED_TEST_P(FileWriterContract, withEveryTemporaryNameInUseTheOldFileStays) {
  for (int i = 1; i <= SafeFileWriter::kTemporaryNames; ++i) this->giveTemporary(i, "another's");
  const auto file = this->folder_.write("a.txt", "old");
  EXPECT_NE(this->failureOf([&] { this->writer_.writeSafely(file, "new"); }), L"");
  EXPECT_EQ(this->contentOf(file), "old");
}

TYPED_TEST_P(FileWriterContract, aFileIsRemovedOnceAndThenMissing) {
  const auto file = this->folder_.write("a.txt", "old");
  EXPECT_EQ(this->writer_.remove(file), Removal::Removed);
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_EQ(this->writer_.remove(file), Removal::WasMissing);
}

TYPED_TEST_P(FileWriterContract, aFileOfAMissingFolderIsMissing) {
  EXPECT_EQ(this->writer_.remove(this->folder_.path() / "notes" / "a.txt"), Removal::WasMissing);
  EXPECT_EQ(this->writer_.remove(this->folder_.write("file", "") / "a.txt"), Removal::WasMissing);
}

TYPED_TEST_P(FileWriterContract, aFolderIsNoFileToRemove) {
  const auto folder = this->folder_.path() / "empty";
  std::filesystem::create_directory(folder);
  EXPECT_EQ(this->failureOf([&] { this->writer_.remove(folder); }),
            L"This file cannot be deleted: " + folder.wstring());
  EXPECT_TRUE(std::filesystem::exists(folder));
}

TYPED_TEST_P(FileWriterContract, aMovedFileTakesAnothersPlace) {
  const auto from = this->folder_.write("a.txt", "moved");
  const auto to = this->folder_.write("b.txt", "old");
  this->writer_.move(from, to);
  EXPECT_EQ(this->contentOf(to), "moved");
  EXPECT_FALSE(std::filesystem::exists(from));
}

TYPED_TEST_P(FileWriterContract, aFileIsRenamedInOtherLetters) {
  const auto from = this->folder_.write("Gym.txt", "kept");
  this->writer_.move(from, this->folder_.path() / "GYM.txt");
  std::vector<std::filesystem::path> names;
  for (const auto& entry : std::filesystem::directory_iterator(this->folder_.path())) {
    names.push_back(entry.path().filename());
  }
  EXPECT_EQ(names, std::vector<std::filesystem::path>{"GYM.txt"});
  EXPECT_EQ(this->contentOf(this->folder_.path() / "GYM.txt"), "kept");
}

TYPED_TEST_P(FileWriterContract, aFileThatIsMissingCannotBeMoved) {
  const auto from = this->folder_.path() / "a.txt";
  const auto to = this->folder_.write("b.txt", "old");
  EXPECT_EQ(this->failureOf([&] { this->writer_.move(from, to); }),
            L"This file cannot be renamed: " + from.wstring());
  EXPECT_EQ(this->contentOf(to), "old");
}

TYPED_TEST_P(FileWriterContract, aFolderIsMadeOnce) {
  const auto folder = this->folder_.path() / "backup";
  this->writer_.createFolder(folder);
  EXPECT_TRUE(std::filesystem::is_directory(folder));
  this->writer_.writeSafely(folder / "a.txt", "kept");
  this->writer_.createFolder(folder);
  EXPECT_EQ(this->contentOf(folder / "a.txt"), "kept");
}

TYPED_TEST_P(FileWriterContract, aFolderThatCannotBeMadeIsNamed) {
  const auto file = this->folder_.write("a.txt", "kept");
  for (const auto& folder : {file, file / "below", this->folder_.path() / "no" / "way"}) {
    EXPECT_EQ(this->failureOf([&] { this->writer_.createFolder(folder); }),
              L"This folder cannot be made: " + folder.wstring());
  }
  EXPECT_EQ(this->contentOf(file), "kept");
}

REGISTER_TYPED_TEST_SUITE_P(FileWriterContract, aNewFileHoldsTheBytes, anOldFileIsReplacedWhole,
                            aLargeContentIsWrittenWhole, aMissingFolderIsNamedAndNotMade,
                            aFolderThatIsAFileFails,
                            aFolderOfTheFilesNameIsKeptAndNoTemporaryFileStays,
                            aTemporaryFileInUseIsLeftAloneAndAnotherNameIsTaken,
                            whatAKilledProgramLeftIsRemoved,
                            whatAKilledProgramLeftBehindAnothersFileIsRemovedToo,
                            withEveryTemporaryNameInUseTheOldFileStays,
                            aFileIsRemovedOnceAndThenMissing, aFileOfAMissingFolderIsMissing,
                            aFolderIsNoFileToRemove, aMovedFileTakesAnothersPlace,
                            aFileIsRenamedInOtherLetters, aFileThatIsMissingCannotBeMoved,
                            aFolderIsMadeOnce, aFolderThatCannotBeMadeIsNamed);

}  // namespace kalvora
