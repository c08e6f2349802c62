#include "win32/main/MainWindowAccessible.h"

#include <gtest/gtest.h>

#include "TestWindow.h"
#include "win32/platform/ComLibrary.h"

namespace kalvora {
namespace {

using Microsoft::WRL::ComPtr;

constexpr LONG kFirstControl = static_cast<LONG>(kButtonCount) + 1;

VARIANT child(LONG number) {
  VARIANT value{};
  value.vt = VT_I4;
  value.lVal = number;
  return value;
}

LONG numberOf(ButtonId id) {
  return static_cast<LONG>(id) + 1;
}

/// Takes over a text that a call gave.
std::wstring taken(BSTR text) {
  std::wstring result = text == nullptr ? L"" : text;
  SysFreeString(text);
  return result;
}

/// A window with ten buttons of 20 × 10 pixels side by side, the seventh and the eighth on top of
/// each other and the third one hidden, and two fields.
class MainWindowAccessibleTest : public testing::Test {
 protected:
  MainWindowAccessibleTest() {
    title_ = window_.addEdit(WS_TABSTOP, 100);
    time_ = window_.addEdit(WS_TABSTOP, 125);
    SetWindowTextW(title_, L"Milk");
    for (const ButtonId id : kAllButtons) {
      const int place = static_cast<int>(id) - (id >= ButtonId::Buttons_main_05 ? 1 : 0);
      buttons_[static_cast<std::size_t>(id)] = {
          id, nameOf(id), L"", L"", {22 * place, 5, 20, 10}, id != ButtonId::Buttons_Close};
    }
    own_ = MainWindowAccessible::create(window_.handle(), {{title_, L"Title"}, {time_, L"Time"}},
                                        [this](ButtonId id) { pressed_.push_back(id); });
    own_->setButtons(buttons_);
    window_.answer = [this](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
      if (message != WM_GETOBJECT || static_cast<LONG>(lParam) != OBJID_CLIENT || !own_) {
        return std::nullopt;
      }
      return own_->answer(wParam);
    };
    EXPECT_EQ(
        AccessibleObjectFromWindow(window_.handle(), static_cast<DWORD>(OBJID_CLIENT),
                                   IID_IAccessible, reinterpret_cast<void**>(read_.GetAddressOf())),
        S_OK);
  }
  ~MainWindowAccessibleTest() override {
    if (own_) own_->disconnect();
  }

  std::wstring name(LONG number) {
    BSTR text = nullptr;
    EXPECT_EQ(read_->get_accName(child(number), &text), S_OK);
    return taken(text);
  }
  LONG role(LONG number) {
    VARIANT value{};
    EXPECT_EQ(read_->get_accRole(child(number), &value), S_OK);
    return value.vt == VT_I4 ? value.lVal : -1;
  }
  LONG state(ButtonId id) {
    VARIANT value{};
    EXPECT_EQ(read_->get_accState(child(numberOf(id)), &value), S_OK);
    return value.vt == VT_I4 ? value.lVal : -1;
  }
  Rect location(LONG number) {
    LONG left = 0;
    LONG top = 0;
    LONG width = 0;
    LONG height = 0;
    EXPECT_EQ(read_->accLocation(&left, &top, &width, &height, child(number)), S_OK);
    return {left, top, width, height};
  }
  /// The child number at a pixel of the window; -1 where it is an object, -2 where it is nothing.
  LONG hit(int x, int y) {
    POINT at{x, y};
    ClientToScreen(window_.handle(), &at);
    VARIANT value{};
    read_->accHitTest(at.x, at.y, &value);
    const LONG number = value.vt == VT_I4 ? value.lVal : value.vt == VT_DISPATCH ? -1 : -2;
    VariantClear(&value);
    return number;
  }

