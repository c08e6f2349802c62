#pragma once

#include <windows.h>

#include <span>

namespace kalvora {

/// Gives a list view in its report style one column a heading, in their order, without a width.
void addListColumns(HWND list, std::span<const wchar_t* const> headings);

}  // namespace kalvora
