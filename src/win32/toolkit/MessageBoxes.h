#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/EventGuard.h"

namespace kalvora {

/// The window of the program that the user is in, or else the frontmost one of those that are to be
/// seen: a dialog, a message box or the main window, but none that goes away by itself, as the menu
/// does. Null where there is none, for the program often has none on the screen.
HWND windowInUse() noexcept;

/// The system's message boxes, in front of all windows. Each belongs to the window in use, which it
/// blocks, waits for the user and runs the program's events meanwhile.
void showCriticalMessage(std::wstring_view title, std::wstring_view text);
/// True for OK, false for Cancel.
bool askOkCancel(std::wstring_view title, std::wstring_view text);

/// Tells a failed event handler's failure to the user, one at a time: what fails while a message
/// stands open waits until it is closed, and the same failure is not told twice meanwhile.
class MessageBoxReporter : public ErrorReporter {
 public:
  void report(std::wstring_view message) noexcept override;

 private:
  static constexpr std::size_t kMostWaiting = 5;

  bool open_ = false;
  std::vector<std::wstring> waiting_;
};

}  // namespace kalvora
