#include "alarms/AlarmNoteReader.h"

#include <gtest/gtest.h>

#include "fakes/FakeNoteFolder.h"

namespace kalvora {
namespace {

/// One note is left open, and then another is opened.
class AlarmNoteReaderTest : public testing::Test {
 protected:
  void SetUp() override {
    folder.notes[L"open.txt"] = "7|30|x";
    EXPECT_TRUE(notes.Inicjuj_czytanie(L"open.txt"));
    EXPECT_EQ(notes.Czytaj_zmienna(), L"7");
  }

  FakeNoteFolder folder;
  Windows1252 codePage;
  AlarmNoteReader notes{folder, codePage, "notes", folder.listed(), kNoteKinds};
};

TEST_F(AlarmNoteReaderTest, theNextNoteIsReadFromItsStart) {
  folder.notes[L"next.txt"] = "8|15|x";
  EXPECT_TRUE(notes.Inicjuj_czytanie(L"next.txt"));
  EXPECT_EQ(notes.Czytaj_zmienna(), L"8");
}

TEST_F(AlarmNoteReaderTest, aRefusedNoteHasNoFieldsOfTheOneBefore) {
  folder.notes[L"large.txt"] = "6|0|" + std::string(32764, 'x');
  EXPECT_TRUE(notes.Inicjuj_czytanie(L"large.txt"));
  EXPECT_EQ(notes.Czytaj_zmienna(), L"");
  EXPECT_EQ(notes.takeFaults(), (std::vector<FaultyNote>{{L"large.txt", NoteFault::TooLarge}}));
}

TEST_F(AlarmNoteReaderTest, aNoteThatVanishedIsNotOpenedAndIsNoFault) {
  EXPECT_FALSE(notes.Inicjuj_czytanie(L"gone.txt"));
  EXPECT_EQ(notes.Czytaj_zmienna(), L"");
  EXPECT_TRUE(notes.takeFaults().empty());
}

TEST_F(AlarmNoteReaderTest, aNoteOfADevicesNameIsAFaultThoughTheSystemDoesNotKnowSuchAFile) {
  EXPECT_FALSE(notes.Inicjuj_czytanie(L"aux.tx2"));
  EXPECT_EQ(notes.takeFaults(), (std::vector<FaultyNote>{{L"aux.tx2", NoteFault::Unreadable}}));
}

TEST_F(AlarmNoteReaderTest, nothingIsReadOfAClosedNote) {
  notes.Zakoncz_czytanie();
  EXPECT_EQ(notes.Czytaj_zmienna(), L"");
}

}  // namespace
}  // namespace kalvora
