#include "win32/toolkit/ControlText.h"

namespace kalvora {

std::wstring textOf(HWND control) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)), L'\0');
  text.resize(static_cast<std::size_t>(
      GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1)));
  return text;
}

}  // namespace kalvora
