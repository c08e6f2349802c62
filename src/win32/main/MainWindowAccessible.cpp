#include "win32/main/MainWindowAccessible.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "win32/main/ReadersLibrary.h"
#include "win32/platform/ComLibrary.h"

namespace kalvora {

namespace {

using Microsoft::WRL::ComPtr;

// What a button answers.
std::wstring_view nothing(const NamedButton& /*button*/) {
  return {};
}
std::wstring_view press(const NamedButton& /*button*/) {
  return L"Press";
}
std::wstring_view actionOfButton(const NamedButton& button) {
  return button.action;
}
std::wstring_view keyOfButton(const NamedButton& button) {
  return button.key;
}

VARIANT childNumber(LONG number) {
  VARIANT child{};
  child.vt = VT_I4;
  child.lVal = number;
  return child;
}

const VARIANT kSelf = childNumber(CHILDID_SELF);

HRESULT giveNumber(VARIANT* out, LONG number) {
  *out = childNumber(number);
  return S_OK;
}

HRESULT giveText(BSTR* out, std::wstring_view text) {
  *out = comText(text);
  return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

}  // namespace

ComPtr<MainWindowAccessible> MainWindowAccessible::create(HWND window,
                                                          std::vector<NamedControl> controls,
                                                          Press press) {
  std::unique_ptr<MainWindowAccessible> made(
      new MainWindowAccessible(window, std::move(controls), std::move(press)));
  made->standard_ = standardObjectOf(window);
  if (!made->standard_) return nullptr;
  ComPtr<MainWindowAccessible> accessible(made.get());
  accessible->self_ = std::move(made);
  return accessible;
}

MainWindowAccessible::MainWindowAccessible(HWND window, std::vector<NamedControl> controls,
                                           Press press)
    : window_(window), controls_(std::move(controls)), press_(std::move(press)) {}

MainWindowAccessible::~MainWindowAccessible() = default;

LRESULT MainWindowAccessible::answer(WPARAM wParam) {
  return answerWith(*this, wParam);
}

void MainWindowAccessible::disconnect() {
  const ComPtr<MainWindowAccessible> alive(this);
  standard_.Reset();
  press_ = nullptr;
  // Other programs let go of it too.
  disconnectComObject(static_cast<IAccessible*>(this));
}

HRESULT MainWindowAccessible::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IDispatch) &&
      !IsEqualIID(id, IID_IAccessible)) {
    return E_NOINTERFACE;
  }
  *object = static_cast<IAccessible*>(this);
  AddRef();
  return S_OK;
}

ULONG MainWindowAccessible::AddRef() {
  return static_cast<ULONG>(InterlockedIncrement(&references_));
}

ULONG MainWindowAccessible::Release() {
  const LONG left = InterlockedDecrement(&references_);
  if (left > 0) return static_cast<ULONG>(left);
  // Ends this object where the block ends.
  const std::unique_ptr<MainWindowAccessible> last = std::move(self_);
  return 0;
}

HRESULT MainWindowAccessible::GetTypeInfoCount(UINT* /*count*/) {
  return E_NOTIMPL;
}

HRESULT MainWindowAccessible::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** /*info*/) {
  return E_NOTIMPL;
}

HRESULT MainWindowAccessible::GetIDsOfNames(REFIID /*id*/, LPOLESTR* /*names*/, UINT /*count*/,
                                            LCID /*locale*/, DISPID* /*ids*/) {
  return E_NOTIMPL;
}

HRESULT MainWindowAccessible::Invoke(DISPID /*member*/, REFIID /*id*/, LCID /*locale*/,
                                     WORD /*flags*/, DISPPARAMS* /*parameters*/,
                                     VARIANT* /*result*/, EXCEPINFO* /*exception*/,
                                     UINT* /*wrongArgument*/) {
  return E_NOTIMPL;
}

const NamedControl* MainWindowAccessible::controlOf(const VARIANT& child) const {
  const LONG first = static_cast<LONG>(kButtonCount) + 1;
  if (child.vt != VT_I4 || child.lVal < first || child.lVal > childCount()) return nullptr;
  return &controls_[static_cast<std::size_t>(child.lVal - first)];
}

MainWindowAccessible::Target MainWindowAccessible::find(const VARIANT& child) const {
  if (!standard_) return {CO_E_OBJNOTCONNECTED, nullptr, nullptr};
  if (child.vt != VT_I4 || child.lVal < CHILDID_SELF || child.lVal > childCount()) {
    return {E_INVALIDARG, nullptr, nullptr};
  }
  if (child.lVal == CHILDID_SELF) return {S_OK, nullptr, standard_};
  if (const NamedControl* const named = controlOf(child)) {
    ComPtr<IAccessible> object = clientObjectOf(named->control);
    return {object ? S_OK : E_FAIL, nullptr, object};
  }
  return {S_OK, &buttons_[static_cast<std::size_t>(child.lVal - 1)], nullptr};
}

