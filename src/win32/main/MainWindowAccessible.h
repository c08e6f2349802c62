#pragma once

#include <oleacc.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/ButtonNames.h"

namespace kalvora {

/// A control on a window, and what a screen reader calls it.
struct NamedControl {
  HWND control = nullptr;
  std::wstring name;
};

/// What a screen reader is told of the main window: the skinned buttons, which are no windows, and
/// then the controls on the window. All else, the window itself first of all, is told by the
/// platform's standard object.
///
/// Its children are numbered from 1: the buttons in the order of kAllButtons, which have no objects
/// of their own, then the controls in the order given, which have. It counts its references and may
/// outlive the window; disconnect() then makes it answer that the window is gone.
class MainWindowAccessible final : public IAccessible {
 public:
  /// Runs a button. It is called inside a call from another program, so it only posts.
  using Press = std::function<void(ButtonId)>;

  /// Null where the platform has no standard object for the window. Needs COM on this thread.
  static Microsoft::WRL::ComPtr<MainWindowAccessible> create(HWND window,
                                                             std::vector<NamedControl> controls,
                                                             Press press);
  ~MainWindowAccessible();
  MainWindowAccessible(const MainWindowAccessible&) = delete;
  MainWindowAccessible& operator=(const MainWindowAccessible&) = delete;

  /// From now on the buttons are told like this.
  void setButtons(const NamedButtons& buttons) { buttons_ = buttons; }
  /// The window's answer to a WM_GETOBJECT for OBJID_CLIENT with this wParam.
  LRESULT answer(WPARAM wParam);
  /// The window ends: from now on every call is refused with CO_E_OBJNOTCONNECTED.
  void disconnect();

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // Nobody asks for these by name at run time.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) override;

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override;
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override;
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override;
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override;
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override;
  HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                        VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
  HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override;
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override;

 private:
  /// Whom a child number means: a button, or an object that is asked about itself.
  struct Target {
    HRESULT result = S_OK;
    const NamedButton* button = nullptr;
    Microsoft::WRL::ComPtr<IAccessible> object;
  };

  MainWindowAccessible(HWND window, std::vector<NamedControl> controls, Press press);
  LONG childCount() const { return static_cast<LONG>(kButtonCount + controls_.size()); }
  /// The control with this child number, or nothing.
  const NamedControl* controlOf(const VARIANT& child) const;
  Target find(const VARIANT& child) const;
  LONG stateOf(const NamedButton& button) const;
  HRESULT giveChild(LONG number, VARIANT* child);
  template <typename Getter>
  HRESULT textOf(const VARIANT& child, BSTR* text, Getter getter,
                 std::wstring_view (*ofButton)(const NamedButton&));

  LONG references_ = 0;
  // Holds this object as long as anybody has a reference to it.
  std::unique_ptr<MainWindowAccessible> self_;
  HWND window_;
  std::vector<NamedControl> controls_;
  Press press_;
  NamedButtons buttons_;
  Microsoft::WRL::ComPtr<IAccessible> standard_;
};

}  // namespace kalvora
