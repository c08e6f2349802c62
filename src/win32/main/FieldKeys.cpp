#include "win32/main/FieldKeys.h"

#include <algorithm>
#include <vector>

#include "win32/toolkit/Keys.h"

namespace kalvora {

namespace {

enum class Direction { Forward, Back };

bool hasStyle(HWND window, LONG_PTR style) {
  return (GetWindowLongPtrW(window, GWL_STYLE) & style) == style;
}

bool isEdit(HWND window) {
  return (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
}

bool isOfOneLine(HWND window) {
  return isEdit(window) && !hasStyle(window, ES_MULTILINE);
}

std::vector<HWND> fieldsOf(HWND main) {
  std::vector<HWND> fields;
  for (HWND child = GetWindow(main, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (hasStyle(child, WS_TABSTOP | WS_VISIBLE) && !hasStyle(child, WS_DISABLED)) {
      fields.push_back(child);
    }
  }
  return fields;
}

/// From a window that is none of the fields it goes to the first or to the last one.
void moveOn(HWND main, HWND from, Direction direction) {
  std::vector<HWND> fields = fieldsOf(main);
  if (fields.empty()) return;
  if (direction == Direction::Back) std::ranges::reverse(fields);
  const auto here = std::ranges::find(fields, from);
  const bool last = here == fields.end() || here + 1 == fields.end();
  const HWND next = last ? fields.front() : *(here + 1);
  SetFocus(next);
  if (isOfOneLine(next)) SendMessageW(next, EM_SETSEL, 0, -1);
}

bool handleKeyDown(HWND main, HWND field, WPARAM key) {
  // Ctrl+Alt is how many keyboards write their third row of characters.
  const bool alt = isDown(VK_MENU);
  const bool control = isDown(VK_CONTROL);
  switch (key) {
    case VK_TAB:
      if (control || alt) return false;
      moveOn(main, field, isDown(VK_SHIFT) ? Direction::Back : Direction::Forward);
      return true;
    case VK_RETURN:
      if (!isOfOneLine(field)) return false;
      moveOn(main, field, Direction::Forward);
      return true;
    case VK_ESCAPE:
      return true;
    case 'A':
      if (!control || alt || !isEdit(field)) return false;
      SendMessageW(field, EM_SETSEL, 0, -1);
      return true;
    default:
      return false;
  }
}

}  // namespace

bool handleFieldKey(HWND main, const MSG& message) {
  if (message.hwnd != main && !IsChild(main, message.hwnd)) return false;
  switch (message.message) {
    case WM_SYSKEYDOWN:
      // Alt+F4 closes once, however long it is held: behind a reminder the next one may come.
      return message.wParam == VK_F4 && isRepeated(message);
    case WM_KEYDOWN:
      return handleKeyDown(main, message.hwnd, message.wParam);
    case WM_CHAR:
      // Ctrl+[ writes what Esc writes.
      return message.wParam == VK_ESCAPE;
    default:
      return false;
  }
}

}  // namespace kalvora