LONG MainWindowAccessible::stateOf(const NamedButton& button) const {
  LONG state = 0;
  if (!button.visible || !IsWindowVisible(window_)) state |= STATE_SYSTEM_INVISIBLE;
  if (!IsWindowEnabled(window_)) state |= STATE_SYSTEM_UNAVAILABLE;
  return state;
}

/// A text of a child: `getter` asks an object, `ofButton` a button; there is none where it answers
/// with an empty one.
template <typename Getter>
HRESULT MainWindowAccessible::textOf(const VARIANT& child, BSTR* text, Getter getter,
                                     std::wstring_view (*ofButton)(const NamedButton&)) {
  if (text == nullptr) return E_INVALIDARG;
  *text = nullptr;
  const Target target = find(child);
  if (target.object) return (target.object.Get()->*getter)(kSelf, text);
  if (FAILED(target.result)) return target.result;
  const std::wstring_view own = ofButton(*target.button);
  return own.empty() ? S_FALSE : giveText(text, own);
}

HRESULT MainWindowAccessible::get_accParent(IDispatch** parent) {
  if (parent == nullptr) return E_INVALIDARG;
  *parent = nullptr;
  return standard_ ? standard_->get_accParent(parent) : CO_E_OBJNOTCONNECTED;
}

HRESULT MainWindowAccessible::get_accChildCount(LONG* count) {
  if (count == nullptr) return E_INVALIDARG;
  *count = 0;
  if (!standard_) return CO_E_OBJNOTCONNECTED;
  *count = childCount();
  return S_OK;
}

HRESULT MainWindowAccessible::get_accChild(VARIANT child, IDispatch** object) {
  if (object == nullptr) return E_INVALIDARG;
  *object = nullptr;
  const Target target = find(child);
  if (FAILED(target.result)) return target.result;
  if (target.button != nullptr) return S_FALSE;
  const NamedControl* const named = controlOf(child);
  if (named == nullptr) return QueryInterface(IID_IDispatch, reinterpret_cast<void**>(object));
  return readersObjectOf(named->control, OBJID_WINDOW, IID_IDispatch,
                         reinterpret_cast<void**>(object));
}

HRESULT MainWindowAccessible::get_accName(VARIANT child, BSTR* name) {
  if (name == nullptr) return E_INVALIDARG;
  *name = nullptr;
  const Target target = find(child);
  if (FAILED(target.result)) return target.result;
  if (target.button != nullptr) return giveText(name, target.button->name);
  if (const NamedControl* const named = controlOf(child)) return giveText(name, named->name);
  return target.object->get_accName(kSelf, name);
}

HRESULT MainWindowAccessible::get_accValue(VARIANT child, BSTR* value) {
  return textOf(child, value, &IAccessible::get_accValue, nothing);
}

HRESULT MainWindowAccessible::get_accDescription(VARIANT child, BSTR* description) {
  return textOf(child, description, &IAccessible::get_accDescription, actionOfButton);
}

HRESULT MainWindowAccessible::get_accRole(VARIANT child, VARIANT* role) {
  if (role == nullptr) return E_INVALIDARG;
  *role = {};
  const Target target = find(child);
  if (target.object) return target.object->get_accRole(kSelf, role);
  return FAILED(target.result) ? target.result : giveNumber(role, ROLE_SYSTEM_PUSHBUTTON);
}

HRESULT MainWindowAccessible::get_accState(VARIANT child, VARIANT* state) {
  if (state == nullptr) return E_INVALIDARG;
  *state = {};
  const Target target = find(child);
  if (target.object) return target.object->get_accState(kSelf, state);
  return FAILED(target.result) ? target.result : giveNumber(state, stateOf(*target.button));
}

HRESULT MainWindowAccessible::get_accHelp(VARIANT child, BSTR* help) {
  return textOf(child, help, &IAccessible::get_accHelp, nothing);
}

HRESULT MainWindowAccessible::get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) {
  if (file == nullptr || topic == nullptr) return E_INVALIDARG;
  *file = nullptr;
  *topic = 0;
  const Target target = find(child);
  if (target.object) return target.object->get_accHelpTopic(file, kSelf, topic);
  return FAILED(target.result) ? target.result : S_FALSE;
}

