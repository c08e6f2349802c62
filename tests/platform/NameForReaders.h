#pragma once

#include <oleacc.h>
#include <windows.h>

#include <wrl/client.h>

#include <string>

namespace kalvora {

/// What a screen reader calls a control. Needs COM on this thread.
inline std::wstring nameForReaders(HWND control) {
  Microsoft::WRL::ComPtr<IAccessible> accessible;
  AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                             reinterpret_cast<void**>(accessible.GetAddressOf()));
  if (!accessible) return L"nothing";
  VARIANT self{};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  BSTR name = nullptr;
  accessible->get_accName(self, &name);
  std::wstring text = name != nullptr ? name : L"";
  SysFreeString(name);
  return text;
}

}  // namespace kalvora
