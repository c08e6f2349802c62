#include "app/MainCommands.h"

#include <algorithm>
#include <array>

namespace kalvora {

namespace {

struct CommandKey {
  KeyStroke stroke;
  MainCommand command;
  std::wstring_view name;
};

// The first key of a command is the one that its tip tells.
constexpr std::array kCommandKeys = {
    CommandKey{{HeldWith::Ctrl, Key::N}, MainCommand::New, L"Ctrl+N"},
    CommandKey{{HeldWith::Ctrl, Key::S}, MainCommand::Save, L"Ctrl+S"},
    CommandKey{{HeldWith::Ctrl, Key::PageUp}, MainCommand::Previous, L"Ctrl+PgUp"},
    CommandKey{{HeldWith::Ctrl, Key::PageDown}, MainCommand::Next, L"Ctrl+PgDn"},
    CommandKey{{HeldWith::Ctrl, Key::Delete}, MainCommand::Delete, L"Ctrl+Del"},
    CommandKey{{HeldWith::CtrlShift, Key::Delete}, MainCommand::FastDelete, L"Ctrl+Shift+Del"},
    CommandKey{{HeldWith::Nothing, Key::F6}, MainCommand::Roll, L"F6"},
    CommandKey{{HeldWith::Alt, Key::F4}, MainCommand::PutAway, L"Alt+F4"},
    CommandKey{{HeldWith::Nothing, Key::Up}, MainCommand::TurnHalf, L"Up"},
    CommandKey{{HeldWith::Nothing, Key::Down}, MainCommand::TurnHalf, L"Down"},
    CommandKey{{HeldWith::Ctrl, Key::F}, MainCommand::Find, L"Ctrl+F"},
    CommandKey{{HeldWith::Nothing, Key::F4}, MainCommand::WhatComes, L"F4"},
    CommandKey{{HeldWith::Nothing, Key::F10}, MainCommand::OpenMenu, L"F10"},
    CommandKey{{HeldWith::Nothing, Key::F7}, MainCommand::Snooze, L"F7"},
    CommandKey{{HeldWith::Shift, Key::F7}, MainCommand::SnoozeMenu, L"Shift+F7"},
    CommandKey{{HeldWith::Nothing, Key::Menu}, MainCommand::SnoozeMenu, L"menu key"},
    CommandKey{{HeldWith::Shift, Key::F10}, MainCommand::SnoozeMenu, L"Shift+F10"},
    CommandKey{{HeldWith::Nothing, Key::F8}, MainCommand::Done, L"F8"},
};

// In the order of ButtonId.
constexpr std::array<MainCommand, kButtonCount> kButtonCommands = {
    MainCommand::FastDelete, MainCommand::Roll,   MainCommand::PutAway,  MainCommand::New,
    MainCommand::Save,       MainCommand::Delete, MainCommand::Previous, MainCommand::Next,
    MainCommand::Snooze,     MainCommand::Done};

}  // namespace

std::optional<MainCommand> commandOf(KeyStroke stroke) {
  const auto found = std::ranges::find(kCommandKeys, stroke, &CommandKey::stroke);
  if (found == kCommandKeys.end()) return std::nullopt;
  return found->command;
}

std::wstring_view keyOf(MainCommand command) {
  return std::ranges::find(kCommandKeys, command, &CommandKey::command)->name;
}

std::wstring keysOf(MainCommand command) {
  std::wstring names;
  for (const CommandKey& key : kCommandKeys) {
    if (key.command != command) continue;
    if (!names.empty()) names += L", ";
    names += key.name;
  }
  return names;
}

std::optional<ButtonId> buttonOf(MainCommand command) {
  const auto found = std::ranges::find(kButtonCommands, command);
  if (found == kButtonCommands.end()) return std::nullopt;
  return static_cast<ButtonId>(found - kButtonCommands.begin());
}

MainCommand commandOf(ButtonId button) {
  return kButtonCommands[static_cast<std::size_t>(button)];
}

bool isOfReminder(MainCommand command) {
  return command == MainCommand::Snooze || command == MainCommand::SnoozeMenu ||
         command == MainCommand::Done;
}

bool endsReminder(MainCommand command) {
  return isOfReminder(command) || command == MainCommand::FastDelete;
}

bool goesOnWhileHeld(MainCommand command) {
  return command == MainCommand::Previous || command == MainCommand::Next;
}

}  // namespace kalvora
