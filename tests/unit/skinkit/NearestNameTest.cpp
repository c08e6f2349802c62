#include "skinkit/NearestName.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(NearestName, hasAThirdOfItsLettersChangedAtMost) {
  EXPECT_EQ(nearestName(L"Lxnxth", {L"Length"}), L"Length");
  EXPECT_EQ(nearestName(L"Lxnxxh", {L"Length"}), std::nullopt);
  EXPECT_EQ(nearestName(L"Rxght", {L"Right"}), L"Right");
  EXPECT_EQ(nearestName(L"Rxgxt", {L"Right"}), std::nullopt);
}

TEST(NearestName, isTheOneWithTheFewestChangesTheFirstOfThem) {
  EXPECT_EQ(nearestName(L"Lefx", {L"Leaf", L"Left", L"Lefy"}), L"Left");
  EXPECT_EQ(nearestName(L"delete", {L"Delete"}), L"Delete") << "letter case is no change";
  EXPECT_EQ(nearestName(L"", {L"W", L"H"}), std::nullopt);
}

}  // namespace
}  // namespace kalvora
