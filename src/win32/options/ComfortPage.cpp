#include "win32/options/ComfortPage.h"

// commctrl.h needs windows.h before it.
#include <commctrl.h>

#include <string>
#include <string_view>

#include "options/ComfortTable.h"
#include "win32/options/OptionsIds.h"

namespace kalvora {

namespace {

// Dialog units: the column of the ticks (left and top edge, width), what of it the box takes, and
// the room above and below a text, and between two.
constexpr RECT kColumn = {12, 41, 222, 0};
constexpr RECT kBoxAndRoom = {12, 1, 0, 4};

RECT inPixels(HWND page, RECT units) {
  MapDialogRect(page, &units);
  return units;
}

HFONT fontOf(HWND page) {
  return reinterpret_cast<HFONT>(SendMessageW(page, WM_GETFONT, 0, 0));
}

/// Of a text in the page's letters that is broken at that width, in pixels.
int heightOf(std::wstring_view text, int width, HWND page) {
  const HDC context = GetDC(page);
  const HGDIOBJ before = SelectObject(context, fontOf(page));
  RECT room{0, 0, width, 0};
  DrawTextW(context, text.data(), static_cast<int>(text.size()), &room, DT_CALCRECT | DT_WORDBREAK);
  SelectObject(context, before);
  ReleaseDC(page, context);
  return static_cast<int>(room.bottom);
}

HWND makeTick(HWND page, int id, std::wstring_view caption, const RECT& place) {
  const HWND tick =
      CreateWindowExW(0, WC_BUTTONW, std::wstring(caption).c_str(),
                      WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX | BS_MULTILINE,
                      place.left, place.top, place.right - place.left, place.bottom - place.top,
                      page, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  SendMessageW(tick, WM_SETFONT, reinterpret_cast<WPARAM>(fontOf(page)), FALSE);
  return tick;
}

}  // namespace

void makeComfortTicks(HWND page) {
  const RECT column = inPixels(page, kColumn);
  const RECT boxAndRoom = inPixels(page, kBoxAndRoom);
  const HWND button = GetDlgItem(page, IDC_ALL_COMFORT);
  int id = IDC_COMFORT;
  RECT place{column.left, column.top, column.left + column.right, 0};
  for (const ComfortTick& tick : comfortTicks()) {
    const int text = heightOf(tick.caption, static_cast<int>(column.right - boxAndRoom.left), page);
    place.bottom = place.top + text + 2 * boxAndRoom.top;
    const HWND made = makeTick(page, id++, tick.caption, place);
    SetWindowPos(made, GetWindow(button, GW_HWNDPREV), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    place.top = place.bottom + boxAndRoom.bottom;
  }
}

}  // namespace kalvora
