#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "notes/Menu_NView.h"

namespace kalvora {

/// One line of the menu. The number is what it does; 3 is not used.
struct MenuItem {
  int number = 0;
  std::wstring_view caption;
};

/// The items from top to bottom.
inline constexpr std::array kMenuItems = {MenuItem{2, L"Edit All Notes"}, MenuItem{4, L"Options"},
                                          MenuItem{1, L"About"}, MenuItem{0, L"Exit"}};

inline constexpr Pixel kMenuTextColor = pixelOf(255, 255, 255);
inline constexpr Pixel kMenuRestColor = pixelOf(0, 0, 0);
inline constexpr Pixel kMenuHighlightColor = pixelOf(0, 0, 128);

enum class MenuKey { Up, Down, Enter, Escape };

/// The popup menu's presenter. The menu exists while it is open.
class Menu_N {
 public:
  /// Both must outlive this object.
  Menu_N(Menu_NView& view, Menu_NHost& host) : view_(view), host_(host) {}

  /// Opens the menu at the mouse pointer. One that is open already moves there.
  void open();
  /// Opens it for the keyboard at a place, wholly on the monitor there, with its first item
  /// highlighted. The pointer, which may rest anywhere, highlights nothing until it moves, and
  /// closes the menu only when it has been there; what else closes it is that the keyboard leaves.
  void openAt(Point place);
  /// The keyboard went to another window.
  void keyboardLeft();
  /// Closes it without any action; harmless where it is not open.
  void unload();

  /// Load the form: lays the menu out, all items at rest, with its corner at the pointer; turned to
  /// the other side of the pointer where it would reach beyond the pointer's monitor.
  void Form_Load();
  /// The left mouse button goes down and up again, on an item or on none: a click is a press and
  /// its release on the same item. A press from before the menu was opened, or from beside it, is
  /// none.
  void mouseDown(std::optional<int> item);
  void mouseUp(std::optional<int> item);
  /// Click: does what the item is there for, then closes the menu in every case.
  void Click_pl(int item);
  /// Change the colour: highlights an item and puts the one before it to rest. Before anything was
  /// highlighted, item 0 counts as highlighted: pointing at it first changes nothing.
  void Zamien_kolor(int item);
  /// Every 100 ms: closes the menu once the pointer has left it.
  void Timer1_Timer();
  /// The arrows go round through the items, Enter clicks the highlighted one, Esc closes.
  void keyDown(MenuKey key);
  /// Clicks the item that begins with a letter, whatever its case; where several do, goes to the
  /// first of them, and at each further letter on to the next.
  void letterTyped(wchar_t letter);

 private:
  void showAt(Point corner);
  void highlight(int item);
  void step(int by);
  void act(int item);

  Menu_NView& view_;
  Menu_NHost& host_;
  std::optional<int> highlighted_;
  std::optional<int> pressed_;
  bool open_ = false;
  bool pointerWasThere_ = false;
  // While it is the keyboard's: where the pointer was when it was opened.
  std::optional<Point> restingPointer_;
  bool highlightIsChosen_ = false;  // and not only the first one
};

/// The top left corner of a menu opened at `pointer`.
Point menuCorner(Point pointer, Size menu, const Rect& monitor);

}  // namespace kalvora
