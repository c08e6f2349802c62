#pragma once

#include <windows.h>

namespace kalvora {

/// A function of a system library. The library is loaded with the first call and not with the
/// program: many runs never need it, nor all that it needs in turn. And it comes from the system's
/// folder: the loader would take one of that name that stands beside the program. Null where the
/// system does not have it.
template <typename Function>
Function* systemFunction(const wchar_t* library, const char* name) noexcept {
  // It stays loaded: who needed it once will need it again.
  const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (module == nullptr) return nullptr;
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace kalvora
