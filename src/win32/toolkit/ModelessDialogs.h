#pragma once

#include <windows.h>

#include <vector>

#include "win32/toolkit/DialogLetters.h"

namespace kalvora {

/// A dialog that stands open beside the main window.
class ModelessDialog {
 public:
  virtual ~ModelessDialog() = default;
  /// Acts on a message of the dialog's keyboard. Returns whether it is done with.
  virtual bool takesMessage(MSG& message) noexcept = 0;
};

/// The modeless dialogs that are open: the message loop asks them before it dispatches a message,
/// so that the keys of a dialog work in them.
class ModelessDialogs {
 public:
  /// `dialog` must stay until it is removed.
  void add(ModelessDialog& dialog);
  void remove(const ModelessDialog& dialog);
  bool takesMessage(MSG& message) noexcept;

 private:
  std::vector<ModelessDialog*> open_;
  DialogLetters letters_;
};

}  // namespace kalvora
