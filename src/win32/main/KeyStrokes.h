#pragma once

#include <windows.h>

#include <optional>

#include "app/MainCommands.h"

namespace kalvora {

/// The key that a message tells of going down, or being held, with what is held beside it. Nothing
/// for other messages, for other keys, the Del of the block of numbers among them, and with Ctrl
/// and Alt together.
std::optional<KeyStroke> keyStrokeOf(const MSG& message);

}  // namespace kalvora
