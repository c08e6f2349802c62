#pragma once

#include <windows.h>

namespace kalvora {

/// Handles the keys that lead through the fields of `main`, before the message is translated. True
/// where the message is done with.
///
/// Tab and Shift+Tab go through the fields that take part (WS_TABSTOP, visible, enabled) in their
/// order, round and round; Enter in a field of one line goes on like Tab; Ctrl+A selects all of a
/// field; Esc does nothing; Alt+F4 counts once, however long it is held. All other keys, and
/// messages for other windows, are left alone.
///
/// It stands in for IsDialogMessage(), under which a field of several lines asks its parent to
/// close when the user presses Esc.
bool handleFieldKey(HWND main, const MSG& message);

}  // namespace kalvora
