#pragma once

#include <filesystem>

namespace kalvora {

/// When the task bar is asked for an icon: it takes its time, at logon seconds.
enum class IconComes { AtOnce, OnceIdle };

/// The program's icon in the notification area.
class TrayIcon {
 public:
  virtual ~TrayIcon() = default;

  /// Takes the picture of an icon file for the next add; the icon of the program stays where the
  /// file cannot be loaded.
  virtual void setPicture(const std::filesystem::path& iconFile) = 0;
  /// Throws Failure where there can be none.
  virtual void add(IconComes when) = 0;
  virtual void remove() = 0;
};

/// Update the icon on the task bar: takes it away and puts it up again.
inline void Update_Icon_on_task(TrayIcon& icon, IconComes when = IconComes::AtOnce) {
  icon.remove();
  icon.add(when);
}

}  // namespace kalvora
