#include "app/MainCommands.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kalvora {

namespace {

struct CommandKey {
  KeyStroke stroke;
  MainCommand command;
};

// The first key of a command is the one that its tip tells.
constexpr std::array kCommandKeys = {
    CommandKey{{HeldWith::Ctrl, Key::N}, MainCommand::New},
    CommandKey{{HeldWith::Ctrl, Key::S}, MainCommand::Save},
    CommandKey{{HeldWith::Ctrl, Key::PageUp}, MainCommand::Previous},
    CommandKey{{HeldWith::Ctrl, Key::PageDown}, MainCommand::Next},
    CommandKey{{HeldWith::Ctrl, Key::Delete}, MainCommand::Delete},
    CommandKey{{HeldWith::CtrlShift, Key::Delete}, MainCommand::FastDelete},
    CommandKey{{HeldWith::Nothing, Key::F6}, MainCommand::Roll},
    CommandKey{{HeldWith::Alt, Key::F4}, MainCommand::PutAway},
    CommandKey{{HeldWith::Nothing, Key::Up}, MainCommand::TurnHalf},
    CommandKey{{HeldWith::Nothing, Key::Down}, MainCommand::TurnHalf},
    CommandKey{{HeldWith::Ctrl, Key::F}, MainCommand::Find},
    CommandKey{{HeldWith::Nothing, Key::F4}, MainCommand::WhatComes},
    CommandKey{{HeldWith::Nothing, Key::F10}, MainCommand::OpenMenu},
    CommandKey{{HeldWith::Nothing, Key::F7}, MainCommand::Snooze},
    CommandKey{{HeldWith::Shift, Key::F7}, MainCommand::SnoozeMenu},
    CommandKey{{HeldWith::Nothing, Key::Menu}, MainCommand::SnoozeMenu},
    CommandKey{{HeldWith::Shift, Key::F10}, MainCommand::SnoozeMenu},
    CommandKey{{HeldWith::Nothing, Key::F8}, MainCommand::Done},
};

// In the order of ButtonId.
constexpr std::array<MainCommand, kButtonCount> kButtonCommands = {
    MainCommand::FastDelete, MainCommand::Roll,   MainCommand::PutAway,  MainCommand::New,
    MainCommand::Save,       MainCommand::Delete, MainCommand::Previous, MainCommand::Next,
    MainCommand::Snooze,     MainCommand::Done};

// In the order of Key, and of HeldWith.
constexpr std::array<std::wstring_view, 14> kKeyNames = {
    L"N",    L"S",  L"F",  L"PgUp", L"PgDn", L"Del", L"Up",
    L"Down", L"F4", L"F6", L"F7",   L"F8",   L"F10", L"menu key"};
constexpr std::array<std::wstring_view, 5> kHeldNames = {L"", L"Shift+", L"Ctrl+", L"Ctrl+Shift+",
                                                         L"Alt+"};

std::wstring nameOf(KeyStroke stroke) {
  return std::wstring(kHeldNames[static_cast<std::size_t>(stroke.held)]) +
         std::wstring(kKeyNames[static_cast<std::size_t>(stroke.key)]);
}

}  // namespace

std::optional<MainCommand> commandOf(KeyStroke stroke) {
  const auto found = std::ranges::find(kCommandKeys, stroke, &CommandKey::stroke);
  if (found == kCommandKeys.end()) return std::nullopt;
  return found->command;
}

std::wstring keyOf(MainCommand command) {
  return nameOf(std::ranges::find(kCommandKeys, command, &CommandKey::command)->stroke);
}

std::wstring keysOf(MainCommand command) {
  std::wstring names;
  for (const CommandKey& key : kCommandKeys) {
    if (key.command != command) continue;
    if (!names.empty()) names += L", ";
    names += nameOf(key.stroke);
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

bool goesOnWhileHeld(MainCommand command) {
  return command == MainCommand::Previous || command == MainCommand::Next;
}

}  // namespace kalvora
