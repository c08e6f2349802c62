#include "win32/main/ReadersLibrary.h"

#include "win32/platform/SystemFunction.h"

namespace kalvora {

namespace {

using Microsoft::WRL::ComPtr;

template <typename Function>
Function* readersFunction(const char* name) {
  return systemFunction<Function>(L"oleacc.dll", name);
}

}  // namespace

HRESULT readersObjectOf(HWND control, LONG part, REFIID id, void** object) {
  const auto find =
      readersFunction<decltype(AccessibleObjectFromWindow)>("AccessibleObjectFromWindow");
  return find == nullptr ? E_NOTIMPL : find(control, static_cast<DWORD>(part), id, object);
}

ComPtr<IAccessible> clientObjectOf(HWND control) {
  ComPtr<IAccessible> object;
  readersObjectOf(control, OBJID_CLIENT, IID_IAccessible,
                  reinterpret_cast<void**>(object.GetAddressOf()));
  return object;
}

ComPtr<IAccessible> standardObjectOf(HWND window) {
  const auto create =
      readersFunction<decltype(CreateStdAccessibleObject)>("CreateStdAccessibleObject");
  if (create == nullptr) return nullptr;
  ComPtr<IAccessible> object;
  create(window, OBJID_CLIENT, IID_IAccessible, reinterpret_cast<void**>(object.GetAddressOf()));
  return object;
}

LRESULT answerWith(IAccessible& object, WPARAM wParam) {
  const auto wrap = readersFunction<decltype(LresultFromObject)>("LresultFromObject");
  return wrap == nullptr ? 0 : wrap(IID_IAccessible, wParam, &object);
}

}  // namespace kalvora
