#pragma once

#include <windows.h>
// shellapi.h needs windows.h before it.
#include <shellapi.h>

#include <functional>

#include "app/TrayIcon.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/toolkit/EventDelivery.h"

namespace kalvora {

/// The notification-area icon and the hidden window that receives its mouse messages. The icon
/// comes back by itself when the task bar restarts, and is tried again for a while where the task
/// bar is not there yet, as happens at logon; none of that holds up a minute's reminder check. It
/// goes with its owner.
class ShellTrayIcon final : public TrayIcon {
 public:
  /// `timers` is a window that may have a timer for this object. `onMouse` is given each mouse
  /// message's number. `timers` and `deliver` must outlive this object.
  ShellTrayIcon(HWND timers, const EventDelivery& deliver,
                std::function<void(int message)> onMouse);
  ~ShellTrayIcon() override;
  ShellTrayIcon(const ShellTrayIcon&) = delete;
  ShellTrayIcon& operator=(const ShellTrayIcon&) = delete;

  void setPicture(const std::filesystem::path& iconFile) override;
  void add(IconComes when) override;
  void remove() override;

 private:
  static void CALLBACK onTimer(HWND timers, UINT message, UINT_PTR icon, DWORD time) noexcept;
  LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  NOTIFYICONDATAA record() const;
  void addIn(UINT milliseconds);
  void stopAdding();
  void addClearOfCheck();
  void tryToAdd();
  bool makeWindow();

  const HWND timers_;
  const EventDelivery& deliver_;
  std::function<void(int)> onMouse_;
  UINT taskbarCreated_ = 0;
  HWND pichook = nullptr;  // there once the icon was asked for
  UniqueIcon Ikona_1;
  bool wanted_ = false;
  bool asked_ = false;  // the task bar was asked to take it: it may be there
  int triesLeft_ = 0;
};

}  // namespace kalvora
