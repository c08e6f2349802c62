#include <array>
#include <initializer_list>

#include "platform/SteppedMainWindow.h"
#include "win32/main/KeyStrokes.h"

namespace kalvora {
namespace {

void holdDown(std::initializer_list<int> keys) {
  std::array<BYTE, 256> state{};
  for (const int key : keys) state[static_cast<std::size_t>(key)] = 0x80;
  SetKeyboardState(state.data());
}

constexpr LPARAM kPressed = 1;
constexpr LPARAM kRepeated = (LPARAM{1} << 30U) | 1;
constexpr LPARAM kExtended = LPARAM{1} << 24U;

class KeyStrokesTest : public testing::Test {
 protected:
  ~KeyStrokesTest() override { holdDown({}); }

  static std::optional<KeyStroke> told(UINT message, WPARAM key, LPARAM facts = kPressed) {
    return keyStrokeOf({nullptr, message, key, facts, 0, {0, 0}});
  }
};

TEST_F(KeyStrokesTest, tellTheKeyAndWhatIsHeldBesideIt) {
  holdDown({});
  EXPECT_EQ(told(WM_KEYDOWN, VK_F7), (KeyStroke{HeldWith::Nothing, Key::F7}));
  EXPECT_EQ(told(WM_SYSKEYDOWN, VK_F10), (KeyStroke{HeldWith::Nothing, Key::F10}));
  EXPECT_EQ(told(WM_KEYDOWN, VK_APPS), (KeyStroke{HeldWith::Nothing, Key::Menu}));
  holdDown({VK_SHIFT});
  EXPECT_EQ(told(WM_KEYDOWN, VK_F7), (KeyStroke{HeldWith::Shift, Key::F7}));
  holdDown({VK_CONTROL});
  EXPECT_EQ(told(WM_KEYDOWN, 'N'), (KeyStroke{HeldWith::Ctrl, Key::N}));
  EXPECT_EQ(told(WM_KEYDOWN, VK_PRIOR), (KeyStroke{HeldWith::Ctrl, Key::PageUp}));
  holdDown({VK_CONTROL, VK_SHIFT});
  EXPECT_EQ(told(WM_KEYDOWN, VK_DELETE, kPressed | kExtended),
            (KeyStroke{HeldWith::CtrlShift, Key::Delete}));
  holdDown({VK_MENU});
  EXPECT_EQ(told(WM_SYSKEYDOWN, VK_F4), (KeyStroke{HeldWith::Alt, Key::F4}));
}

TEST_F(KeyStrokesTest, areNotWhatIsTypedOrLetGo) {
  holdDown({});
  EXPECT_EQ(told(WM_KEYUP, VK_F7), std::nullopt);
  EXPECT_EQ(told(WM_CHAR, VK_F7), std::nullopt) << "a letter with that number";
  EXPECT_EQ(told(WM_KEYDOWN, 'Q'), std::nullopt);
}

TEST_F(KeyStrokesTest, theBlockOfNumbersDeletesNothing) {
  holdDown({VK_CONTROL});
  EXPECT_EQ(told(WM_KEYDOWN, VK_DELETE), std::nullopt);
}

TEST_F(KeyStrokesTest, theMenuKeyMeansTheSameWithShift) {
  holdDown({VK_SHIFT});
  EXPECT_EQ(told(WM_KEYDOWN, VK_APPS), (KeyStroke{HeldWith::Nothing, Key::Menu}));
}

TEST_F(KeyStrokesTest, ctrlAndAltTogetherWriteACharacter) {
  holdDown({VK_CONTROL, VK_MENU});
  EXPECT_EQ(told(WM_KEYDOWN, 'N'), std::nullopt);
  EXPECT_EQ(told(WM_SYSKEYDOWN, 'S'), std::nullopt);
}

class MainWindowKeys : public SteppedMainWindow {
 protected:
  ~MainWindowKeys() override { holdDown({}); }

