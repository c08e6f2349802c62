#include "win32/main/ReminderKeys.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>

namespace kalvora {
namespace {

class ReminderKeys : public testing::Test {
 protected:
  ~ReminderKeys() override { hold({}); }

  static void hold(std::initializer_list<int> keys) {
    std::array<BYTE, 256> state{};
    for (const int key : keys) state[static_cast<std::size_t>(key)] = 0x80;
    SetKeyboardState(state.data());
  }
  static std::optional<ReminderKey> told(UINT message, WPARAM key, LPARAM facts = 1) {
    return reminderKeyOf({nullptr, message, key, facts, 0, {0, 0}});
  }
};

TEST_F(ReminderKeys, areThoseOfTheGuide) {
  hold({});
  EXPECT_EQ(told(WM_KEYDOWN, VK_F7), ReminderKey::Snooze);
  EXPECT_EQ(told(WM_KEYDOWN, VK_F8), ReminderKey::Done);
  EXPECT_EQ(told(WM_KEYDOWN, VK_APPS), ReminderKey::SnoozeMenu);
  hold({VK_SHIFT});
  EXPECT_EQ(told(WM_KEYDOWN, VK_F7), ReminderKey::SnoozeMenu);
  EXPECT_EQ(told(WM_SYSKEYDOWN, VK_F10), ReminderKey::SnoozeMenu);
}

TEST_F(ReminderKeys, areNoOthers) {
  hold({});
  for (const WPARAM key :
       std::initializer_list<WPARAM>{VK_F6, VK_F9, VK_F10, VK_ESCAPE, VK_RETURN, VK_TAB}) {
    EXPECT_EQ(told(WM_KEYDOWN, key), std::nullopt) << key;
  }
  EXPECT_EQ(told(WM_SYSKEYDOWN, VK_F10), std::nullopt);
  EXPECT_EQ(told(WM_KEYUP, VK_F7), std::nullopt);
  EXPECT_EQ(told(WM_CHAR, VK_F7), std::nullopt) << "a letter with that number";
  hold({VK_SHIFT});
  EXPECT_EQ(told(WM_KEYDOWN, VK_F8), std::nullopt);
  for (const int other : {VK_CONTROL, VK_MENU}) {
    hold({other});
    EXPECT_EQ(told(WM_KEYDOWN, VK_F7), std::nullopt);
    EXPECT_EQ(told(WM_SYSKEYDOWN, VK_F8), std::nullopt);
  }
}

TEST_F(ReminderKeys, countOnceHoweverLongTheyAreHeld) {
  hold({});
  constexpr LPARAM kRepeated = (LPARAM{1} << 30U) | 1;
  EXPECT_EQ(told(WM_KEYDOWN, VK_F8, kRepeated), ReminderKey::HeldOn);
  EXPECT_EQ(told(WM_KEYDOWN, VK_F6, kRepeated), std::nullopt);
  EXPECT_EQ(told(WM_KEYUP, VK_APPS), ReminderKey::HeldOn) << "the field's menu would open";
}

}  // namespace
}  // namespace kalvora
