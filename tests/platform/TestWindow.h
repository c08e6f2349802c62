#pragma once

#include <windows.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

#include "win32/platform/UniqueHandle.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

/// A visible window of 200 × 150 pixels without a frame that remembers what messages it got.
class TestWindow {
 public:
  TestWindow() {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = windowProcedure<TestWindow, &TestWindow::hear>;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = L"KalvoraTestWindow";
    RegisterClassExW(&description);
    window_ = UniqueWindow(CreateWindowExW(WS_EX_TOOLWINDOW, L"KalvoraTestWindow", L"Test",
                                           WS_POPUP | WS_VISIBLE, 100, 80, 200, 150, nullptr,
                                           nullptr, GetModuleHandleW(nullptr), this));
    messages.clear();
  }

  HWND handle() const { return window_.get(); }
  void end() { window_.reset(); }

  /// An edit field in it, 20 pixels high.
  HWND addEdit(DWORD style, int y = 0) {
    return CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | style, 0, y, 100, 20, handle(),
                           nullptr, GetModuleHandleW(nullptr), nullptr);
  }

  bool got(UINT message) const { return std::ranges::find(messages, message) != messages.end(); }

  std::vector<UINT> messages;
  /// Answers a message itself where it gives a value.
  std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)> answer;

 private:
  LRESULT hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    messages.push_back(message);
    const auto result = answer ? answer(message, wParam, lParam) : std::nullopt;
    if (result) return *result;
    // Only noted, so that the test can go on.
    return message == WM_CLOSE ? 0 : DefWindowProcW(window, message, wParam, lParam);
  }

  UniqueWindow window_;
};

}  // namespace kalvora
