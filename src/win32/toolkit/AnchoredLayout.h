#pragma once

#include <windows.h>

#include <span>
#include <vector>

namespace kalvora {

/// What a control does when its dialog grows to the right, and downwards.
enum class Sideways { Stay, Move, Grow };
enum class Downwards { Stay, Move, Grow };

struct Anchor {
  int controlId;
  Sideways sideways;
  Downwards downwards;
};

/// Keeps the controls of a resizable dialog in their places relative to its edges. A control
/// without an anchor stays where it is.
class AnchoredLayout {
 public:
  /// Takes the places that the controls have now.
  void attach(HWND dialog, std::span<const Anchor> anchors);
  /// Moves the controls to where they belong at the dialog's size now.
  void apply() const;

 private:
  struct Entry {
    HWND control;
    RECT place;  // in the dialog as it was
    Anchor anchor;
  };

  HWND dialog_ = nullptr;
  SIZE size_{};
  std::vector<Entry> entries_;
};

}  // namespace kalvora