  ComApartment com_;
  TestWindow window_;
  HWND title_ = nullptr;
  HWND time_ = nullptr;
  NamedButtons buttons_;
  std::vector<ButtonId> pressed_;
  ComPtr<MainWindowAccessible> own_;
  // What another program gets from the window.
  ComPtr<IAccessible> read_;
};

TEST_F(MainWindowAccessibleTest, theChildrenAreTheButtonsAndThenTheControls) {
  LONG count = 0;
  EXPECT_EQ(read_->get_accChildCount(&count), S_OK);
  EXPECT_EQ(count, 12);
  std::array<VARIANT, 12> children{};
  LONG obtained = 0;
  EXPECT_EQ(AccessibleChildren(read_.Get(), 0, 12, children.data(), &obtained), S_OK);
  ASSERT_EQ(obtained, 12);
  for (LONG i = 0; i < 10; ++i) {
    EXPECT_EQ(children[static_cast<std::size_t>(i)].vt, VT_I4);
    EXPECT_EQ(children[static_cast<std::size_t>(i)].lVal, i + 1);
  }
  EXPECT_EQ(children[10].vt, VT_DISPATCH);
  EXPECT_EQ(children[11].vt, VT_DISPATCH);
  for (VARIANT& one : children) VariantClear(&one);
}

TEST_F(MainWindowAccessibleTest, theButtonsHaveNamesAndAreButtons) {
  for (const ButtonId id : kAllButtons) {
    EXPECT_EQ(name(numberOf(id)), nameOf(id));
    EXPECT_EQ(role(numberOf(id)), ROLE_SYSTEM_PUSHBUTTON);
    BSTR action = nullptr;
    EXPECT_EQ(read_->get_accDefaultAction(child(numberOf(id)), &action), S_OK);
    EXPECT_EQ(taken(action), L"Press");
    IDispatch* object = nullptr;
    EXPECT_EQ(read_->get_accChild(child(numberOf(id)), &object), S_FALSE);
    EXPECT_EQ(object, nullptr);
  }
}

TEST_F(MainWindowAccessibleTest, theControlsHaveNamesAndObjects) {
  EXPECT_EQ(name(kFirstControl), L"Title");
  EXPECT_EQ(name(kFirstControl + 1), L"Time");
  EXPECT_EQ(role(kFirstControl), ROLE_SYSTEM_TEXT);
  BSTR value = nullptr;
  EXPECT_EQ(read_->get_accValue(child(kFirstControl), &value), S_OK);
  EXPECT_EQ(taken(value), L"Milk");
  ComPtr<IDispatch> object;
  ASSERT_EQ(read_->get_accChild(child(kFirstControl + 1), &object), S_OK);
  ComPtr<IAccessible> control;
  ASSERT_EQ(
      object->QueryInterface(IID_IAccessible, reinterpret_cast<void**>(control.GetAddressOf())),
      S_OK);
  HWND found = nullptr;
  EXPECT_EQ(WindowFromAccessibleObject(control.Get(), &found), S_OK);
  EXPECT_EQ(found, time_);
}

TEST_F(MainWindowAccessibleTest, theWindowItselfIsTheStandardOne) {
  EXPECT_EQ(name(CHILDID_SELF), L"Test");
  EXPECT_EQ(role(CHILDID_SELF), ROLE_SYSTEM_CLIENT);
  EXPECT_EQ(location(CHILDID_SELF), (Rect{100, 80, 200, 150}));
  ComPtr<IDispatch> parent;
  EXPECT_EQ(read_->get_accParent(&parent), S_OK);
  EXPECT_TRUE(parent);
}

TEST_F(MainWindowAccessibleTest, theButtonsStandOnTheScreenWhereTheWindowHasThem) {
  EXPECT_EQ(location(numberOf(ButtonId::Buttons_Down)), (Rect{122, 85, 20, 10}));
  SetWindowPos(window_.handle(), nullptr, 300, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_EQ(location(numberOf(ButtonId::Buttons_Down)), (Rect{322, 205, 20, 10}));
}

TEST_F(MainWindowAccessibleTest, whatIsNotToBeSeenIsInvisible) {
  EXPECT_EQ(state(ButtonId::Buttons_Down), 0);
  EXPECT_EQ(state(ButtonId::Buttons_Close), STATE_SYSTEM_INVISIBLE);
  buttons_[1].visible = false;
  own_->setButtons(buttons_);
  EXPECT_EQ(state(ButtonId::Buttons_Down), STATE_SYSTEM_INVISIBLE);
  ShowWindow(window_.handle(), SW_HIDE);
  EXPECT_EQ(state(ButtonId::Buttons_Delete), STATE_SYSTEM_INVISIBLE);
}

TEST_F(MainWindowAccessibleTest, aPointMeansTheButtonOrTheFieldThatIsSeenThere) {
  EXPECT_EQ(hit(5, 7), numberOf(ButtonId::Buttons_Delete));
  EXPECT_EQ(hit(21, 7), CHILDID_SELF);
  EXPECT_EQ(hit(50, 7), CHILDID_SELF) << "a hidden button";
  // Two buttons on top of each other: the later one is seen.
  EXPECT_EQ(hit(22 * 6 + 1, 7), numberOf(ButtonId::Buttons_main_05));
  EXPECT_EQ(hit(10, 110), -1);
  // Outside the window the platforms differ, but there is no button.
  EXPECT_LE(hit(-20, 7), CHILDID_SELF);
}

TEST_F(MainWindowAccessibleTest, theDefaultActionPressesTheButton) {
  EXPECT_EQ(read_->accDoDefaultAction(child(numberOf(ButtonId::Buttons_main_02))), S_OK);
  EXPECT_EQ(pressed_, std::vector{ButtonId::Buttons_main_02});
}

TEST_F(MainWindowAccessibleTest, whatCannotBeClickedCannotBePressed) {
  EXPECT_EQ(read_->accDoDefaultAction(child(numberOf(ButtonId::Buttons_Close))),
            DISP_E_MEMBERNOTFOUND);
  EnableWindow(window_.handle(), FALSE);  // as a message box does
  EXPECT_EQ(state(ButtonId::Buttons_Down), STATE_SYSTEM_UNAVAILABLE);
  EXPECT_EQ(read_->accDoDefaultAction(child(numberOf(ButtonId::Buttons_Down))),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_TRUE(pressed_.empty());
}

TEST_F(MainWindowAccessibleTest, oneCanGoThroughTheChildren) {
  VARIANT end{};
  EXPECT_EQ(read_->accNavigate(NAVDIR_FIRSTCHILD, child(CHILDID_SELF), &end), S_OK);
  EXPECT_EQ(end.lVal, 1);
  EXPECT_EQ(read_->accNavigate(NAVDIR_NEXT, child(1), &end), S_OK);
  EXPECT_EQ(end.lVal, 2);
  EXPECT_EQ(read_->accNavigate(NAVDIR_PREVIOUS, child(1), &end), S_FALSE);
  EXPECT_EQ(read_->accNavigate(NAVDIR_NEXT, child(10), &end), S_OK);
  EXPECT_EQ(end.vt, VT_DISPATCH);
  VariantClear(&end);
  EXPECT_EQ(read_->accNavigate(NAVDIR_NEXT, child(12), &end), S_FALSE);
}

TEST_F(MainWindowAccessibleTest, childrenThatThereAreNotAreRefused) {
  BSTR text = nullptr;
  EXPECT_EQ(read_->get_accName(child(13), &text), E_INVALIDARG);
  EXPECT_EQ(read_->get_accName(child(-1), &text), E_INVALIDARG);
  VARIANT nothing{};
  EXPECT_EQ(read_->get_accName(nothing, &text), E_INVALIDARG);
  EXPECT_EQ(text, nullptr);
}

TEST_F(MainWindowAccessibleTest, itEndsWithItsLastReference) {
  read_.Reset();
  own_->disconnect();
  IAccessible* const raw = own_.Get();
  EXPECT_EQ(raw->AddRef(), 2U);
  EXPECT_EQ(raw->Release(), 1U);
  ComPtr<IDispatch> same;
  EXPECT_EQ(own_->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(same.GetAddressOf())),
            S_OK);
  same.Reset();
  EXPECT_EQ(own_->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(same.GetAddressOf())),
            E_NOINTERFACE);
  auto alive = std::make_shared<int>(0);
  const std::weak_ptr<int> watched = alive;
  own_ = MainWindowAccessible::create(window_.handle(), {}, [alive](ButtonId) {});
  alive.reset();
  EXPECT_FALSE(watched.expired());
  own_.Reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(MainWindowAccessibleTest, afterTheWindowIsGoneItRefusesEverythingAndNothingBreaks) {
  own_->disconnect();
  own_.Reset();
  window_.end();
  LONG number = 0;
  VARIANT value{};
  BSTR text = nullptr;
  IDispatch* object = nullptr;
  EXPECT_EQ(read_->get_accChildCount(&number), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accName(child(1), &text), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accName(child(CHILDID_SELF), &text), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accName(child(kFirstControl), &text), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accDefaultAction(child(1), &text), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accRole(child(1), &value), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accState(child(1), &value), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accFocus(&value), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->accHitTest(110, 90, &value), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accParent(&object), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->get_accChild(child(kFirstControl), &object), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(read_->accDoDefaultAction(child(1)), CO_E_OBJNOTCONNECTED);
  EXPECT_TRUE(pressed_.empty());
  EXPECT_EQ(read_.Reset(), 0U) << "it ends with its last reference";
}

}  // namespace
}  // namespace kalvora
