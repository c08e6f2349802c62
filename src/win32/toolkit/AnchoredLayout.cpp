#include "win32/toolkit/AnchoredLayout.h"

namespace kalvora {

namespace {

// What a control showed at its old place, another one may have painted over by now.
constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;

SIZE clientSizeOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return {client.right, client.bottom};
}

RECT placeIn(HWND dialog, HWND control) {
  RECT place{};
  GetWindowRect(control, &place);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

}  // namespace

void AnchoredLayout::attach(HWND dialog, std::span<const Anchor> anchors) {
  dialog_ = dialog;
  size_ = clientSizeOf(dialog);
  entries_.clear();
  for (const Anchor& anchor : anchors) {
    const HWND control = GetDlgItem(dialog, anchor.controlId);
    if (control != nullptr) entries_.push_back({control, placeIn(dialog, control), anchor});
  }
}

void AnchoredLayout::apply() const {
  const SIZE now = clientSizeOf(dialog_);
  const LONG right = now.cx - size_.cx;
  const LONG down = now.cy - size_.cy;
  HDWP move = BeginDeferWindowPos(static_cast<int>(entries_.size()));
  for (const auto& [control, place, anchor] : entries_) {
    const LONG x = place.left + (anchor.sideways == Sideways::Move ? right : 0);
    const LONG y = place.top + (anchor.downwards == Downwards::Move ? down : 0);
    const LONG width = place.right - place.left + (anchor.sideways == Sideways::Grow ? right : 0);
    const LONG height = place.bottom - place.top + (anchor.downwards == Downwards::Grow ? down : 0);
    if (move == nullptr) return;
    move = DeferWindowPos(move, control, nullptr, x, y, width, height, kFlags);
  }
  if (move != nullptr) EndDeferWindowPos(move);
}

}  // namespace kalvora
