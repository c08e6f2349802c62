#include "notes/NoteKind.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace kalvora {
namespace {

TEST(NoteKinds, haveTheirFixedNumbersAndExtensions) {
  for (std::size_t i = 0; i < kNoteKinds.size(); ++i) {
    EXPECT_EQ(static_cast<std::size_t>(kNoteKinds[i]), i);
  }
  EXPECT_EQ(extensionOf(NoteKind::Daily), L".tx1");
  EXPECT_EQ(extensionOf(NoteKind::Weekly), L".tx2");
  EXPECT_EQ(extensionOf(NoteKind::Monthly), L".tx3");
  EXPECT_EQ(extensionOf(NoteKind::Yearly), L".tx4");
  EXPECT_EQ(extensionOf(NoteKind::Fast), L".txt");
  EXPECT_EQ(extensionOf(NoteKind::Once), L".tx5");
}

TEST(NoteKinds, comeFromTheLastFourCharactersInAnyCase) {
  EXPECT_EQ(kindOfFileName(L"Shopping.tx1", kNoteKinds), NoteKind::Daily);
  EXPECT_EQ(kindOfFileName(L"Shopping.Tx2", kNoteKinds), NoteKind::Weekly);
  EXPECT_EQ(kindOfFileName(L"a.tx1.TX3", kNoteKinds), NoteKind::Monthly);
  EXPECT_EQ(kindOfFileName(L".tx4", kNoteKinds), NoteKind::Yearly);
  EXPECT_EQ(kindOfFileName(L"two words.TXT", kNoteKinds), NoteKind::Fast);
}

TEST(NoteKinds, otherFilesAreOfNoKind) {
  for (const wchar_t* name :
       {L"", L"a", L"txt", L"a.tx6", L"a.tx12", L"atxt", L"a.txt ", L"a.bmp"}) {
    EXPECT_EQ(kindOfFileName(name, kNoteKinds), std::nullopt) << std::wstring(name).size();
  }
}

TEST(NoteKinds, oneDateIsKnownToTheUserWhoChoseItAlone) {
  Comfort comfort;
  EXPECT_EQ(knownKinds(comfort).size(), 5U);
  EXPECT_EQ(kindOfFileName(L"Dentist.tx5", knownKinds(comfort)), std::nullopt);
  EXPECT_EQ(kindOfFileName(L"Gym.txt", knownKinds(comfort)), NoteKind::Fast);
  comfort.Once_notes = true;
  EXPECT_TRUE(std::ranges::equal(knownKinds(comfort), kNoteKinds));
  EXPECT_EQ(kindOfFileName(L"Dentist.TX5", knownKinds(comfort)), NoteKind::Once);
}

TEST(NoteTitles, areTheFileNamesWithoutTheLastFourCharacters) {
  EXPECT_EQ(titleOf(L"Shopping.tx1"), L"Shopping");
  EXPECT_EQ(titleOf(L"a.b.txt"), L"a.b");
  EXPECT_EQ(titleOf(L"readme.html"), L"readme.");
  EXPECT_EQ(titleOf(L".txt"), L"");
  EXPECT_EQ(titleOf(L"abc"), L"");
  EXPECT_EQ(titleOf(L""), L"");
}

TEST(NoteKinds, clockTimesAreInDailyWeeklyAndFastNotes) {
  EXPECT_TRUE(hasClockTime(NoteKind::Daily));
  EXPECT_TRUE(hasClockTime(NoteKind::Weekly));
  EXPECT_TRUE(hasClockTime(NoteKind::Fast));
  EXPECT_FALSE(hasClockTime(NoteKind::Monthly));
  EXPECT_FALSE(hasClockTime(NoteKind::Yearly));
}

TEST(NoteKinds, largestNoteIsTheLargest16BitNumber) {
  EXPECT_EQ(kLargestNoteSize, 0x7FFFU);
}

}  // namespace
}  // namespace kalvora
