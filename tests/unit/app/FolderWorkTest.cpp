// How often the notes folder is listed, and which notes are read.

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

#include "Form1Fixture.h"

namespace kalvora {
namespace {

using FileNames = std::vector<std::wstring>;

/// Real files, and a record of what was done with those of the notes folder. One that exists is
/// found without a listing, as on Windows.
class WatchedFileSystem : public StandardFileSystem {
 public:
  FolderListing list(const std::filesystem::path& folder,
                     std::wstring_view pattern) const override {
    if (isNotes(folder)) ++listings;
    return StandardFileSystem::list(folder, pattern);
  }
  bool fileExists(const std::filesystem::path& folder, std::wstring_view name) const override {
    return std::filesystem::exists(folder / name) || StandardFileSystem::fileExists(folder, name);
  }
  std::string read(const std::filesystem::path& file, std::size_t limit) const override {
    if (isNotes(file.parent_path())) reads.push_back(file.filename().wstring());
    return StandardFileSystem::read(file, limit);
  }
  std::unique_ptr<FolderReader> readerOf(const std::filesystem::path& folder) const override {
    return std::make_unique<WatchedReader>(*this, folder);
  }

  mutable int listings = 0;
  mutable FileNames reads;

 private:
  /// Reads by way of read().
  class WatchedReader : public FolderReader {
   public:
    WatchedReader(const WatchedFileSystem& files, std::filesystem::path folder)
        : files_(files), folder_(std::move(folder)) {}
    std::string read(std::wstring_view name, std::size_t limit) const override {
      return files_.read(folder_ / name, limit);
    }

   private:
    const WatchedFileSystem& files_;
    const std::filesystem::path folder_;
  };

  static bool isNotes(const std::filesystem::path& folder) { return folder.filename() == "notes"; }
};

class FolderWork : public Form1Test {
 protected:
  FolderWork() {
    for (const char* name : {"a.txt", "b.tx1", "c.tx2", "d.tx3", "e.tx4"}) {
      note(name, "1|1|0|0|0|0|0|0|0|x");
      // Long ago: what was written in the last seconds may be written again unseen.
      const auto now = std::filesystem::file_time_type::clock::now();
      std::filesystem::last_write_time(folder.path() / "notes" / name,
                                       now - std::chrono::hours(24));
    }
  }

  void press(ButtonId button) {
    files_.listings = 0;
    files_.reads.clear();
    program_.pressButton(button);
  }

  WatchedFileSystem files_;
  SafetyCopies copies_{folder.path() / "backup", files_, backupWriter, clock,
                       [] { return knownKinds({}); }};
  Form1 program_{{guard, files_, writer, store, skinValues, codePage, clock, dateTexts, view, tray,
                  sounds, ProgramFolders(folder.path()), copies_, others}};
};

TEST_F(FolderWork, aStartListsTheNotesOnceAndReadsEachForItsTimeOnce) {
  program_.Form_Load();
  EXPECT_EQ(files_.listings, 1);
  std::ranges::sort(files_.reads);
  EXPECT_EQ(files_.reads, (FileNames{L"a.txt", L"a.txt", L"b.tx1", L"c.tx2", L"d.tx3", L"e.tx4"}))
      << "the first one twice: it is on show";
}

TEST_F(FolderWork, aSaveListsThemOnceAndReadsNoneButTheSavedOne) {
  program_.Form_Load();
  program_.Nastepny_Load_Formy();
  settle(program_);
  view.setText(FieldId::Text2, L"other words");
  press(ButtonId::Buttons_main_02);
  ASSERT_EQ(contentOf("a.txt"), "1|1|other words");
  EXPECT_EQ(files_.listings, 1);
  EXPECT_TRUE(std::ranges::all_of(files_.reads, [](const auto& name) { return name == L"a.txt"; }));
  EXPECT_FALSE(files_.reads.empty());
}

TEST_F(FolderWork, aPageTurnReadsTheNoteAndListsNothing) {
  program_.Form_Load();
  program_.Nastepny_Load_Formy();
  settle(program_);
  press(ButtonId::Buttons_main_05);
  EXPECT_EQ(files_.listings, 0);
  EXPECT_EQ(files_.reads, FileNames{L"b.tx1"});
}

TEST_F(FolderWork, aMinutesCheckNeitherListsNorReads) {
  program_.Form_Load();
  files_.listings = 0;
  files_.reads.clear();
  clock.time.minute += 1;
  clock.time.second = 1;
  program_.timerTick(TimerId::Spr1m);
  EXPECT_EQ(files_.listings, 0);
  EXPECT_EQ(files_.reads, FileNames{});
}

}  // namespace
}  // namespace kalvora
