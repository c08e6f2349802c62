#pragma once

#include <windows.h>

#include <string>

namespace kalvora {

/// The whole text of a control of ours, or the caption of a window; empty for null.
std::wstring textOf(HWND control);

}  // namespace kalvora
