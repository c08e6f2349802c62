#pragma once

#include <windows.h>

#include "win32/platform/UniqueHandle.h"

namespace kalvora {

/// While it lives, a character that is typed in a dialog, modal or not, goes to the control that
/// has the keyboard and nowhere else. The platform would look for a button whose caption has that
/// letter underlined, and press it, wherever the control itself takes no letters: a slip of the
/// hand on a tick box would delete a note. With Alt held the underlined letters work as ever.
class DialogLetters {
 public:
  DialogLetters();

 private:
  UniqueHook hook_;
};

}  // namespace kalvora
