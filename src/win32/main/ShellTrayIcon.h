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
/// bar is not there yet, as happens at logon. It goes with its owner.
class ShellTrayIcon final : public TrayIcon {
 public:
  /// `onMouse` is given each mouse message's number. `deliver` must outlive this object.
  ShellTrayIcon(const EventDelivery& deliver, std::function<void(int message)> onMouse);
  ~ShellTrayIcon() override;
  ShellTrayIcon(const ShellTrayIcon&) = delete;
  ShellTrayIcon& operator=(const ShellTrayIcon&) = delete;

  void setPicture(const std::filesystem::path& iconFile) override;
  void add() override;
  void remove() override;

 private:
  LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  NOTIFYICONDATAA record() const;
  void tryToAdd();

  const EventDelivery& deliver_;
  std::function<void(int)> onMouse_;
  UINT taskbarCreated_;
  HWND pichook = nullptr;
  UniqueIcon Ikona_1;
  bool wanted_ = false;
  int triesLeft_ = 0;
};

}  // namespace kalvora
