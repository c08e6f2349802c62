#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "skin/SkinDescription.h"

namespace kalvora {

/// What the user can have the main window do, by the mouse or by a key.
enum class MainCommand {
  New,
  Save,
  Previous,
  Next,
  Delete,
  FastDelete,
  Roll,
  PutAway,
  TurnHalf,  // of the day
  Find,
  WhatComes,
  OpenMenu,
  Snooze,
  SnoozeMenu,
  Done,
};

/// The keys that mean something to the main window.
enum class Key { N, S, F, PageUp, PageDown, Delete, Up, Down, F4, F6, F7, F8, F10, Menu };

/// What is held while a key goes down. Ctrl with Alt is how many keyboards write their third row of
/// characters, and never asks for a command.
enum class HeldWith { Nothing, Shift, Ctrl, CtrlShift, Alt };

struct KeyStroke {
  HeldWith held = HeldWith::Nothing;
  Key key = Key::N;
  friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

/// What a key asks for. Up and Down do so in the field of the time only.
std::optional<MainCommand> commandOf(KeyStroke stroke);
/// The key of a command, or the first of its keys, as it is written on keyboards: "Ctrl+PgUp".
std::wstring_view keyOf(MainCommand command);
/// All of its keys, with commas between them.
std::wstring keysOf(MainCommand command);

/// The button that does the same; nothing for a command without one.
std::optional<ButtonId> buttonOf(MainCommand command);
/// What a button does.
MainCommand commandOf(ButtonId button);

/// Whether it is about the reminder on show, and means nothing without one.
bool isOfReminder(MainCommand command);
/// Whether it puts off, puts away or deletes the note of a reminder on show. One that came just now
/// nobody has read.
bool endsReminder(MainCommand command);
/// Whether a key that is held asks for it again and again. What deletes or saves counts once, and
/// so does what puts away: behind a reminder the next one may come.
bool goesOnWhileHeld(MainCommand command);

}  // namespace kalvora
