#pragma once

#include <filesystem>

namespace kalvora {

/// The program's icon in the notification area.
class TrayIcon {
 public:
  virtual ~TrayIcon() = default;

  /// Takes the picture of an icon file for the next add; the icon of the program stays where the
  /// file cannot be loaded.
  virtual void setPicture(const std::filesystem::path& iconFile) = 0;
  virtual void add() = 0;
  virtual void remove() = 0;
};

/// Update the icon on the task bar: takes it away and puts it up again.
inline void Update_Icon_on_task(TrayIcon& icon) {
  icon.remove();
  icon.add();
}

}  // namespace kalvora
