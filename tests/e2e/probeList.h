#pragma once

#include <windows.h>

#include <string>

/// The texts of a list view's rows that are wanted, as JSON: a list of the columns for each. At
/// most `most` rows from `first` on.
std::string rowsOf(HWND list, int first, int most);
