#pragma once

#include <oleacc.h>
#include <windows.h>
#include <wrl/client.h>

#include <string_view>
#include <vector>

namespace kalvora {

/// Tells screen readers what controls are called that have no label that is seen. The controls
/// otherwise keep what the platform tells of them. Where the platform has no such service, nothing
/// is told.
class ControlNames {
 public:
  /// Needs COM on this thread.
  ControlNames();
  ~ControlNames() { clear(); }
  ControlNames(const ControlNames&) = delete;
  ControlNames& operator=(const ControlNames&) = delete;

  void setName(HWND control, std::wstring_view name);
  /// What a control says, where the name hides it: a label's text is its name otherwise.
  void setValue(HWND control, std::wstring_view value);
  /// Takes back all that was told, which has to happen before the controls end.
  void clear();

 private:
  void set(HWND control, const GUID& property, std::wstring_view text);

  Microsoft::WRL::ComPtr<IAccPropServices> service_;
  std::vector<HWND> controls_;
};

}  // namespace kalvora
