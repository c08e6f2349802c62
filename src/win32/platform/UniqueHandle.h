#pragma once

#include <windows.h>

#include <utility>

namespace kalvora {

/// The owner of a Windows handle: move-only, and closes it with `Close`. Takes both null and
/// INVALID_HANDLE_VALUE for no handle.
template <typename Handle, auto Close>
class UniqueHandle {
 public:
  UniqueHandle() = default;
  explicit UniqueHandle(Handle handle) : handle_(orNull(handle)) {}
  ~UniqueHandle() { reset(); }
  UniqueHandle(UniqueHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  UniqueHandle& operator=(UniqueHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    if (this != &other) other.reset();
    return *this;
  }

  Handle get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }

  /// Gives the handle away without closing it, to a Windows call that takes it over.
  [[nodiscard]] Handle release() { return std::exchange(handle_, nullptr); }

  /// Closes the handle, if any.
  void reset() {
    if (const Handle handle = release()) static_cast<void>(Close(handle));
  }

 private:
  static Handle orNull(Handle handle) {
    return reinterpret_cast<LONG_PTR>(handle) == -1 ? nullptr : handle;
  }

  Handle handle_ = nullptr;
};

using UniqueFile = UniqueHandle<HANDLE, &CloseHandle>;
using UniqueProcess = UniqueHandle<HANDLE, &CloseHandle>;  // and a thread of one
using UniqueFind = UniqueHandle<HANDLE, &FindClose>;
using UniqueKey = UniqueHandle<HKEY, &RegCloseKey>;
using UniqueBitmap = UniqueHandle<HBITMAP, &DeleteObject>;
using UniqueRegion = UniqueHandle<HRGN, &DeleteObject>;
using UniqueBrush = UniqueHandle<HBRUSH, &DeleteObject>;
using UniqueFont = UniqueHandle<HFONT, &DeleteObject>;
using UniqueMemoryDc = UniqueHandle<HDC, &DeleteDC>;
using UniqueIcon = UniqueHandle<HICON, &DestroyIcon>;
using UniqueMenu = UniqueHandle<HMENU, &DestroyMenu>;
using UniqueHook = UniqueHandle<HHOOK, &UnhookWindowsHookEx>;
using UniqueWindow = UniqueHandle<HWND, &DestroyWindow>;

}  // namespace kalvora
