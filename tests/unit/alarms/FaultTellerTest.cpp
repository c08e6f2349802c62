#include "alarms/FaultTeller.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/FakeAlarmHost.h"

namespace kalvora {
namespace {

std::vector<FaultyNote> unreadable(int count) {
  std::vector<FaultyNote> notes;
  for (int i = 1; i <= count; ++i) {
    notes.push_back({L"n" + std::to_wstring(i) + L".tx2", NoteFault::Unreadable});
  }
  return notes;
}

TEST(FaultTeller, saysNothingWithoutFaults) {
  FakeAlarmHost host;
  FaultTeller().tell({}, host);
  EXPECT_TRUE(host.calls.empty());
}

TEST(FaultTeller, tellsOfManyUnreadableNotesInOneMessageThatFitsTheScreen) {
  FakeAlarmHost host;
  FaultTeller().tell(unreadable(1000), host);
  ASSERT_EQ(host.calls.size(), 1U);
  EXPECT_EQ(std::ranges::count(host.calls[0], L'\n'), 21);
  EXPECT_TRUE(host.calls[0].ends_with(L"n20.tx2\r\n... and 980 more"));
}

TEST(FaultTeller, tellsOfNewFaultsOnly) {
  FakeAlarmHost host;
  FaultTeller teller;
  teller.tell(unreadable(1), host);
  host.calls.clear();
  teller.tell(unreadable(2), host);
  ASSERT_EQ(host.calls.size(), 1U);
  EXPECT_TRUE(host.calls[0].ends_with(L":\r\nn2.tx2"));
}

TEST(FaultTeller, refusedNotesAreToldOneByOneBeforeTheUnreadableOnes) {
  FakeAlarmHost host;
  std::vector<FaultyNote> notes = unreadable(1);
  notes.push_back({L"a.txt", NoteFault::TooLarge});
  notes.push_back({L"b.txt", NoteFault::TooLarge});
  FaultTeller().tell(notes, host);
  ASSERT_EQ(host.calls.size(), 3U);
  EXPECT_EQ(host.calls[0], L"Error! The file is too large to open!");
  EXPECT_EQ(host.calls[1], L"Error! The file is too large to open!");
}

}  // namespace
}  // namespace kalvora
