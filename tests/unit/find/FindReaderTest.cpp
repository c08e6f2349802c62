#include "find/FindReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakeNoteFolder.h"

namespace kalvora {
namespace {

using FileNames = std::vector<std::wstring>;

class FindReaderTest : public testing::Test {
 protected:
  SearchedNotes read(const SearchedNotes& before = {}, NoteKinds kinds = kNoteKinds) {
    folder_.reads.clear();
    FindReader reader({folder_, codePage_, "notes"}, kinds, before);
    while (!reader.readOn()) EXPECT_LT(reader.done(), reader.total());
    faulty_ = reader.faulty();
    return reader.take();
  }
  /// "Name: text" of each note.
  static FileNames all(const SearchedNotes& notes) {
    FileNames lines;
    for (const SearchedNote& note : notes.notes()) {
      lines.push_back(notes.nameOf(note) + L": " + notes.textOf(note));
    }
    return lines;
  }
  static FileNames found(const SearchedNotes& notes, const std::wstring& typed) {
    const SearchWords words(typed);
    FileNames names;
    for (const SearchedNote& note : notes.notes()) {
      if (notes.have(words, note)) names.push_back(notes.nameOf(note));
    }
    return names;
  }

  FakeNoteFolder folder_;
  Windows1252 codePage_;
  FileNames faulty_;
};

TEST_F(FindReaderTest, ofEachKindNameAndText) {
  folder_.notes = {{L"Fast.txt", "7|30|one"},
                   {L"Daily.tx1", "8|00|two"},
                   {L"Weekly.tx2", "9|5|0|1|0|0|0|0|0|three"},
                   {L"Monthly.tx3", "20|||four"},
                   {L"Yearly.tx4", "24|11|||five|no text any more"},
                   {L"Trip.tx5", "2026|12|1|6|0|six"},
                   {L"Cut.tx1", "7"},
                   {L"readme.md", "7|30|x"}};
  EXPECT_EQ(all(read()),
            (FileNames{L"Cut.tx1: ", L"Daily.tx1: two", L"Fast.txt: one", L"Monthly.tx3: four",
                       L"Trip.tx5: six", L"Weekly.tx2: three", L"Yearly.tx4: five"}));
  EXPECT_EQ(found(read(), L"20"), FileNames{}) << "numbers of a note are no text";
}

TEST_F(FindReaderTest, theTextIsThatOfTheEditor) {
  folder_.notes = {{L"Gym.tx1", std::string("7|30|caf\xE9\r\nb\0r", 14)}};
  EXPECT_EQ(all(read()), FileNames{L"Gym.tx1: caf\x00E9\r\nbr"});
}

TEST_F(FindReaderTest, theKindsThatTheUserHasAlone) {
  folder_.notes = {{L"Trip.tx5", "2026|12|1|6|0|x"}, {L"Daily.tx1", "8|00|x"}};
  EXPECT_EQ(found(read({}, NoteKinds(kNoteKinds).first(5)), L"x"), FileNames{L"Daily.tx1"});
  const SearchedNotes before = read();
  EXPECT_EQ(found(read(before, NoteKinds(kNoteKinds).first(5)), L"x"), FileNames{L"Daily.tx1"});
}

TEST_F(FindReaderTest, someWordsMayStandInTheNameAndSomeInTheText) {
  folder_.notes = {{L"Gym.tx1", "7|30|mat"}, {L"Swim.tx1", "7|30|cap, gym"}};
  const SearchedNotes notes = read();
  EXPECT_EQ(found(notes, L"gym"), (FileNames{L"Gym.tx1", L"Swim.tx1"}));
  EXPECT_EQ(found(notes, L"mat gym"), FileNames{L"Gym.tx1"});
  EXPECT_EQ(found(notes, L"\"gym mat\""), FileNames{}) << "but a phrase in one of them";
  EXPECT_EQ(found(notes, L"tx1"), FileNames{});
}

TEST(SearchedNotes, accentsInNamesMakeNoDifference) {
  FolderListing::Builder listing;
  listing.add(L"Zo\x00EB.tx1");
  SearchedNotes notes(std::make_shared<const FolderListing>(listing.build()));
  notes.add(0, NoteKind::Daily, L"Stra\x00DF\x65 7 \xD83D\xDE00");
  const SearchedNote& note = notes.notes().front();
  EXPECT_TRUE(notes.have(SearchWords(L"zoe STRASSE"), note));
  EXPECT_TRUE(notes.have(SearchWords(L"\xD83D\xDE00 z\x00F6"), note));
  EXPECT_FALSE(notes.have(SearchWords(L"zoa"), note));
  EXPECT_EQ(notes.textOf(note), L"Stra\x00DF\x65 7 \xD83D\xDE00");
}

TEST_F(FindReaderTest, onlyWhatWasWrittenIsReadAgain) {
  folder_.notes = {{L"B.tx1", "8|00|old"}, {L"D.tx3", "20|||old"}, {L"F.tx3", "21|||old"}};
  for (const auto& [name, bytes] : folder_.notes) folder_.written[name] = 1;
  const SearchedNotes before = read();
  folder_.notes[L"D.tx3"] = "20|||newer";
  folder_.notes[L"A.tx1"] = "9|00|new";
  folder_.notes[L"G.tx3"] = folder_.notes[L"F.tx3"];
  folder_.notes.erase(L"F.tx3");
  const SearchedNotes after = read(before);
  EXPECT_EQ(folder_.reads, (FileNames{L"A.tx1", L"D.tx3", L"G.tx3"}));
  EXPECT_EQ(all(after), (FileNames{L"A.tx1: new", L"B.tx1: old", L"D.tx3: newer", L"G.tx3: old"}));
  EXPECT_EQ(found(after, L"OLD"), (FileNames{L"B.tx1", L"G.tx3"}));
  EXPECT_EQ(found(after, L"f"), FileNames{});
}

TEST_F(FindReaderTest, notesThatCannotBeReadAreNamed) {
  folder_.notes = {{L"Locked.tx1", "8|00|x"},
                   {L"Large.tx1", std::string(kLargestNoteSize + 1, 'x')},
                   {L"Gone.tx1", "8|00|x"},
                   {L"Sound.tx2", "no|number|x"}};
  folder_.locked = L"Locked.tx1";
  folder_.beforeRead = [this](const std::wstring& name) {
    if (name == L"Gone.tx1") folder_.notes.erase(name);
  };
  EXPECT_EQ(found(read(), L""), FileNames{L"Sound.tx2"});
  EXPECT_EQ(faulty_, (FileNames{L"Large.tx1", L"Locked.tx1"}));
}

}  // namespace
}  // namespace kalvora