  HWND control(FieldId field) const {
    return GetDlgItem(main_, MainWindowFields::controlIdOf(field));
  }
  bool press(WPARAM key, FieldId field = FieldId::Text2, LPARAM facts = kPressed) {
    return window_->takesCommandKey({control(field), WM_KEYDOWN, key, facts, 0, {0, 0}});
  }
  std::wstring title() const { return window_->text(FieldId::Text1); }
};

TEST_F(MainWindowKeys, turnThePagesAlsoWhileTheyAreHeld) {
  ASSERT_EQ(title(), L"a");
  holdDown({VK_CONTROL});
  EXPECT_TRUE(press(VK_NEXT));
  EXPECT_EQ(title(), L"b");
  EXPECT_TRUE(press(VK_PRIOR, FieldId::Text1, kRepeated));
  EXPECT_EQ(title(), L"a");
  holdDown({});
  EXPECT_FALSE(press(VK_NEXT)) << "the text's own key";
}

TEST_F(MainWindowKeys, deleteOneNoteHoweverLongTheyAreHeld) {
  holdDown({VK_CONTROL});
  EXPECT_TRUE(press(VK_DELETE, FieldId::Text2, kPressed | kExtended));
  EXPECT_FALSE(contentOf("a.txt"));
  EXPECT_TRUE(press(VK_DELETE, FieldId::Text2, kRepeated | kExtended)) << "the text loses no word";
  EXPECT_TRUE(contentOf("b.txt"));
}

TEST_F(MainWindowKeys, turnTheHalfOfTheDayInTheTimeOnly) {
  const auto half = [this] { return window_->text(FieldId::AmPmLabel); };
  ASSERT_EQ(half(), L"AM");
  EXPECT_FALSE(press(VK_UP, FieldId::Text2));
  EXPECT_FALSE(press(VK_DOWN, FieldId::Text1));
  EXPECT_EQ(half(), L"AM");
  EXPECT_TRUE(press(VK_UP, FieldId::Text3));
  EXPECT_EQ(half(), L"PM");
  EXPECT_TRUE(press(VK_DOWN, FieldId::Text3, kRepeated));
  EXPECT_EQ(half(), L"PM");
  EXPECT_TRUE(press(VK_DOWN, FieldId::Text3));
  EXPECT_EQ(half(), L"AM");
}

TEST_F(MainWindowKeys, ofAReminderAreTheFieldsWithoutOne) {
  EXPECT_FALSE(press(VK_F7));
  EXPECT_FALSE(press(VK_F8));
  EXPECT_FALSE(press(VK_APPS));
  EXPECT_FALSE(window_->takesCommandKey({main_, WM_KEYUP, VK_APPS, kPressed, 0, {0, 0}}));
}

TEST_F(MainWindowKeys, ofAReminderThatCameJustNowAreForNobody) {
  note("Gym.tx1", "7|30|Run");
  note("Pills.tx1", "7|30|Two");
  window_->deliver([this] { form_.Update_All_Al(); });
  window_->deliver([this] { form_.closeByKeyboard(); });
  settle();
  clock.time = {2026, 11, 21, 6, 7, 30, 1};
  window_->deliver([this] { form_.timerTick(TimerId::Spr1m); });
  settle();
  ASSERT_TRUE(form_.showsReminder());
  const std::wstring first = title();
  const auto pressAt = [this](WPARAM key, DWORD time) {
    return window_->takesCommandKey({main_, WM_KEYDOWN, key, kPressed, time, {0, 0}});
  };
  EXPECT_TRUE(pressAt(VK_F8, GetTickCount())) << "nobody else's, either";
  EXPECT_EQ(title(), first);
  EXPECT_TRUE(window_->takesCommandKey({main_, WM_KEYUP, VK_APPS, kPressed, 0, {0, 0}}))
      << "the field's menu would open";
  EXPECT_TRUE(pressAt(VK_F8, GetTickCount() + GetDoubleClickTime()));
  settle();
  EXPECT_NE(title(), first);
}

TEST_F(MainWindowKeys, ofOtherWindowsAreTheirs) {
  EXPECT_FALSE(window_->takesCommandKey({nullptr, WM_KEYDOWN, VK_F6, kPressed, 0, {0, 0}}));
  EXPECT_FALSE(
      window_->takesCommandKey({GetDesktopWindow(), WM_KEYDOWN, VK_F6, kPressed, 0, {0, 0}}));
}

TEST_F(MainWindowKeys, leaveClosingToThePlatform) {
  holdDown({VK_MENU});
  EXPECT_FALSE(window_->takesCommandKey({main_, WM_SYSKEYDOWN, VK_F4, kPressed, 0, {0, 0}}));
}

}  // namespace
}  // namespace kalvora
