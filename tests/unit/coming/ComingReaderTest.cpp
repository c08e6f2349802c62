#include "coming/ComingReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "alarms/DueNote.h"
#include "fakes/FakeComingHost.h"
#include "fakes/FakeNoteFolder.h"

namespace kalvora {
namespace {

using namespace std::chrono;
using FileNames = std::vector<std::wstring>;

constexpr local_days kFirst{2026y / November / 23};
constexpr std::int64_t kLongAgo = 1;

class ComingReaderTest : public testing::Test {
 protected:
  ComingNotes read(const ComingNotes& before = {}, local_days first = kFirst) {
    folder_.reads.clear();
    ComingReader reader({folder_, codePage_, "notes"}, host_, first, before);
    slices_ = 1;
    while (!reader.readOn()) ++slices_;
    faulty_ = reader.faulty();
    return reader.take();
  }
  static FileNames names(const ComingNotes& notes) {
    FileNames all;
    for (const ComingNote& note : notes.notes()) all.push_back(notes.nameOf(note));
    return all;
  }
  void writtenLongAgo() {
    for (const auto& [name, bytes] : folder_.notes) folder_.written[name] = kLongAgo;
  }

  FakeNoteFolder folder_;
  Windows1252 codePage_;
  FakeComingHost host_;
  FileNames faulty_;
  int slices_ = 0;
};

TEST_F(ComingReaderTest, ofEachKindWhatIsDueInTheYear) {
  folder_.notes = {{L"Fast.txt", "7|30|x"},
                   {L"Daily.tx1", "8|00|x"},
                   {L"Weekly.tx2", "9|5|0|1|0|0|0|0|0|x"},
                   {L"Monthly.tx3", "20|||x"},
                   {L"Yearly.tx4", "24|11|||x"},
                   {L"Trip.tx5", "2026|12|1|6|0|x"},
                   {L"Silent.txt", "||x"},
                   {L"Over.tx5", "2026|11|1|6|0|x"},
                   {L"readme.md", "7|30|x"}};
  const ComingNotes found = read();
  EXPECT_EQ(names(found), (FileNames{L"Daily.tx1", L"Fast.txt", L"Monthly.tx3", L"Trip.tx5",
                                     L"Weekly.tx2", L"Yearly.tx4"}));
  EXPECT_EQ(found.notes()[0].days.count(), 365U);
  EXPECT_EQ(found.notes()[0].minute, 8 * 60);
  EXPECT_EQ(found.notes()[2].days.count(), 12U);
  EXPECT_EQ(found.notes()[2].minute, ComingNote::kAllDay);
  EXPECT_EQ(found.notes()[3].days.count(), 1U);
  EXPECT_EQ(found.notes()[4].days.count(), 53U);
  EXPECT_EQ(found.notes()[5].days.count(), 1U);
  EXPECT_TRUE(faulty_.empty());
}

TEST_F(ComingReaderTest, theKindsThatTheUserHasAlone) {
  host_.kinds = NoteKinds(kNoteKinds).first(5);
  folder_.notes = {{L"Trip.tx5", "2026|12|1|6|0|x"}, {L"Daily.tx1", "8|00|x"}};
  EXPECT_EQ(names(read()), FileNames{L"Daily.tx1"});
  EXPECT_EQ(folder_.reads, FileNames{L"Daily.tx1"});
}

TEST_F(ComingReaderTest, whatIsRememberedIsNotRead) {
  folder_.notes = {{L"Daily.tx1", "8|00|x"},
                   {L"Monthly.tx3", "20|||x"},
                   {L"None.tx1", "||x"},
                   {L"Rent.tx3", "20|||x"}};
  host_.times = {{L"Daily.tx1", RingTime{.clockTime = L"9:15"}},
                 {L"None.tx1", RingTime{.clockTime = L":"}},
                 {L"Rent.tx3", DayNote{NoteKind::Monthly, 21, std::nullopt, {}, {}}}};
  const ComingNotes found = read();
  EXPECT_EQ(folder_.reads, FileNames{L"Monthly.tx3"});
  EXPECT_EQ(found.countOn(28), 2U);  // the 21st of December
  EXPECT_EQ(found.notes()[0].minute, 9 * 60 + 15);
  EXPECT_EQ(names(found), (FileNames{L"Daily.tx1", L"Monthly.tx3", L"Rent.tx3"}));
}

TEST_F(ComingReaderTest, whatWasFoundOutBeforeIsNotReadAgain) {
  folder_.notes = {{L"B.tx1", "8|00|x"}, {L"D.tx3", "20|||x"}, {L"F.tx3", "21|||x"}};
  writtenLongAgo();
  const ComingNotes before = read();
  folder_.notes[L"D.tx3"] = "20|||longer";
  folder_.notes[L"A.tx1"] = "9|00|x";
  folder_.notes.erase(L"B.tx1");
  const ComingNotes after = read(before);
  EXPECT_EQ(folder_.reads, (FileNames{L"A.tx1", L"D.tx3"}));
  EXPECT_EQ(names(after), (FileNames{L"A.tx1", L"D.tx3", L"F.tx3"}));
  EXPECT_EQ(after.countOn(26), 1U);
  EXPECT_EQ(after.countOn(27), 2U);  // the 20th of December
  EXPECT_EQ(after.countOn(28), 2U);
}

TEST_F(ComingReaderTest, onAnotherDayAllIsFoundOutAnew) {
  folder_.notes = {{L"D.tx3", "20|||x"}};
  writtenLongAgo();
  const ComingNotes before = read();
  const ComingNotes after = read(before, kFirst + days(1));
  EXPECT_EQ(folder_.reads, FileNames{L"D.tx3"});
  EXPECT_EQ(after.countOn(26), 1U);
}

TEST_F(ComingReaderTest, notesThatCannotBeReadAreNamed) {
  folder_.notes = {{L"Bad.tx2", "7|0|x|0|0|0|0|0|0|x"},
                   {L"Locked.tx1", "8|00|x"},
                   {L"Large.tx1", std::string(kLargestNoteSize + 1, '7')},
                   {L"Gone.tx1", "8|00|x"},
                   {L"NoDate.tx5", "2026|2|31|6|0|x"}};
  folder_.locked = L"Locked.tx1";
  folder_.beforeRead = [this](const std::wstring& name) {
    if (name == L"Gone.tx1") folder_.notes.erase(name);
  };
  EXPECT_TRUE(read().notes().empty());
  EXPECT_EQ(faulty_, (FileNames{L"Bad.tx2", L"Large.tx1", L"Locked.tx1", L"NoDate.tx5"}));
}

TEST_F(ComingReaderTest, manyNotesAreReadInSlices) {
  for (int i = 0; i < 1000; ++i) folder_.notes[std::to_wstring(i) + L".tx1"] = "8|00|x";
  EXPECT_EQ(read().notes().size(), 1000U);
  EXPECT_EQ(slices_, 3);
}

TEST_F(ComingReaderTest, rememberedNotesFillFewerSlices) {
  for (int i = 0; i < 1000; ++i) {
    folder_.notes[std::to_wstring(i) + L".tx1"] = "8|00|x";
    host_.times[std::to_wstring(i) + L".tx1"] = RingTime{.clockTime = L"8:00"};
  }
  EXPECT_EQ(read().notes().size(), 1000U);
  EXPECT_EQ(slices_, 1);
}

TEST_F(ComingReaderTest, aFolderThatIsAwayIsToldApartFromAnEmptyOne) {
  EXPECT_FALSE(ComingReader({folder_, codePage_, "notes"}, host_, kFirst, {}).folderIsAway());
  folder_.away = true;
  EXPECT_TRUE(ComingReader({folder_, codePage_, "notes"}, host_, kFirst, {}).folderIsAway());
}

/// The rows of the list are what the engine says of the same notes.
TEST_F(ComingReaderTest, thereIsAsMuchAsTheCatchingUpWouldFind) {
  folder_.notes = {{L"Fast.txt", "7|30|x"},
                   {L"Weekly.tx2", "9|5|0|1|0|1|0|0|0|x"},
                   {L"Monthly.tx3", "20|6|2|x"},
                   {L"Yearly.tx4", "3|1|10|5|x"}};
  AlarmNoteReader reader(folder_, codePage_, "notes", folder_.listed(), kNoteKinds);
  const std::vector<DueNote> due =
      dueBetween(reader, kFirst - minutes(1), kFirst + days(365) - minutes(1));
  const ComingNotes found = read();
  std::size_t count = 0;
  for (std::size_t day = 0; day < 365; ++day) count += found.countOn(day);
  EXPECT_EQ(count, due.size());
}

}  // namespace
}  // namespace kalvora
