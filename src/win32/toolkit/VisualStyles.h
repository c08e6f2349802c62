#pragma once

/// The manifest among the program's resources that asks for the controls of the user's theme.
#define IDR_VISUAL_STYLES 10

#ifndef RC_INVOKED

#include <windows.h>

namespace kalvora {

/// The controls, dialogs and boxes that this thread makes while such an object lives look as the
/// user's theme has them. The program does not ask for that from its start: the library that brings
/// those controls takes its time to load, and nothing needs them before the main window is painted.
class VisualStyles {
 public:
  VisualStyles() noexcept;
  ~VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;

 private:
  ULONG_PTR active_ = 0;
};

/// Lets windows be made of the common controls' classes: `classes` are flags of
/// INITCOMMONCONTROLSEX.
void registerControls(DWORD classes) noexcept;

}  // namespace kalvora

#endif
