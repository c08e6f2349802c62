// First, so that the identifiers of oleacc.h are defined here: not every compiler's libraries do.
#include <initguid.h>
// clang-format off: after initguid.h
#include "win32/toolkit/ControlNames.h"
// clang-format on

#include <algorithm>
#include <array>
#include <string>

#include "win32/platform/ComLibrary.h"

namespace kalvora {

ControlNames::ControlNames() {
  createComObject(CLSID_AccPropServices, IID_IAccPropServices,
                  reinterpret_cast<void**>(service_.ReleaseAndGetAddressOf()));
}

void ControlNames::setName(HWND control, std::wstring_view name) {
  set(control, PROPID_ACC_NAME, name);
}

void ControlNames::setValue(HWND control, std::wstring_view value) {
  set(control, PROPID_ACC_VALUE, value);
}

void ControlNames::clear() {
  const std::array<MSAAPROPID, 2> properties = {PROPID_ACC_NAME, PROPID_ACC_VALUE};
  for (const HWND control : controls_) {
    service_->ClearHwndProps(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                             properties.data(), static_cast<int>(properties.size()));
  }
  controls_.clear();
}

void ControlNames::set(HWND control, const GUID& property, std::wstring_view text) {
  if (!service_) return;
  const HRESULT result =
      service_->SetHwndPropStr(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, property,
                               std::wstring(text).c_str());
  const bool known = std::ranges::find(controls_, control) != controls_.end();
  if (SUCCEEDED(result) && !known) controls_.push_back(control);
}

}  // namespace kalvora
