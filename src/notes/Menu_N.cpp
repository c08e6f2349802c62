#include "notes/Menu_N.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace kalvora {

namespace {

constexpr int kPointerCheckInterval = 100;

constexpr int kExit = 0;
constexpr int kAbout = 1;
constexpr int kEditAllNotes = 2;
constexpr int kOptions = 4;

}  // namespace

Point menuCorner(Point pointer, Size menu, const Rect& monitor) {
  Point corner = pointer;
  if (pointer.x + menu.width > monitor.right()) corner.x -= menu.width;
  if (pointer.y + menu.height > monitor.bottom()) corner.y -= menu.height;
  return corner;
}

void Menu_N::open() {
  view_.load();
  open_ = true;
  Form_Load();
}

void Menu_N::openAt(Point place) {
  view_.load();
  open_ = true;
  const Size menu = view_.size();
  const Rect monitor = view_.monitorAt(place);
  const Point corner = menuCorner(place, menu, monitor);
  showAt({std::clamp(corner.x, monitor.x, std::max(monitor.x, monitor.right() - menu.width)),
          std::clamp(corner.y, monitor.y, std::max(monitor.y, monitor.bottom() - menu.height))});
  restingPointer_ = view_.pointer();
  pointerWasThere_ = false;
  highlight(kMenuItems.front().number);
  highlightIsChosen_ = false;
}

void Menu_N::keyboardLeft() {
  if (restingPointer_) unload();
}

void Menu_N::unload() {
  if (!open_) return;
  open_ = false;
  view_.stopTimer1();
  view_.unload();
}

void Menu_N::Form_Load() {
  const Point pointer = view_.pointer();
  showAt(menuCorner(pointer, view_.size(), view_.monitorAt(pointer)));
  restingPointer_.reset();
  pointerWasThere_ = true;
}

void Menu_N::showAt(Point corner) {
  highlighted_.reset();
  pressed_.reset();
  for (const MenuItem& item : kMenuItems) view_.setBackColor(item.number, kMenuRestColor);
  view_.show(corner);
  view_.startTimer1(kPointerCheckInterval);
}

void Menu_N::mouseDown(std::optional<int> item) {
  pressed_ = item;
}

void Menu_N::mouseUp(std::optional<int> item) {
  const std::optional<int> pressed = std::exchange(pressed_, std::nullopt);
  if (item && item == pressed) Click_pl(*item);
}

void Menu_N::Click_pl(int item) {
  // An action may show messages for a while; the menu must not react to the pointer meanwhile.
  view_.stopTimer1();
  // What it opens takes the keyboard.
  restingPointer_.reset();
  try {
    act(item);
  } catch (...) {
    unload();
    throw;
  }
  unload();
}

void Menu_N::act(int item) {
  switch (item) {
    case kEditAllNotes:
      host_.showAllNotes_frm();
      break;
    case kOptions:
      host_.showOptions();
      break;
    case kAbout:
      host_.showFrmAbout();
      break;
    case kExit:
      host_.Koniec_Kalvora();
      break;
    default:
      break;
  }
}

void Menu_N::Zamien_kolor(int item) {
  // A window that comes under the pointer is told that it moved.
  if (restingPointer_ && view_.pointer() == *restingPointer_) return;
  if (item == highlighted_.value_or(0)) return;
  highlight(item);
}

void Menu_N::highlight(int item) {
  if (highlighted_) view_.setBackColor(*highlighted_, kMenuRestColor);
  view_.setBackColor(item, kMenuHighlightColor);
  highlighted_ = item;
  highlightIsChosen_ = true;
}

void Menu_N::Timer1_Timer() {
  const Point pointer = view_.pointer();
  const Rect place = view_.place();
  const bool outside = pointer.x < place.x || pointer.x > place.right() || pointer.y < place.y ||
                       pointer.y > place.bottom();
  if (!outside) pointerWasThere_ = true;
  if (outside && pointerWasThere_) unload();
}

void Menu_N::keyDown(MenuKey key) {
  switch (key) {
    case MenuKey::Up:
      step(-1);
      break;
    case MenuKey::Down:
      step(+1);
      break;
    case MenuKey::Enter:
      if (highlighted_) Click_pl(*highlighted_);
      break;
    case MenuKey::Escape:
      unload();
      break;
  }
}

void Menu_N::letterTyped(wchar_t letter) {
  const std::wstring_view typed(&letter, 1);
  const auto begins = [typed](const MenuItem& item) {
    return equalIgnoringCase(item.caption.substr(0, 1), typed);
  };
  const auto count = std::ranges::count_if(kMenuItems, begins);
  if (count == 0) return;
  const auto isHere = [this](const MenuItem& item) {
    return highlightIsChosen_ && highlighted_ == item.number;
  };
  auto here = std::ranges::find_if(kMenuItems, isHere);
  if (here != kMenuItems.end()) ++here;
  auto next = std::find_if(here, kMenuItems.end(), begins);
  if (next == kMenuItems.end()) next = std::ranges::find_if(kMenuItems, begins);
  count == 1 ? Click_pl(next->number) : highlight(next->number);
}

void Menu_N::step(int by) {
  const int count = static_cast<int>(kMenuItems.size());
  const auto current = std::ranges::find_if(
      kMenuItems, [this](const MenuItem& item) { return highlighted_ == item.number; });
  int next = by > 0 ? 0 : count - 1;
  if (current != kMenuItems.end()) {
    next = (static_cast<int>(current - kMenuItems.begin()) + by + count) % count;
  }
  highlight(kMenuItems[static_cast<std::size_t>(next)].number);
}

}  // namespace kalvora
