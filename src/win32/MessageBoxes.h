#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/EventGuard.h"

namespace kalvora {

/// The system's message boxes, in front of the other windows because the program often has none
/// of its own on the screen. Each waits for the user and runs the program's events meanwhile.
void showCriticalMessage(HWND owner, std::wstring_view title, std::wstring_view text);
/// True for OK, false for Cancel.
bool askOkCancel(HWND owner, std::wstring_view title, std::wstring_view text);

/// Tells a failed event handler's failure to the user, one at a time: what fails while a message
/// stands open waits until it is closed, and the same failure is not told twice meanwhile.
class MessageBoxReporter : public ErrorReporter {
 public:
  /// Its messages wait in front of the window that the user works in.
  MessageBoxReporter() = default;
  /// Each message waits in front of the window that `owner` names then, which can be none.
  explicit MessageBoxReporter(std::function<HWND()> owner) : owner_(std::move(owner)) {}

  void report(std::wstring_view message) noexcept override;

 private:
  static constexpr std::size_t kMostWaiting = 5;

  std::function<HWND()> owner_;
  bool open_ = false;
  std::vector<std::wstring> waiting_;
};

}  // namespace kalvora
