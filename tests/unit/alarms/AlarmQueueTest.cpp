#include "alarms/AlarmQueue.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(AlarmQueue, isEmptyAtFirst) {
  AlarmQueue queue;
  EXPECT_EQ(queue.pending(), 0);
  EXPECT_EQ(queue.takeNext(), L"");
}

TEST(AlarmQueue, takesNamesInTheOrderInWhichTheyWereQueued) {
  AlarmQueue queue;
  queue.append(L"Gym.tx2");
  queue.append(L"Rent.tx3");
  EXPECT_EQ(queue.pending(), 2);
  EXPECT_EQ(queue.takeNext(), L"Gym.tx2");
  EXPECT_EQ(queue.pending(), 1);
  EXPECT_EQ(queue.takeNext(), L"Rent.tx3");
  EXPECT_EQ(queue.pending(), 0);
}

TEST(AlarmQueue, theBarEndsAName) {
  AlarmQueue queue;
  queue.append(L"Gym.tx2|Rent.tx3");
  EXPECT_EQ(queue.takeNext(), L"Gym.tx2");
  EXPECT_EQ(queue.takeNext(), L"Rent.tx3");
}

TEST(AlarmQueue, whatWasTakenNoLongerWaits) {
  AlarmQueue queue;
  queue.append(L"Gym.tx2");
  queue.append(L"Rent.tx3");
  queue.takeNext();
  EXPECT_FALSE(queue.waits(L"Gym.tx2"));
  EXPECT_TRUE(queue.waits(L"Rent.tx3"));
}

TEST(AlarmQueue, goesOnAfterTheConsumedTextWhenMoreIsQueued) {
  AlarmQueue queue;
  queue.append(L"a.txt");
  queue.takeNext();
  queue.append(L"b.txt");
  EXPECT_EQ(queue.takeNext(), L"b.txt");
}

TEST(AlarmQueue, takingFromAnEmptyQueueGivesNothingAndKeepsTheCount) {
  AlarmQueue queue;
  EXPECT_EQ(queue.takeNext(), L"");
  EXPECT_EQ(queue.pending(), 0);
  queue.append(L"a.txt");
  EXPECT_EQ(queue.takeNext(), L"a.txt");
}

TEST(AlarmQueue, isFullAtTheMostThatTheCountHolds) {
  AlarmQueue queue;
  for (int i = 0; i < 40000; ++i) queue.append(L"a.txt");
  EXPECT_EQ(queue.pending(), 32767);
  for (int i = 0; i < 32767; ++i) ASSERT_EQ(queue.takeNext(), L"a.txt");
  EXPECT_EQ(queue.pending(), 0);
  EXPECT_EQ(queue.takeNext(), L"");
}

TEST(AlarmQueue, ringsOnAfterMoreCharactersThan16BitsCount) {
  AlarmQueue queue;
  for (int i = 0; i < 20000; ++i) {
    queue.append(L"a.txt");
    ASSERT_EQ(queue.takeNext(), L"a.txt");
  }
}

TEST(AlarmQueue, clearForgetsAll) {
  AlarmQueue queue;
  queue.append(L"a.txt");
  queue.takeNext();
  queue.append(L"b.txt");
  queue.clear();
  EXPECT_EQ(queue.pending(), 0);
  EXPECT_EQ(queue.takeNext(), L"");
  queue.append(L"c.txt");
  EXPECT_EQ(queue.takeNext(), L"c.txt");
}

}  // namespace
}  // namespace kalvora
