#include "base/FolderListing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

constexpr std::int64_t kSecond = 10'000'000;
constexpr std::int64_t kNow = 1'000'000 * kSecond;

FolderListing listingOf(const Names& names) {
  FolderListing::Builder listing;
  for (const std::wstring& name : names) listing.add(name);
  return listing.build();
}

TEST(FolderListing, anEmptyOneHasNoFiles) {
  EXPECT_TRUE(FolderListing().empty());
  EXPECT_EQ(FolderListing().size(), 0U);
  EXPECT_EQ(FolderListing().names(), Names{});
}

TEST(FolderListing, thatBrokeOffHasNoFilesAndIsNotWhole) {
  EXPECT_TRUE(listingOf({}).whole());
  EXPECT_FALSE(FolderListing::brokenOff().whole());
  EXPECT_TRUE(FolderListing::brokenOff().empty());
}

TEST(FolderListing, knowsWhatItListsWithoutRegardToCase) {
  const FolderListing listing =
      listingOf({L"a.txt", L"Gym.tx1", L"GYM.tx1", L"gym.tx2", L"\u0141o\u015B.txt", L"z.txt"});
  for (const wchar_t* name :
       {L"a.txt", L"A.TXT", L"gym.tx1", L"GYM.TX1", L"Gym.tx2", L"\u0142O\u015A.txt", L"z.txt"}) {
    EXPECT_TRUE(listing.lists(name));
  }
  for (const wchar_t* name : {L"", L"a", L"aa.txt", L"gym.tx", L"gym.tx3", L"zz.txt", L"*.txt"}) {
    EXPECT_FALSE(listing.lists(name));
  }
  EXPECT_FALSE(FolderListing().lists(L"a.txt"));
}

TEST(FolderListing, filesStandInTheOrderOfNamesWithTheirStamps) {
  FolderListing::Builder builder;
  builder.add(L"b.txt", {5, 50});
  builder.add(L"C.txt", {6, 60});
  builder.add(L"a.txt", {7, 70});
  const FolderListing listing = builder.build();
  EXPECT_EQ(listing.names(), (Names{L"a.txt", L"b.txt", L"C.txt"}));
  const ListedFile last = listing[2];
  EXPECT_EQ(last.name, L"C.txt");
  EXPECT_EQ(last.place, 2U);
  EXPECT_EQ(last.stamp.written, 6);
  EXPECT_EQ(last.stamp.bytes, 60U);
}

TEST(FolderListing, namesOfAllLettersComeBackAsTheyWere) {
  const Names names = {L"",
                       L"a",
                       L"\u007F\u0080",
                       L"\u00E9t\u00E9.txt",
                       L"Zo\u00EB.tx1",
                       L"\xD83D.txt",
                       std::wstring(300, L'x')};
  const Names sorted = listingOf(names).names();
  for (const std::wstring& name : names) EXPECT_EQ(std::ranges::count(sorted, name), 1);
  EXPECT_EQ(sorted.size(), names.size());
}

TEST(FolderListing, whatIsTakenOutIsGoneAndTheOthersStay) {
  FolderListing listing = listingOf({L"a", L"\u00E9", L"b", L"\u00EA", L"c"});
  listing.eraseWhere([](std::wstring_view name) { return name == L"b" || name == L"\u00E9"; });
  EXPECT_EQ(listing.names(), (Names{L"a", L"c", L"\u00EA"}));
  EXPECT_EQ(listing[2].place, 2U);
}

TEST(FileStamp, isSettledThreeSecondsAfterTheFileWasWritten) {
  EXPECT_TRUE(stampOf(1, kNow - 3 * kSecond, kNow).settled());
  EXPECT_FALSE(stampOf(1, kNow - 3 * kSecond + 1, kNow).settled());
  EXPECT_FALSE(stampOf(1, kNow + kSecond, kNow).settled()) << "from the future";
}

TEST(FileStamp, provesThatNothingWasWrittenOnlyWhereBothAreTheSameAndSettled) {
  const FileStamp stamp = stampOf(10, kNow - 4 * kSecond, kNow);
  EXPECT_TRUE(isUnchanged(stamp, stampOf(10, kNow - 4 * kSecond, kNow + kSecond)));
  EXPECT_FALSE(isUnchanged(stamp, stampOf(11, kNow - 4 * kSecond, kNow)));
  EXPECT_FALSE(isUnchanged(stamp, stampOf(10, kNow - 4 * kSecond + 1, kNow)));
  const FileStamp young = stampOf(10, kNow, kNow);
  EXPECT_FALSE(isUnchanged(young, young));
  EXPECT_FALSE(isUnchanged(young, stampOf(10, kNow, kNow + 4 * kSecond)));
}

}  // namespace
}  // namespace kalvora
