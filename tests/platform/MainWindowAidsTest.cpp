#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>
#include <wrl/client.h>

#include <algorithm>

#include "fakes/FakeOptionsView.h"
#include "options/ComfortTable.h"
#include "platform/SteppedMainWindow.h"

namespace kalvora {
namespace {

using Microsoft::WRL::ComPtr;

/// What a screen reader and the tips tell of it.
class MainWindowAids : public SteppedMainWindow {
 protected:
  // Painted, it has its tips.
  MainWindowAids() { pump(); }

  std::vector<std::wstring> tips() const {
    std::vector<std::wstring> texts;
    HWND control = nullptr;
    while ((control = FindWindowExW(nullptr, control, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
      if (GetWindow(control, GW_OWNER) == main_) break;
    }
    wchar_t text[80] = {};
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.lpszText = text;
    for (WPARAM i = 0;
         SendMessageW(control, TTM_ENUMTOOLSW, i, reinterpret_cast<LPARAM>(&tool)) != 0; ++i) {
      texts.emplace_back(text);
    }
    return texts;
  }

  ComPtr<IAccessible> read() const {
    ComPtr<IAccessible> object;
    AccessibleObjectFromWindow(main_, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                               reinterpret_cast<void**>(object.GetAddressOf()));
    return object;
  }

  static VARIANT numberOf(ButtonId id) {
    VARIANT value{};
    value.vt = VT_I4;
    value.lVal = static_cast<LONG>(id) + 1;
    return value;
  }
};

TEST_F(MainWindowAids, everyButtonHasItsTip) {
  const std::vector<std::wstring> told = tips();
  for (const NamedButton& button : form_.namedButtons()) {
    EXPECT_EQ(std::ranges::count(told, tipOf(button)), button.visible ? 1 : 0);
  }
}

TEST_F(MainWindowAids, everyFieldHasItsTipButWordsAreNotCovered) {
  for (const FieldId field : kAllFields) {
    EXPECT_EQ(std::ranges::count(tips(), tipOf(field)), field == FieldId::Text2 ? 0 : 1);
  }
  window_->deliver([this] { form_.act(MainCommand::New); });
  EXPECT_EQ(std::ranges::count(tips(), tipOf(FieldId::Text2)), 1);
}

TEST_F(MainWindowAids, hiddenButtonsHaveNoTip) {
  rollUp();
  const std::vector<std::wstring> told = tips();
  ASSERT_EQ(told.size(), 3 + kFieldCount - 1);
  for (const NamedButton& button : form_.namedButtons()) {
    EXPECT_EQ(std::ranges::count(told, tipOf(button)),
              button.id <= ButtonId::Buttons_Close ? 1 : 0);
  }
}

TEST_F(MainWindowAids, aScreenReaderLearnsWhatAButtonDoesAndItsKey) {
  const ComPtr<IAccessible> object = read();
  ASSERT_TRUE(object);
  BSTR told = nullptr;
  ASSERT_EQ(object->get_accKeyboardShortcut(numberOf(ButtonId::Buttons_main_02), &told), S_OK);
  EXPECT_STREQ(told, L"Ctrl+S");
  SysFreeString(told);
  ASSERT_EQ(object->get_accDescription(numberOf(ButtonId::Buttons_main_02), &told), S_OK);
  EXPECT_STREQ(told, L"Save as a Fast note");
  SysFreeString(told);
}

TEST_F(MainWindowAids, aScreenReaderReadsTheButtonsAndTheFields) {
  const ComPtr<IAccessible> object = read();
  ASSERT_TRUE(object);
  std::vector<std::wstring> names;
  for (LONG i = 1; i <= 14; ++i) {
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = i;
    BSTR name = nullptr;
    ASSERT_EQ(object->get_accName(child, &name), S_OK);
    names.emplace_back(name);
    SysFreeString(name);
  }
  EXPECT_EQ(names, (std::vector<std::wstring>{
                       L"Fast delete", L"Roll down/up", L"Minimize", L"New", L"Save", L"Delete",
                       L"Previous", L"Next", L"Snooze: remind again later (right-click for when)",
                       L"Done: put the reminder away", L"Title", L"Text", L"Time", L"AM or PM"}));
}

TEST_F(MainWindowAids, whatTheReaderPressesRunsAfterTheCall) {
  const ComPtr<IAccessible> object = read();
  ASSERT_TRUE(object);
  ASSERT_EQ(window_->text(FieldId::Text1), L"a");
  EXPECT_EQ(object->accDoDefaultAction(numberOf(ButtonId::Buttons_main_05)), S_OK);
  EXPECT_EQ(window_->text(FieldId::Text1), L"a");
  pump();
  EXPECT_EQ(window_->text(FieldId::Text1), L"b");
}

TEST_F(MainWindowAids, aPostedNumberThatIsNoButtonDoesNothing) {
  const std::wstring before = window_->text(FieldId::Text1);
  for (const WPARAM number : {WPARAM{kButtonCount}, WPARAM{1} << 20}) {
    PostMessageW(main_, WM_APP + 1, number, 0);
  }
  pump();
  EXPECT_EQ(window_->text(FieldId::Text1), before);
  EXPECT_TRUE(reporter.messages.empty());
}

TEST_F(MainWindowAids, theReaderLearnsThatButtonsAreHidden) {
  const ComPtr<IAccessible> object = read();
  ASSERT_TRUE(object);
  rollUp();
  VARIANT state{};
  EXPECT_EQ(object->get_accState(numberOf(ButtonId::Buttons_main_05), &state), S_OK);
  EXPECT_EQ(state.lVal, STATE_SYSTEM_INVISIBLE);
  EXPECT_EQ(object->get_accState(numberOf(ButtonId::Buttons_Down), &state), S_OK);
  EXPECT_EQ(state.lVal, 0);
}

TEST_F(MainWindowAids, theReaderMayKeepItsObjectLongerThanTheWindowLives) {
  const ComPtr<IAccessible> object = read();
  ASSERT_TRUE(object);
  window_.reset();
  EXPECT_FALSE(IsWindow(main_));
  BSTR name = nullptr;
  EXPECT_EQ(object->get_accName(numberOf(ButtonId::Buttons_Down), &name), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(object->accDoDefaultAction(numberOf(ButtonId::Buttons_Down)), CO_E_OBJNOTCONNECTED);
}

TEST_F(MainWindowAids, pastedLineFeedsAreSeenAsLineEnds) {
  const HWND text = GetDlgItem(main_, MainWindowFields::controlIdOf(FieldId::Text2));
  SendMessageW(text, EM_SETSEL, 0, -1);
  SendMessageW(text, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"one\ntwo\n"));
  EXPECT_EQ(window_->text(FieldId::Text2), L"one\r\ntwo\r\n");
  EXPECT_EQ(window_->caret(FieldId::Text2), 10U);
}

TEST_F(MainWindowAids, aMonitorThatGoesTakesNoWindowAlongAndItsMessageKeepsNobodyWaiting) {
  ASSERT_GT(window_->lastPlace.x, 640);
  window_->screen = {640, 480};
  SendMessageW(main_, WM_DISPLAYCHANGE, 32, MAKELPARAM(640, 480));
  EXPECT_TRUE(window_->errors.empty());
  pump();
  EXPECT_EQ(window_->lastPlace, (Rect{580, 220, 60, 40}));
  EXPECT_EQ(window_->errors.size(), 1U);
}

TEST_F(MainWindowAids, aClockThatIsSetOrAComputerThatWakesIsLookedAtAndKeepsNobodyWaiting) {
  FakeOptionsView options;
  form_.optionsHost().Options_to_form(options);
  for (std::size_t i = 0; i < comfortTicks().size(); ++i) {
    options.setChecked({CheckBox::Comfort, static_cast<int>(i)}, true);
  }
  form_.optionsHost().Save_options_KV(options);
  const std::wstring seen = L"Comfort/Seen";
  ASSERT_FALSE(store.values.contains(seen));
  SendMessageW(main_, WM_TIMECHANGE, 0, 0);
  EXPECT_FALSE(store.values.contains(seen));
  pump();
  EXPECT_EQ(store.values[seen], L"2026-11-21 03:17");
  clock.time.minute = 18;
  SendMessageW(main_, WM_POWERBROADCAST, PBT_APMSUSPEND, 0);
  pump();
  EXPECT_EQ(store.values[seen], L"2026-11-21 03:17");
  SendMessageW(main_, WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC, 0);
  pump();
  EXPECT_EQ(store.values[seen], L"2026-11-21 03:18");
}

TEST_F(MainWindowAids, theSecondPressOfADoubleClickTurnsThePageButSendsNoWindowAway) {
  EXPECT_NE(GetClassLongW(main_, GCL_STYLE) & CS_DBLCLKS, 0U);
  const auto pressAgain = [this](ButtonId button) {
    const Point at = middleOf(button);
    const LPARAM place = MAKELPARAM(at.x, at.y);
    SendMessageW(main_, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    SendMessageW(main_, WM_LBUTTONUP, 0, place);
  };
  pressAgain(ButtonId::Buttons_main_05);
  EXPECT_EQ(window_->text(FieldId::Text1), L"b");
  const Point at = middleOf(ButtonId::Buttons_Close);
  const auto press = [this, place = MAKELPARAM(at.x, at.y)] {
    SendMessageW(main_, WM_LBUTTONDOWN, MK_LBUTTON, place);
    SendMessageW(main_, WM_LBUTTONUP, 0, place);
  };
  press();
  settle();
  pressAgain(ButtonId::Buttons_Close);
  EXPECT_FALSE(window_->running.contains(TimerId::Timer1));
  press();
  EXPECT_FALSE(window_->running.contains(TimerId::Timer1)) << "the third of three presses";
}

TEST_F(MainWindowAids, theWheelOverTheSkinScrollsTheText) {
  std::wstring lines;
  for (int i = 0; i < 100; ++i) lines += L"line\r\n";
  window_->setText(FieldId::Text2, lines);
  const HWND text = GetDlgItem(main_, MainWindowFields::controlIdOf(FieldId::Text2));
  SendMessageW(main_, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  EXPECT_GT(SendMessageW(text, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
}

}  // namespace
}  // namespace kalvora
