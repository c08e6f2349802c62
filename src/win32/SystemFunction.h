#pragma once

#include <windows.h>

namespace kalvora {

/// A function of a system library that many runs of the program never need, so that the library,
/// and all that it needs in turn, is loaded with the first call and not with the program. Null
/// where the system does not have it.
template <typename Function>
Function* systemFunction(const wchar_t* library, const char* name) noexcept {
  // It stays loaded: who needed it once will need it again.
  const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (module == nullptr) return nullptr;
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace kalvora
