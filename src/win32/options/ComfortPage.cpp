#include "win32/options/ComfortPage.h"

// commctrl.h needs windows.h before it.
#include <commctrl.h>

#include <string>
#include <string_view>

#include "options/ComfortTable.h"
#include "win32/options/OptionsIds.h"

namespace kalvora {

namespace {

// Dialog units: the left column (left and top edge, width, and how far the right one is from it).
constexpr RECT kColumn = {12, 41, 104, 116};
// What of a tick the box takes, the room above and below its text, that between two ticks, and that
// between two groups.
constexpr RECT kRooms = {12, 1, 7, 3};

RECT inPixels(HWND page, RECT units) {
  MapDialogRect(page, &units);
  return units;
}

HFONT fontOf(HWND page) {
  return reinterpret_cast<HFONT>(SendMessageW(page, WM_GETFONT, 0, 0));
}

/// The ticks one below the other, each group under its heading: the first group in the left column,
/// all others in the right one.
class ComfortColumns {
 public:
  ComfortColumns(HWND page, HFONT headingFont)
      : page_(page),
        headingFont_(headingFont),
        column_(inPixels(page, kColumn)),
        rooms_(inPixels(page, kRooms)),
        place_{column_.left, column_.top, column_.left + column_.right, column_.top} {}

  void add(const ComfortTick& tick) {
    if (!tick.heading.empty()) beginGroup(tick.heading);
    const LONG room = rooms_.top;
    const int text = heightOf(tick.caption, place_.right - place_.left - rooms_.left);
    put(WC_BUTTONW, WS_TABSTOP | BS_AUTOCHECKBOX | BS_MULTILINE | BS_TOP, id_++, tick.caption,
        text + 2 * room, fontOf(page_));
    place_.top += rooms_.bottom;
  }

 private:
  void beginGroup(std::wstring_view heading) {
    if (id_ != IDC_COMFORT) {
      const bool fromLeft = place_.left == column_.left;
      if (fromLeft) OffsetRect(&place_, column_.bottom, column_.top - place_.top);
      if (!fromLeft) place_.top += rooms_.right;
    }
    put(WC_STATICW, SS_NOPREFIX, -1, heading, heightOf(heading, column_.right), headingFont_);
    place_.top += rooms_.bottom;
  }

  /// At the place of now, which then is below it.
  void put(const wchar_t* kind, DWORD style, int id, std::wstring_view text, int height,
           HFONT font) {
    const HWND made =
        CreateWindowExW(0, kind, std::wstring(text).c_str(), WS_CHILD | WS_VISIBLE | style,
                        place_.left, place_.top, place_.right - place_.left, height, page_,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    const HWND button = GetDlgItem(page_, IDC_ALL_COMFORT);
    SetWindowPos(made, GetWindow(button, GW_HWNDPREV), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    place_.top += height;
  }

  /// Of a text in the page's letters that is broken at that width, in pixels.
  int heightOf(std::wstring_view text, LONG width) const {
    const HDC context = GetDC(page_);
    const HGDIOBJ before = SelectObject(context, fontOf(page_));
    RECT room{0, 0, width, 0};
    DrawTextW(context, text.data(), static_cast<int>(text.size()), &room,
              DT_CALCRECT | DT_WORDBREAK);
    SelectObject(context, before);
    ReleaseDC(page_, context);
    return static_cast<int>(room.bottom);
  }

  HWND page_;
  HFONT headingFont_;
  RECT column_;
  RECT rooms_;
  RECT place_;  // of what comes next; its height is left open
  int id_ = IDC_COMFORT;
};

}  // namespace

void makeComfortTicks(HWND page, HFONT headingFont) {
  ComfortColumns columns(page, headingFont);
  for (const ComfortTick& tick : comfortTicks()) columns.add(tick);
}

}  // namespace kalvora