HRESULT MainWindowAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
  return textOf(child, shortcut, &IAccessible::get_accKeyboardShortcut, keyOfButton);
}

HRESULT MainWindowAccessible::get_accFocus(VARIANT* child) {
  if (child == nullptr) return E_INVALIDARG;
  *child = {};
  return standard_ ? standard_->get_accFocus(child) : CO_E_OBJNOTCONNECTED;
}

HRESULT MainWindowAccessible::get_accSelection(VARIANT* children) {
  if (children == nullptr) return E_INVALIDARG;
  *children = {};
  return standard_ ? standard_->get_accSelection(children) : CO_E_OBJNOTCONNECTED;
}

HRESULT MainWindowAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
  return textOf(child, action, &IAccessible::get_accDefaultAction, press);
}

HRESULT MainWindowAccessible::accSelect(LONG flags, VARIANT child) {
  const Target target = find(child);
  if (target.object) return target.object->accSelect(flags, kSelf);
  // The keyboard never stands on a button.
  return FAILED(target.result) ? target.result : DISP_E_MEMBERNOTFOUND;
}

HRESULT MainWindowAccessible::accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) {
  if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) {
    return E_INVALIDARG;
  }
  *left = *top = *width = *height = 0;
  const Target target = find(child);
  if (target.object) return target.object->accLocation(left, top, width, height, kSelf);
  if (FAILED(target.result)) return target.result;
  const Rect& rect = target.button->rect;
  POINT corner{rect.x, rect.y};
  ClientToScreen(window_, &corner);
  *left = corner.x;
  *top = corner.y;
  *width = rect.width;
  *height = rect.height;
  return S_OK;
}

HRESULT MainWindowAccessible::giveChild(LONG number, VARIANT* child) {
  if (number <= CHILDID_SELF || number > childCount()) return S_FALSE;
  if (number <= static_cast<LONG>(kButtonCount)) return giveNumber(child, number);
  IDispatch* object = nullptr;
  const HRESULT result = get_accChild(childNumber(number), &object);
  if (FAILED(result)) return result;
  child->vt = VT_DISPATCH;
  child->pdispVal = object;
  return S_OK;
}

HRESULT MainWindowAccessible::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
  if (end == nullptr) return E_INVALIDARG;
  *end = {};
  const Target target = find(start);
  if (FAILED(target.result)) return target.result;
  const bool fromSelf = start.lVal == CHILDID_SELF;
  if (fromSelf && direction == NAVDIR_FIRSTCHILD) return giveChild(1, end);
  if (fromSelf && direction == NAVDIR_LASTCHILD) return giveChild(childCount(), end);
  if (fromSelf) return standard_->accNavigate(direction, start, end);
  if (direction == NAVDIR_NEXT) return giveChild(start.lVal + 1, end);
  if (direction == NAVDIR_PREVIOUS) return giveChild(start.lVal - 1, end);
  return S_FALSE;
}

HRESULT MainWindowAccessible::accHitTest(LONG left, LONG top, VARIANT* child) {
  if (child == nullptr) return E_INVALIDARG;
  *child = {};
  if (!standard_) return CO_E_OBJNOTCONNECTED;
  const HRESULT result = standard_->accHitTest(left, top, child);
  // A control lies above the buttons; what lies outside the window is no button's.
  if (result != S_OK || child->vt != VT_I4 || child->lVal != CHILDID_SELF) return result;
  POINT at{left, top};
  ScreenToClient(window_, &at);
  // A later button lies above an earlier one.
  const auto hit =
      std::ranges::find_if(buttons_.rbegin(), buttons_.rend(), [&](const auto& button) {
        return button.visible && button.rect.contains({at.x, at.y});
      });
  if (hit != buttons_.rend()) return giveNumber(child, static_cast<LONG>(hit->id) + 1);
  return S_OK;
}

HRESULT MainWindowAccessible::accDoDefaultAction(VARIANT child) {
  const Target target = find(child);
  if (target.object) return target.object->accDoDefaultAction(kSelf);
  if (FAILED(target.result)) return target.result;
  // What cannot be clicked cannot be pressed either.
  if (stateOf(*target.button) != 0) return DISP_E_MEMBERNOTFOUND;
  press_(target.button->id);
  return S_OK;
}

HRESULT MainWindowAccessible::put_accName(VARIANT /*child*/, BSTR /*name*/) {
  return DISP_E_MEMBERNOTFOUND;
}

HRESULT MainWindowAccessible::put_accValue(VARIANT /*child*/, BSTR /*value*/) {
  return DISP_E_MEMBERNOTFOUND;
}

}  // namespace kalvora
