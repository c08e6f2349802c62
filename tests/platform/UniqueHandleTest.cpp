#include "win32/platform/UniqueHandle.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace kalvora {
namespace {

int closed = 0;

BOOL closeFake(HANDLE) {
  ++closed;
  return TRUE;
}

using FakeOwner = UniqueHandle<HANDLE, &closeFake>;

HANDLE fakeHandle() {
  static int target = 0;
  return &target;
}

class UniqueHandles : public testing::Test {
 protected:
  UniqueHandles() { closed = 0; }
};

TEST_F(UniqueHandles, closeTheirHandleOnce) {
  {
    const FakeOwner owner(fakeHandle());
    EXPECT_TRUE(owner);
    EXPECT_EQ(owner.get(), fakeHandle());
  }
  EXPECT_EQ(closed, 1);
}

TEST_F(UniqueHandles, nullAndTheInvalidValueAreNoHandle) {
  {
    EXPECT_FALSE(FakeOwner());
    EXPECT_FALSE(FakeOwner(nullptr));
    EXPECT_FALSE(FakeOwner(INVALID_HANDLE_VALUE));
  }
  EXPECT_EQ(closed, 0);
}

TEST_F(UniqueHandles, movingHandsTheHandleOn) {
  static_assert(!std::is_copy_constructible_v<FakeOwner> && !std::is_copy_assignable_v<FakeOwner>);
  {
    FakeOwner first(fakeHandle());
    FakeOwner second(std::move(first));
    FakeOwner third;
    third = std::move(second);
    EXPECT_EQ(third.get(), fakeHandle());
    EXPECT_EQ(closed, 0);
  }
  EXPECT_EQ(closed, 1);
}

TEST_F(UniqueHandles, movingOntoAnOwnerClosesItsHandleAtOnce) {
  FakeOwner owner(fakeHandle());
  FakeOwner other(fakeHandle());
  owner = std::move(other);
  EXPECT_EQ(closed, 1);
  EXPECT_TRUE(owner);
}

TEST_F(UniqueHandles, movingOntoItselfKeepsTheHandle) {
  FakeOwner owner(fakeHandle());
  FakeOwner& same = owner;
  owner = std::move(same);
  EXPECT_EQ(owner.get(), fakeHandle());
  EXPECT_EQ(closed, 0);
}

TEST_F(UniqueHandles, releasedHandleIsNotClosed) {
  FakeOwner owner(fakeHandle());
  EXPECT_EQ(owner.release(), fakeHandle());
  EXPECT_FALSE(owner);
  owner.reset();
  EXPECT_EQ(closed, 0);
}

TEST_F(UniqueHandles, ownersOfRealHandlesCloseThem) {
  const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  const HRGN region = CreateRectRgn(0, 0, 1, 1);
  {
    const UniqueBrush brushOwner(brush);
    const UniqueRegion regionOwner(region);
    EXPECT_EQ(GetObjectType(brush), static_cast<DWORD>(OBJ_BRUSH));
  }
  EXPECT_EQ(GetObjectType(brush), 0U);
  EXPECT_EQ(GetObjectType(region), 0U);
}

}  // namespace
}  // namespace kalvora
