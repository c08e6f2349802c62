#include "alarms/AlarmQueue.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(AlarmQueue, isEmptyAtFirst) {
  const AlarmQueue queue;
  EXPECT_EQ(queue.text(), L"");
  EXPECT_EQ(queue.pending(), 0);
  EXPECT_EQ(queue.readPosition(), 0U);
}

TEST(AlarmQueue, namesStandOneAfterAnotherEachWithABar) {
  AlarmQueue queue;
  queue.append(L"Gym.tx2");
  queue.append(L"Rent.tx3");
  EXPECT_EQ(queue.text(), L"Gym.tx2|Rent.tx3|");
  EXPECT_EQ(queue.pending(), 2);
}

TEST(AlarmQueue, takesNamesInOrderAndKeepsTheConsumedText) {
  AlarmQueue queue;
  queue.append(L"Gym.tx2");
  queue.append(L"Rent.tx3");
  EXPECT_EQ(queue.takeNext(), L"Gym.tx2");
  EXPECT_EQ(queue.readPosition(), 8U);
  EXPECT_EQ(queue.pending(), 1);
  EXPECT_EQ(queue.takeNext(), L"Rent.tx3");
  EXPECT_EQ(queue.pending(), 0);
  EXPECT_EQ(queue.text(), L"Gym.tx2|Rent.tx3|");
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
  EXPECT_EQ(queue.text().size(), 32767U * 6U);
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
  EXPECT_EQ(queue.readPosition(), 120000U);
}

TEST(AlarmQueue, clearForgetsAll) {
  AlarmQueue queue;
  queue.append(L"a.txt");
  queue.takeNext();
  queue.append(L"b.txt");
  queue.clear();
  EXPECT_EQ(queue.text(), L"");
  EXPECT_EQ(queue.pending(), 0);
  EXPECT_EQ(queue.readPosition(), 0U);
}

}  // namespace
}  // namespace kalvora
