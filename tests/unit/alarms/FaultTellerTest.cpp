#include "alarms/FaultTeller.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kalvora {
namespace {

std::vector<FaultyNote> unreadable(int count) {
  std::vector<FaultyNote> notes;
  for (int i = 1; i <= count; ++i) {
    notes.push_back({L"n" + std::to_wstring(i) + L".tx2", NoteFault::Unreadable});
  }
  return notes;
}

std::vector<std::wstring> messagesOf(FaultTeller& teller, const std::vector<FaultyNote>& faults) {
  teller.hear(faults);
  return teller.takeMessages();
}

TEST(FaultTeller, saysNothingWithoutFaults) {
  FaultTeller teller;
  EXPECT_TRUE(messagesOf(teller, {}).empty());
}

TEST(FaultTeller, tellsOfManyUnreadableNotesInOneMessageThatFitsTheScreen) {
  FaultTeller teller;
  const std::vector<std::wstring> messages = messagesOf(teller, unreadable(1000));
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(std::ranges::count(messages[0], L'\n'), 21);
  EXPECT_TRUE(messages[0].ends_with(L"n20.tx2\r\n... and 980 more"));
}

TEST(FaultTeller, tellsOfNewFaultsOnly) {
  FaultTeller teller;
  messagesOf(teller, unreadable(1));
  const std::vector<std::wstring> messages = messagesOf(teller, unreadable(2));
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_TRUE(messages[0].ends_with(L":\r\nn2.tx2"));
}

TEST(FaultTeller, tellsOfARefusedNoteOnceWhereNobodyAskedForTheRebuild) {
  FaultTeller teller;
  const std::vector<FaultyNote> large = {{L"a.txt", NoteFault::TooLarge}};
  const auto heard = [&](const std::vector<FaultyNote>& faults) {
    teller.hear(faults, TellTooLarge::Once);
    return teller.takeMessages().size();
  };
  EXPECT_EQ(heard(large), 1U);
  EXPECT_EQ(heard(large), 0U);
  EXPECT_EQ(messagesOf(teller, large).size(), 1U);
  EXPECT_EQ(heard({}), 0U);
  EXPECT_EQ(heard(large), 1U) << "it was smaller in between";
}

TEST(FaultTeller, whatIsFoundBetweenTwoRebuildsLeavesTheRestTold) {
  FaultTeller teller;
  messagesOf(teller, unreadable(2));
  teller.hearMore(unreadable(1));
  EXPECT_TRUE(teller.takeMessages().empty());
  EXPECT_TRUE(messagesOf(teller, unreadable(2)).empty());
}

TEST(FaultTeller, refusedNotesAreToldOneByOneBeforeTheUnreadableOnes) {
  FaultTeller teller;
  std::vector<FaultyNote> notes = unreadable(1);
  notes.push_back({L"a.txt", NoteFault::TooLarge});
  notes.push_back({L"b.txt", NoteFault::TooLarge});
  const std::vector<std::wstring> messages = messagesOf(teller, notes);
  ASSERT_EQ(messages.size(), 3U);
  EXPECT_EQ(messages[0], L"The file is too large to open!");
  EXPECT_EQ(messages[1], L"The file is too large to open!");
}

}  // namespace
}  // namespace kalvora
