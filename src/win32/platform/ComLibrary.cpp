#include "win32/platform/ComLibrary.h"

#include "win32/platform/SystemFunction.h"

namespace kalvora {

namespace {

constexpr const wchar_t* kObjects = L"ole32.dll";
constexpr const wchar_t* kTexts = L"oleaut32.dll";

}  // namespace

ComApartment::ComApartment() {
  const auto enter = systemFunction<decltype(CoInitializeEx)>(kObjects, "CoInitializeEx");
  entered_ = enter != nullptr && SUCCEEDED(enter(nullptr, COINIT_APARTMENTTHREADED));
}

ComApartment::~ComApartment() {
  if (!entered_) return;
  const auto leave = systemFunction<decltype(CoUninitialize)>(kObjects, "CoUninitialize");
  if (leave != nullptr) leave();
}

void createComObject(REFCLSID classId, REFIID interfaceId, void** object) {
  const auto create = systemFunction<decltype(CoCreateInstance)>(kObjects, "CoCreateInstance");
  if (create != nullptr) create(classId, nullptr, CLSCTX_INPROC_SERVER, interfaceId, object);
}

void disconnectComObject(IUnknown* object) {
  const auto disconnect =
      systemFunction<decltype(CoDisconnectObject)>(kObjects, "CoDisconnectObject");
  if (disconnect != nullptr) disconnect(object, 0);
}

BSTR comText(std::wstring_view text) {
  const auto allocate = systemFunction<decltype(SysAllocStringLen)>(kTexts, "SysAllocStringLen");
  return allocate == nullptr ? nullptr : allocate(text.data(), static_cast<UINT>(text.size()));
}

}  // namespace kalvora
